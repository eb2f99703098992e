// SPDX-License-Identifier: MIT
// What happens when exit() ends the process while threads draw.
#include "process/process_end.h"

#include "process/CMessageSilencer.h"
#include "process/font_gate.h"
#include "process/message_filter.h"

#include <QLocale>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <thread>
#include <unistd.h>

namespace tovangl {

namespace {

std::atomic<bool> isEnd{false};
std::atomic<std::thread::id> endingThread; // has called exit()

// The end of the main thread is nearly always exit(), whose handlers are about to run: what a
// picture registers now would be destroyed before they do. Should this thread alone end, the
// pictures of others are late once.
std::atomic<std::thread::id> endingMainThread;
constexpr std::chrono::milliseconds kLongestWait{100};

// Threads that go on making charts ask Qt for the process's locale. Qt gives it up, but does not
// notice if it is asked once more, which is harmless while somebody else has the locale too.
void keepLocale()
{
    alignas(QLocale) static unsigned char place[sizeof(QLocale)]; // is never destroyed
    [[maybe_unused]] static const auto* const locale = new (place) QLocale;
}

bool isMainThread()
{
    return gettid() == getpid();
}

// Waits until no other thread draws.
void finishPictures()
{
    const CFontChange pictures;
    // Those that begin from here on wait themselves.
    if (isMainThread())
        endingMainThread = std::this_thread::get_id();
}

// Other threads finish their pictures. Qt 5 complains about each that ends after Qt's tables. A
// thread that ends the process while it draws itself, as a handler of signals may, cannot wait for
// its own picture.
void settleOtherThreads()
{
    if (!isSilenced()) {
        finishPictures();
        CMessageSilencer::silenceOtherThreads();
    }
    keepLocale();
}

void endOtherThreads()
{
    endingThread = std::this_thread::get_id();
    settleOtherThreads();
}

void endAllThreads()
{
    isEnd = true;
    settleOtherThreads();
}

// exit() first destroys what belongs to the calling thread. Should the thread just end, the handler
// waits for the end of the process.
class CThreadEnd
{
public:
    CThreadEnd() = default;
    ~CThreadEnd()
    {
        if (!isSilenced())
            finishPictures(); // with all that they register
        static_cast<void>(std::atexit(endOtherThreads));
    }
    Q_DISABLE_COPY(CThreadEnd)
};

// Lets an exit() that has begun in the main thread get to its handlers.
void awaitHandlers()
{
    const std::thread::id main = endingMainThread;
    if (main == std::thread::id() || main == std::this_thread::get_id())
        return;
    const auto begin = std::chrono::steady_clock::now();
    while (endingThread == std::thread::id() &&
           std::chrono::steady_clock::now() - begin < kLongestWait)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    endingMainThread = std::thread::id();
}

bool watchThisThread()
{
    static thread_local const CThreadEnd threadEnd;
    return true;
}

[[maybe_unused]] const bool watchesLoadingThread = watchThisThread();

} // namespace

bool isProcessEnding()
{
    awaitHandlers();
    const std::thread::id ending = endingThread;
    return isEnd || (ending != std::thread::id() && ending != std::this_thread::get_id());
}

void notePicture()
{
    static std::atomic<std::uint64_t> pictures{0};
    const std::uint64_t count = ++pictures;
    if ((count & (count - 1)) == 0)
        static_cast<void>(std::atexit(count == 1 ? endAllThreads : endOtherThreads));
}

} // namespace tovangl
