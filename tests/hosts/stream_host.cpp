// SPDX-License-Identifier: MIT
// A host that writes to stderr in one thread while another one draws its first picture.
#include "draw_pie.h"

#include <atomic>
#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <string>
#include <thread>
#include <unistd.h>

namespace {

std::atomic<bool> isDrawn{false};
int lines = 0;

void writeLines()
{
    do
        std::fprintf(stderr, "line %d\n", ++lines);
    while (!isDrawn);
}

bool areAllLinesIn(const std::string& path)
{
    std::ifstream file(path);
    std::string line;
    for (int i = 1; i <= lines; ++i) {
        if (!std::getline(file, line) || line != "line " + std::to_string(i))
            return false;
    }
    return !std::getline(file, line);
}

} // namespace

int main(int, char** arguments)
{
    const std::string folder = arguments[1];
    const std::string path = folder + "/stderr";
    const std::FILE* const before = stderr;
    const int file = open(path.c_str(), O_WRONLY | O_CREAT, 0600);
    const int terminal = dup(STDERR_FILENO);
    if (dup2(file, STDERR_FILENO) < 0)
        return 1;
    std::thread writer(writeLines);
    const bool isWritten = drawPie(folder, "first");
    isDrawn = true;
    writer.join();
    return dup2(terminal, STDERR_FILENO) >= 0 && isWritten && areAllLinesIn(path) &&
                   stderr == before
               ? 0
               : 1;
}
