// SPDX-License-Identifier: MIT
// A host that forks after loading: fork_host FOLDER [draw-before]
#include "draw_pie.h"

#include <cstring>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr unsigned kPatience = 30; // seconds

int drawInChild(const std::string& folder)
{
    const pid_t child = fork();
    if (child == 0) {
        alarm(kPatience);
        _exit(drawPie(folder, "child") ? 0 : 1);
    }
    int status = -1;
    return waitpid(child, &status, 0) == child ? status : -1;
}

} // namespace

int main(int count, char** arguments)
{
    const std::string folder = arguments[1];
    const bool drawBefore = count > 2 && std::strcmp(arguments[2], "draw-before") == 0;
    if (drawBefore && !drawPie(folder, "before"))
        return 1;
    if (drawInChild(folder) != 0)
        return 2;
    return drawPie(folder, "parent") ? 0 : 1;
}
