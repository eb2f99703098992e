// SPDX-License-Identifier: MIT
// A host that pushes handlers on top of each other and takes them away, at every moment at which
// another thread can come between the library's steps. What the process's handler is, and where a
// message would go, is computed here without Qt.
#include "process/CHandlerExchange.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <random>
#include <utility>
#include <vector>

namespace tovangl {
namespace {

constexpr std::size_t kHandlers = 6;

// Nothing calls these: they are names.
template <std::size_t number>
void hostHandler(QtMsgType, const QMessageLogContext&, const QString&)
{
    ADD_FAILURE() << number;
}

template <std::size_t number>
void filter(QtMsgType, const QMessageLogContext&, const QString&)
{
    ADD_FAILURE() << number;
}

template <std::size_t... numbers>
std::array<QtMessageHandler, sizeof...(numbers)> hostHandlersOf(std::index_sequence<numbers...>)
{
    return {hostHandler<numbers>...};
}

template <std::size_t... numbers>
std::array<QtMessageHandler, sizeof...(numbers)> filtersOf(std::index_sequence<numbers...>)
{
    return {filter<numbers>...};
}

enum class Act
{
    Push,
    Pop
};
using Acts = std::vector<Act>;

// The process, its host and the library in it.
class CProcess
{
public:
    CProcess()
        : m_filters{filtersOf(std::make_index_sequence<CMessageFilters::kCount>())}
        , m_exchange(m_filters, exchangeInCurrent, timeInCurrent)
    {
        current = this;
    }
    ~CProcess() { current = nullptr; }
    Q_DISABLE_COPY(CProcess)

    // What the host does right before the step of that number from now on, and before each that
    // follows. A step is an exchange of handlers, or a look at the clock.
    void interrupt(int step, std::vector<Acts> acts)
    {
        m_stepsUntilActs = step;
        m_acts = std::move(acts);
        m_nextActs = m_acts.cbegin();
    }
    void putFilterInFront() { m_exchange.putFilterInFront(); }
    void takeFilterAway() { m_exchange.takeFilterAway(); }
    void act(const Acts& acts)
    {
        for (const Act act : acts) {
            if (act == Act::Push && m_top + 1 < kHandlers) {
                m_previous[m_top] = std::exchange(m_inForce, m_hostHandlers[m_top + 1]);
                ++m_top;
            }
            if (act == Act::Pop && m_top > 0) {
                --m_top;
                m_inForce = m_previous[m_top];
            }
        }
    }
    void popAll() { act(Acts(kHandlers, Act::Pop)); }
    [[nodiscard]] QtMessageHandler inForce() const { return m_inForce; }
    [[nodiscard]] QtMessageHandler topHandler() const { return m_hostHandlers[m_top]; }
    // What the host got when it pushed its first handler on that which was there before.
    [[nodiscard]] QtMessageHandler firstPrevious() const { return m_previous[0]; }

    // Whether a message reaches each handler that the host has pushed, from the last to the first.
    [[nodiscard]] bool isInOrder() const
    {
        QtMessageHandler handler = m_inForce;
        for (std::size_t number = m_top + 1; number-- > 0;) {
            if (behind(handler) != m_hostHandlers[number])
                return false;
            handler = number > 0 ? m_previous[number - 1] : nullptr;
        }
        return true;
    }
    // Whether a message ends, and the host's first handler sees it. It may have to wait for a
    // filter that has no handler yet.
    [[nodiscard]] bool reachesFirstHandler() const
    {
        std::array<bool, kHandlers> hasSeen = {};
        QtMessageHandler handler = behind(m_inForce);
        while (handler && handler != m_hostHandlers[0]) {
            const std::size_t number = numberOf(handler);
            if (std::exchange(hasSeen[number], true))
                return false;
            handler = behind(m_previous[number - 1]);
        }
        return true;
    }
    // Whether that was so at each moment at which the host acted between two steps.
    [[nodiscard]] bool hasAlwaysReachedFirstHandler() const { return m_hasReachedFirstHandler; }
    // The host's handler that is behind a filter, or the handler itself.
    [[nodiscard]] QtMessageHandler behind(QtMessageHandler handler) const
    {
        const auto& functions = m_filters.functions;
        const auto found = std::find(functions.begin(), functions.end(), handler);
        if (found == functions.end())
            return handler;
        return m_filters.hostHandlers[static_cast<std::size_t>(found - functions.begin())];
    }

private:
    static QtMessageHandler exchangeInCurrent(QtMessageHandler handler)
    {
        return current->exchange(handler);
    }
    static CHandlerExchange::Clock::time_point timeInCurrent()
    {
        current->step();
        return current->m_time;
    }

