// SPDX-License-Identifier: MIT
// A host that forks after loading: fork_host FOLDER [draw-before|draw-meanwhile]
#include "draw_pie.h"

#include <atomic>
#include <sys/wait.h>
#include <thread>
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

// Children of a process in which other threads draw at the time of every fork.
int drawInChildrenMeanwhile(const std::string& folder)
{
    constexpr int kChildren = 30;
    std::atomic<bool> isOver = false;
    const auto drawOn = [&isOver] {
        while (!isOver)
            static_cast<void>(exportPie());
    };
    std::thread first(drawOn);
    std::thread second(drawOn);
    int status = 0;
    for (int child = 0; child < kChildren && status == 0; ++child)
        status = drawInChild(folder);
    isOver = true;
    first.join();
    second.join();
    return status;
}

} // namespace

int main(int count, char** arguments)
{
    const std::string folder = arguments[1];
    const std::string mode = count > 2 ? arguments[2] : "";
    if (mode == "draw-before" && !drawPie(folder, "before"))
        return 1;
    const bool drawsMeanwhile = mode == "draw-meanwhile";
    if ((drawsMeanwhile ? drawInChildrenMeanwhile(folder) : drawInChild(folder)) != 0)
        return 2;
    return drawPie(folder, "parent") ? 0 : 1;
}
