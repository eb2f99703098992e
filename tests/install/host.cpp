// SPDX-License-Identifier: MIT
// Writes a pie to the file that the command line names.

extern "C" int drawPie(const char* path);

int main(int count, char** arguments)
{
    return count == 2 ? drawPie(arguments[1]) : 2;
}