    QtMessageHandler exchange(QtMessageHandler handler)
    {
        step();
        return std::exchange(m_inForce, handler);
    }
    void step()
    {
        if (m_stepsUntilActs-- <= 0 && m_nextActs != m_acts.cend()) {
            m_time += std::chrono::milliseconds(1);
            act(*m_nextActs++);
            m_hasReachedFirstHandler &= reachesFirstHandler();
        }
    }
    [[nodiscard]] std::size_t numberOf(QtMessageHandler hostHandler) const
    {
        const auto found = std::find(m_hostHandlers.begin(), m_hostHandlers.end(), hostHandler);
        return static_cast<std::size_t>(found - m_hostHandlers.begin());
    }

    static CProcess* current;

    std::array<QtMessageHandler, kHandlers> m_hostHandlers =
        hostHandlersOf(std::make_index_sequence<kHandlers>());
    QtMessageHandler m_inForce = m_hostHandlers[0];
    std::size_t m_top = 0;
    std::array<QtMessageHandler, kHandlers> m_previous = {}; // of the handler above
    CHandlerExchange::Clock::time_point m_time;
    CMessageFilters m_filters;
    CHandlerExchange m_exchange;
    int m_stepsUntilActs = -1;
    std::vector<Acts> m_acts;
    std::vector<Acts>::const_iterator m_nextActs = m_acts.cbegin();
    bool m_hasReachedFirstHandler = true;
};

CProcess* CProcess::current = nullptr;

const Acts kPushTwo = {Act::Push, Act::Push};
const Acts kPushAndPop = {Act::Push, Act::Pop};
const std::array<Acts, 7> kAllActs = {Acts{},
                                      Acts{Act::Push},
                                      kPushTwo,
                                      kPushAndPop,
                                      Acts{Act::Pop},
                                      Acts{Act::Pop, Act::Push},
                                      Acts{Act::Push, Act::Push, Act::Pop}};

// After it, a host has exchanged handlers while a picture was drawn, and has two above its first.
void contest(CProcess& process)
{
    process.putFilterInFront();
    process.act({Act::Push});
    process.putFilterInFront();
    process.act({Act::Push});
    process.putFilterInFront();
}

TEST(HandlerExchange, PutsAFilterInFrontAndTakesItAway)
{
    CProcess process;
    const QtMessageHandler host = process.inForce();
    process.putFilterInFront();
    EXPECT_NE(process.inForce(), host);
    process.takeFilterAway();
    EXPECT_EQ(process.inForce(), host);
}

TEST(HandlerExchange, LeavesAFilterInForceOnceAHostHasExchangedHandlers)
{
    CProcess process;
    contest(process);
    process.takeFilterAway();
    EXPECT_NE(process.inForce(), process.topHandler());
}

TEST(HandlerExchange, PutsAFilterInFrontOfWhateverTheHostHasInForce)
{
    CProcess process;
    contest(process);
    process.act(kPushTwo);
    process.putFilterInFront();
    EXPECT_NE(process.inForce(), process.topHandler());
    EXPECT_TRUE(process.isInOrder());
}

// The moments at which another thread can come between two steps.
constexpr int kMoments = 9;

TEST(HandlerExchange, KeepsTheOrderOfHandlersThatComeInBetween)
{
    for (int moment = 0; moment < kMoments; ++moment) {
        for (std::size_t number = 0; number < kAllActs.size(); ++number) {
            for (const bool isContested : {false, true}) {
                for (const bool isBeginning : {false, true}) {
                    CProcess process;
                    if (isContested)
                        contest(process);
                    else if (!isBeginning)
                        process.putFilterInFront();
                    process.interrupt(moment, {kAllActs[number]});
                    if (isBeginning)
                        process.putFilterInFront();
                    else
                        process.takeFilterAway();
                    EXPECT_TRUE(process.isInOrder()) << moment << ' ' << number << isContested;
                    process.popAll();
                    EXPECT_TRUE(process.isInOrder()) << moment << ' ' << number << isContested;
                }
            }
        }
    }
}

// A busy machine can stop a thread between any two of its steps.
TEST(HandlerExchange, KeepsTheOrderOfHandlersThatComeInBetweenTwoStepsAndAgainBetweenTheNextTwo)
{
    for (std::size_t number = 0; number < kAllActs.size() * kAllActs.size(); ++number) {
        for (int moment = 0; moment < kMoments; ++moment) {
            for (const Acts& before : {Acts{}, kPushTwo}) {
                SCOPED_TRACE(::testing::Message() << before.size() << moment << ' ' << number);
                CProcess process;
                contest(process);
                process.act(before);
                process.interrupt(moment, {kAllActs[number % kAllActs.size()],
                                           kAllActs[number / kAllActs.size()]});
                process.putFilterInFront();
                EXPECT_TRUE(process.hasAlwaysReachedFirstHandler());
                EXPECT_TRUE(process.isInOrder());
                process.popAll();
                EXPECT_TRUE(process.isInOrder());
            }
        }
    }
}

TEST(HandlerExchange, KeepsTheOrderOfHandlersForEver)
{
    CProcess process;
    contest(process);
    std::mt19937 random(7);
    const auto someActs = [&random] { return kAllActs[random() % kAllActs.size()]; };
    for (int step = 0; step < 100'000; ++step) {
        process.act(someActs());
        if (random() % 1000 == 0)
            process.interrupt(static_cast<int>(random() % kMoments),
                              {someActs(), someActs(), someActs(), someActs()});
        if (random() % 2 == 0)
            process.putFilterInFront();
        else
            process.takeFilterAway();
        ASSERT_TRUE(process.isInOrder()) << step;
        ASSERT_TRUE(process.hasAlwaysReachedFirstHandler()) << step;
    }
}

// A handler that came and went while the library was interrupted can still be running, and passes
// its message on to a filter that has been replaced.
TEST(HandlerExchange, KeepsTheMeaningOfAFilterThatWasGivenBackForMessagesThatAreUnderWay)
{
    for (int moment = 0; moment < kMoments; ++moment) {
        CProcess process;
        const QtMessageHandler host = process.inForce();
        contest(process);
        process.popAll();
        process.interrupt(moment, {kPushAndPop});
        process.putFilterInFront();
        const QtMessageHandler previous = process.firstPrevious();
        process.act(kPushTwo);
        for (int call = 0; call < 3; ++call) {
            process.interrupt(0, {Acts{}});
            process.putFilterInFront();
            EXPECT_EQ(process.behind(previous), host) << moment << ' ' << call;
        }
    }
}

TEST(HandlerExchange, StillPutsAFilterInFrontAfterThousandsOfExchangesAndInterruptions)
{
    CProcess process;
    for (int i = 0; i < 10'000; ++i) {
        process.act(kPushTwo);
        process.interrupt(1, {kPushAndPop});
        process.putFilterInFront();
        process.popAll();
        process.putFilterInFront();
    }
    EXPECT_NE(process.inForce(), process.topHandler());
    process.act(kPushTwo);
    process.putFilterInFront();
    EXPECT_NE(process.inForce(), process.topHandler());
}

// Filters of which there are no more: a host that comes in between the two exchanges of a call
// keeps one each time.
TEST(HandlerExchange, KeepsTheOrderOfHandlersWhenItHasUsedUpItsFilters)
{
    constexpr int kMostFiltersOfACall = 6;
    for (const int moment : {1, 3}) {
        for (int rests = 0; rests < kMostFiltersOfACall; ++rests) {
            CProcess process;
            for (int i = 0; i < rests; ++i) {
                process.interrupt(0, {Acts{}});
                process.putFilterInFront();
            }
            for (std::size_t i = 0; i < CMessageFilters::kCount; ++i) {
                process.interrupt(moment, {kPushTwo});
                process.putFilterInFront();
                ASSERT_TRUE(process.isInOrder()) << moment << ' ' << rests << ' ' << i;
                process.popAll();
            }
        }
    }
}

} // namespace
} // namespace tovangl
