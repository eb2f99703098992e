// SPDX-License-Identifier: MIT
// A host that installs, chains and puts back message handlers of its own, in every order, while two
// static copies of the library draw in other threads.
//
// message_host FOLDER [--steps N] [--rounds N] [--seed-fault lost]
// First tries every order of N steps, then draws in turns, then lets all go on at once for N
// rounds.
#include "module.h"

#include <QtDebug>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <future>
#include <memory>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

constexpr unsigned kPatience = 100; // seconds, after which a message counts as never ending
constexpr int kFarTooOften = 100;
constexpr int kHandlers = 8;

struct COptions
{
    std::string folder;
    int steps = 5;
    int rounds = 2000;
    bool losesMessages = false;
};

[[noreturn]] void fail(const std::string& what)
{
    std::printf("FAIL  %s\n", what.c_str());
    std::fflush(stdout);
    _exit(1);
}

// --- the host's handlers

// How often each handler saw the messages of the calling thread.
using Counts = std::array<int, kHandlers>;
thread_local Counts seen = {};

// What each handler passes on to: null while it is being installed.
std::array<std::atomic<QtMessageHandler>, kHandlers> previousHandlers;
std::array<std::atomic<bool>, kHandlers> passOn;

template <int number>
void handle(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (++seen[number] > kFarTooOften)
        fail("one message enters a handler without end");
    if (!passOn[number])
        return;
    QtMessageHandler previous = previousHandlers[number];
    while (!previous) {
        std::this_thread::yield();
        previous = previousHandlers[number];
    }
    previous(type, context, message);
}

constexpr std::array<QtMessageHandler, kHandlers> handlers = {
    handle<0>, handle<1>, handle<2>, handle<3>, handle<4>, handle<5>, handle<6>, handle<7>};

Counts countsOfOneMessage()
{
    seen = {};
    qWarning("a message of the host's");
    return seen;
}

std::string listed(const Counts& counts)
{
    std::string list;
    for (const int count : counts)
        list += ' ' + std::to_string(count);
    return list;
}

// Installs handlers on top of each other and takes them away again, as plugins do.
class CHost
{
public:
    CHost() { qInstallMessageHandler(handlers[0]); }

    void push(bool passesOn)
    {
        ++m_top;
        previousHandlers[m_top] = nullptr;
        passOn[m_top] = passesOn;
        m_passesOn[m_top] = passesOn;
        previousHandlers[m_top] = qInstallMessageHandler(handlers[m_top]);
    }

    void pop() { qInstallMessageHandler(previousHandlers[m_top--]); }

    [[nodiscard]] bool canPop() const { return m_top > 0; }

    // Each handler sees a message once, down to the first that keeps it.
    [[nodiscard]] Counts expectedCounts() const
    {
        Counts counts = {};
        std::size_t number = m_top;
        counts[number] = 1;
        while (m_passesOn[number])
            counts[--number] = 1;
        return counts;
    }

private:
    std::size_t m_top = 0;
    std::array<bool, kHandlers> m_passesOn = {};
};

// --- drawing

// A plugin with a copy of the library inside.
class CCopy
{
public:
    explicit CCopy(const char* path)
        : m_module(path)
        , m_open(m_module.function<void* (*)()>("openRendering"))
        , m_close(m_module.function<void (*)(void*)>("closeRendering"))
    {}

    [[nodiscard]] void* open() const { return m_open(); }
    void close(void* rendering) const { m_close(rendering); }
    [[nodiscard]] bool draw(const std::string& folder, const std::string& name) const
    {
        return m_module.draw(folder, name);
    }

private:
    CModule m_module;
    void* (*m_open)();
    void (*m_close)(void*);
};

// A thread inside a rendering, which is silent where it begins.
class CDrawing
{
public:
    explicit CDrawing(const CCopy& copy)
        : m_thread([this, &copy] { draw(copy); })
    {
        m_hasBegun.get_future().wait();
    }
    ~CDrawing()
    {
        m_mayEnd.set_value();
        m_thread.join();
    }
    CDrawing(const CDrawing&) = delete;
    CDrawing& operator=(const CDrawing&) = delete;

private:
    void draw(const CCopy& copy)
    {
        void* rendering = copy.open();
        if (countsOfOneMessage() != Counts{})
            fail("the host saw a message of a rendering that had just begun");
        m_hasBegun.set_value();
        m_mayEnd.get_future().wait();
        copy.close(rendering);
    }

    std::promise<void> m_hasBegun;
    std::promise<void> m_mayEnd;
    std::thread m_thread;
};

using Copies = std::array<CCopy, 2>;

// Loads the fonts as well, before there are threads: Qt and what lies below it are not built for
// the thread sanitizer.
void drawAlone(const Copies& copies, const COptions& options)
{
    qInstallMessageHandler(handlers[0]);
    for (const CCopy& copy : copies) {
        seen = {};
        if (!copy.draw(options.folder, "first"))
            fail("a picture cannot be written");
        if (seen != Counts{})
            fail("the host saw a message of a rendering");
        if (qInstallMessageHandler(handlers[0]) != handlers[0])
            fail("the host's handler is not in force after a rendering");
    }
}

// --- every order

enum Step
{
    PushChained,
    PushAlone,
    Pop,
    ToggleFirstCopy,
    ToggleSecondCopy,
    StepCount
};

class COrder
{
public:
    explicit COrder(const Copies& copies)
        : m_copies(copies)
    {}

