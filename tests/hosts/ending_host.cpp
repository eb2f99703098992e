// SPDX-License-Identifier: MIT
// A host whose processes end while several of their threads draw, at their first pictures or later,
// or before threads that have drawn.
#include "draw_pie.h"

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <pthread.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

constexpr int kChildren = 10; // of each kind
constexpr int kThreads = 4;
constexpr unsigned kPatience = 30; // seconds

constexpr int kManyPictures = 20;

std::atomic<int> pictures{0}; // of all threads

void drawPlainPie()
{
    unsigned char* data = nullptr;
    int size = 0;
    tovangl::PieGraph pie(false);
    pie.addItem(1, "one");
    pie.createPixmap(400, 300, &data, &size);
}

// At the end, pictures are refused, and charts can still be made.
void drawOn()
{
    unsigned char* data = nullptr;
    int size = 0;
    tovangl::PieGraph pie(false);
    pie.addItem(1, "one");
    pie.addItem(2, "two");
    for (;;) {
        pie.createPixmap(400, 300, &data, &size);
        ++pictures;
        tovangl::PieGraph newPie(true);
        newPie.setLocale("de", "AT");
        newPie.setTitle("A title");
        newPie.addItem(1, "one");
        newPie.createPdf(400, 300, &data, &size);
        newPie.createPixmap(400, 300, &data, &size);
        ++pictures;
    }
}

// Threads that have drawn, and end when Qt's tables are gone.
class CPool
{
public:
    CPool() = default;
    CPool(const CPool&) = delete;
    CPool& operator=(const CPool&) = delete;
    ~CPool()
    {
        isEnd = true;
        for (std::thread& thread : threads)
            thread.join();
    }

    void start()
    {
        for (int i = 0; i < kThreads; ++i)
            threads.emplace_back([this] { work(); });
    }

private:
    void work() const
    {
        static_cast<void>(exportPie());
        ++pictures;
        while (!isEnd)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }

    std::vector<std::thread> threads;
    std::atomic<bool> isEnd{false};
};

CPool pool;

void waitForPictures(int count)
{
    while (pictures < count)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

void startDrawing()
{
    for (int thread = 0; thread < kThreads; ++thread)
        std::thread(drawOn).detach();
}

[[noreturn]] void endAtFirstPictures(int milliseconds)
{
    startDrawing();
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    std::exit(0);
}

[[noreturn]] void endInMainThread()
{
    startDrawing();
    waitForPictures(kManyPictures);
    std::exit(0);
}

// Qt makes its cache of gradients after the first picture.
[[noreturn]] void endInAnotherThread()
{
    drawPlainPie();
    startDrawing();
    waitForPictures(kManyPictures);
    std::thread([] { std::exit(0); }).detach();
    for (;;)
        pause();
}

[[noreturn]] void endBeforeThreads(bool afterPictures)
{
    pool.start();
    waitForPictures(afterPictures ? kThreads : 0);
    std::exit(0);
}

// The thread that has loaded the library is no more, and another one draws.
[[noreturn]] void goOnWithoutMainThread()
{
    std::thread([mainThread = pthread_self()] {
        const bool hasEnded = pthread_join(mainThread, nullptr) == 0;
        std::exit(hasEnded && !exportPie().bytes.empty() ? 0 : 1);
    }).detach();
    pthread_exit(nullptr);
}

template <typename Run>
bool succeedsInChild(const Run& run)
{
    const pid_t child = fork();
    if (child == 0) {
        alarm(kPatience);
        run();
    }
    int status = -1;
    return waitpid(child, &status, 0) == child && status == 0;
}

} // namespace

int main(int, char** arguments)
{
    for (int child = 0; child < kChildren; ++child) {
        if (!succeedsInChild([child] { endAtFirstPictures(2 * child); }) ||
            !succeedsInChild(endInMainThread) || !succeedsInChild(endInAnotherThread))
            return 1;
    }
    for (const bool afterPictures : {false, true}) {
        if (!succeedsInChild([=] { endBeforeThreads(afterPictures); }))
            return 1;
    }
    if (!succeedsInChild(goOnWithoutMainThread))
        return 1;
    return drawPie(arguments[1], "main") ? 0 : 1;
}
