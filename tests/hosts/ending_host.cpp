// SPDX-License-Identifier: MIT
// A host whose processes end while several of their threads draw.
#include "draw_pie.h"

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

constexpr int kChildren = 30;
constexpr int kThreads = 4;
constexpr unsigned kPatience = 30; // seconds

std::atomic<int> drawing{0}; // threads

// Draws one chart again and again: at the end, pictures are refused, but whatever Qt has for new
// charts is no more.
void drawOn()
{
    tovangl::PieGraph pie(false);
    pie.addItem(1, "one");
    pie.addItem(2, "two");
    for (bool isFirst = true;; isFirst = false) {
        unsigned char* data = nullptr;
        int size = 0;
        pie.createPixmap(400, 300, &data, &size);
        if (isFirst)
            ++drawing;
    }
}

[[noreturn]] void endWhileThreadsDraw()
{
    alarm(kPatience);
    static_cast<void>(exportPie());
    for (int thread = 0; thread < kThreads; ++thread)
        std::thread(drawOn).detach();
    do
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    while (drawing < kThreads);
    std::exit(0);
}

} // namespace

int main(int, char** arguments)
{
    for (int i = 0; i < kChildren; ++i) {
        const pid_t child = fork();
        if (child == 0)
            endWhileThreadsDraw();
        int status = -1;
        if (waitpid(child, &status, 0) != child || status != 0)
            return 1;
    }
    return drawPie(arguments[1], "main") ? 0 : 1;
}