    void take(Step step)
    {
        switch (step) {
        case PushChained:
        case PushAlone:
            m_host.push(step == PushChained);
            break;
        case Pop:
            if (m_host.canPop())
                m_host.pop();
            break;
        default:
            toggle(step == ToggleFirstCopy ? 0 : 1);
        }
    }

    [[nodiscard]] bool isRight() const { return countsOfOneMessage() == m_host.expectedCounts(); }

    [[nodiscard]] bool isRightAtTheEnd()
    {
        for (std::unique_ptr<CDrawing>& drawing : m_drawings)
            drawing.reset();
        while (m_host.canPop())
            m_host.pop();
        return isRight();
    }

private:
    void toggle(std::size_t copy)
    {
        std::unique_ptr<CDrawing>& drawing = m_drawings[copy];
        if (drawing)
            drawing.reset();
        else
            drawing = std::make_unique<CDrawing>(m_copies[copy]);
    }

    const Copies& m_copies;
    CHost m_host;
    std::array<std::unique_ptr<CDrawing>, 2> m_drawings;
};

// The digits of the number, to the base of StepCount, are the steps.
std::string tryOrder(const Copies& copies, int number, int length)
{
    static const char* const names[] = {" push-chained", " push-alone", " pop", " first",
                                        " second"};
    COrder order(copies);
    std::string taken;
    for (int i = 0; i < length; ++i, number /= StepCount) {
        const Step step = static_cast<Step>(number % StepCount);
        taken += names[step];
        order.take(step);
        if (!order.isRight())
            return taken;
    }
    return order.isRightAtTheEnd() ? "" : taken + ", and at the end";
}

void tryAllOrders(const Copies& copies, int length)
{
    int orders = 1;
    for (int i = 0; i < length; ++i)
        orders *= StepCount;
    for (int number = 0; number < orders; ++number) {
        const std::string wrong = tryOrder(copies, number, length);
        if (!wrong.empty())
            fail("the host's handlers do not see one message each after" + wrong);
    }
}

// --- for long

// Two copies in turns, the one before the other has ended. A filter of each in front of the
// other's, time and again, would leave none for a handler that the host installs afterwards.
void takeTurns(const Copies& copies)
{
    constexpr int kTurns = 500;
    std::unique_ptr<CDrawing> last;
    for (int turn = 0; turn < kTurns; ++turn)
        last = std::make_unique<CDrawing>(copies[static_cast<std::size_t>(turn) % copies.size()]);
    COrder order(copies);
    order.take(PushAlone);
    order.take(ToggleFirstCopy);
    if (!order.isRight())
        fail("the host's handler does not see its message after many renderings");
}

// --- all at once

// Draws, and only opens and closes the scope of a rendering in between, which is far more often.
void keepDrawing(const CCopy& copy, const COptions& options, const std::string& name)
{
    constexpr int kRoundsPerPicture = 100;
    for (int round = 0; round < options.rounds; ++round) {
        copy.close(copy.open());
        if (round % kRoundsPerPicture == 0 && !copy.draw(options.folder, name))
            fail("a picture cannot be written");
    }
}

// The pauses are some ten microseconds each, as long as an interruption of the library that it
// notices.
void keepExchanging(CHost& host, const std::atomic<bool>& isEnded, const COptions& options)
{
    const auto pause = [] { std::this_thread::sleep_for(std::chrono::microseconds(1)); };
    while (!isEnded) {
        host.push(!options.losesMessages);
        pause();
        host.push(true);
        pause();
        host.pop();
        pause();
        host.pop();
        pause();
    }
}

// A handler that is taken away and installed again while a message is on its way through it may see
// that message again.
void keepSending(const std::atomic<bool>& isEnded)
{
    constexpr int kMostOften = 2;
    while (!isEnded) {
        const Counts counts = countsOfOneMessage();
        if (counts[0] != 1)
            fail("a message did not reach the host's first handler once; the handlers saw it" +
                 listed(counts));
        if (*std::max_element(counts.begin(), counts.end()) > kMostOften)
            fail("a handler saw a message time and again:" + listed(counts));
    }
}

void goOnAtOnce(const Copies& copies, const COptions& options)
{
    CHost host;
    std::atomic<bool> isEnded{false};
    std::vector<std::thread> drawing;
    for (const char* name : {"first", "second"}) {
        drawing.emplace_back([&, name] { keepDrawing(copies[0], options, name); });
        drawing.emplace_back(
            [&, name] { keepDrawing(copies[1], options, std::string("other_") + name); });
    }
    std::thread exchanger([&] { keepExchanging(host, isEnded, options); });
    std::thread sender([&] { keepSending(isEnded); });
    for (std::thread& thread : drawing)
        thread.join();
    isEnded = true;
    exchanger.join();
    sender.join();
    if (countsOfOneMessage() != Counts{1})
        fail("the host's first handler is not the one in force at the end");
}

COptions parseOptions(int count, char** arguments)
{
    COptions options;
    options.folder = arguments[1];
    for (int i = 2; i + 1 < count; i += 2) {
        const std::string name = arguments[i];
        if (name == "--steps")
            options.steps = std::atoi(arguments[i + 1]);
        else if (name == "--rounds")
            options.rounds = std::atoi(arguments[i + 1]);
        options.losesMessages |= name == "--seed-fault";
    }
    return options;
}

} // namespace

int main(int count, char** arguments)
{
    alarm(kPatience);
    const COptions options = parseOptions(count, arguments);
    const Copies copies = {CCopy(FIRST_COPY), CCopy(SECOND_COPY)};
    drawAlone(copies, options);
    tryAllOrders(copies, options.steps);
    takeTurns(copies);
    goOnAtOnce(copies, options);
    return 0;
}
