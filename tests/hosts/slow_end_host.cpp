// SPDX-License-Identifier: MIT
// A host whose processes begin to draw in threads when exit() has begun in their main thread, and
// has got to no handler yet.
#include "module.h"

#include <chrono>
#include <memory>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

constexpr int kChildren = 20;
constexpr int kThreads = 4;
constexpr unsigned kPatience = 30; // seconds

using Draw = bool (*)();

class CSlowEnd
{
public:
    CSlowEnd() = default;
    CSlowEnd(const CSlowEnd&) = delete;
    CSlowEnd& operator=(const CSlowEnd&) = delete;
    ~CSlowEnd()
    {
        for (int thread = 0; thread < kThreads; ++thread)
            std::thread(drawOn, draw).detach();
        std::this_thread::sleep_for(delay);
    }

    Draw draw = nullptr;
    std::chrono::milliseconds delay{0};

private:
    [[noreturn]] static void drawOn(Draw draw)
    {
        for (;;)
            draw();
    }
};

[[noreturn]] void endSlowly(std::chrono::milliseconds delay)
{
    // It is older than all that the library has in this thread, and so is destroyed after that.
    static thread_local CSlowEnd slowEnd;
    slowEnd.delay = delay;
    // The threads are in the module to the end, so it stays open.
    const CModule& module = *std::make_unique<CModule>(MODULE).release();
    slowEnd.draw = module.function<Draw>("drawsPieInModule");
    std::exit(0);
}

} // namespace

int main()
{
    for (int child = 0; child < kChildren; ++child) {
        const pid_t pid = fork();
        if (pid == 0) {
            alarm(kPatience);
            endSlowly(std::chrono::milliseconds(2 * child));
        }
        int status = -1;
        if (waitpid(pid, &status, 0) != pid || status != 0)
            return 1;
    }
    return 0;
}
