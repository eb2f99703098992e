// SPDX-License-Identifier: MIT
/// @file
/// Puts filters in front of the process's Qt message handler, and takes them away.
#ifndef TOVANGL_PROCESS_CHANDLEREXCHANGE_H
#define TOVANGL_PROCESS_CHANDLEREXCHANGE_H

#include <QtGlobal>

#include <array>
#include <atomic>
#include <chrono>
#include <cstddef>

namespace tovangl {

/// Functions that stand in front of handlers, and for each the handler that it passes on to; null
/// while that is not known yet, for which a message has to wait.
struct CMessageFilters
{
    // The process needs one for each handler that a host has in force while it draws, which are
    // few, and one or two for each time that a host exchanges the handler within the same fraction
    // of a microsecond as the library.
    static constexpr std::size_t kCount = 256;

    std::array<QtMessageHandler, kCount> functions;
    std::array<std::atomic<QtMessageHandler>, kCount> hostHandlers = {};
};

/// Knows which filter stands for which handler. Only one thread at a time may use it.
class CHandlerExchange
{
public:
    /// Puts a handler in force and returns the one that was, like qInstallMessageHandler().
    using Exchange = QtMessageHandler (*)(QtMessageHandler);
    using Clock = std::chrono::steady_clock;

    constexpr CHandlerExchange(CMessageFilters& filters, Exchange exchange,
                               Clock::time_point (*now)())
        : m_filters(filters)
        , m_exchange(exchange)
        , m_now(now)
    {}

    /// Puts a filter in front of the handler that is in force.
    void putFilterInFront() { settle(true); }
    /// Restores the handler that the host wants, unless a host has exchanged handlers while filters
    /// were in front of them. A filter stays in force from then on.
    ///
    /// Every previous handler that the host gets is then a filter, so its handlers cannot form a
    /// loop in which a message would run for ever.
    void takeFilterAway() { settle(false); }

private:
    static constexpr std::size_t kReserve = 6; // filters that one call can use up

    void settle(bool isDrawing);
    [[nodiscard]] QtMessageHandler putProbeInFront();
    void release(std::size_t probe, QtMessageHandler found, Clock::time_point now);
    [[nodiscard]] QtMessageHandler putProbeInForce();
    void replaceProbeByFilter(std::size_t filter);
    void replaceProbeByHost(QtMessageHandler host);
    QtMessageHandler replaceProbe(QtMessageHandler wanted);
    void keepProbe();
    void letRest(std::size_t filter, Clock::time_point now);
    [[nodiscard]] std::size_t takeFilter(Clock::time_point now);
    [[nodiscard]] QtMessageHandler hostHandlerOf(QtMessageHandler handler) const;
    [[nodiscard]] std::size_t filterOf(QtMessageHandler host);

    struct CRestingFilter
    {
        std::size_t number = 0;
        Clock::time_point since = {};
    };

    CMessageFilters& m_filters;
    Exchange m_exchange;
    Clock::time_point (*m_now)();
    std::size_t m_probe = 0;              // the filter that no host holds
    std::size_t m_used = 1;               // filters, the probe included
    QtMessageHandler m_inForce = nullptr; // the filter that the library installed last, if any
    bool m_isContested = false;
    std::array<bool, CMessageFilters::kCount> m_isForGood = {}; // whether its handler is the last
    std::array<CRestingFilter, 128> m_resting = {};             // a ring
    std::size_t m_rests = 0;                                    // so far
    std::size_t m_wakes = 0;                                    // likewise
};

} // namespace tovangl

#endif
