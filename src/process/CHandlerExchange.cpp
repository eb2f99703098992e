// SPDX-License-Identifier: MIT
// Puts filters in front of the process's Qt message handler, and takes them away.
#include "process/CHandlerExchange.h"

#include <optional>
#include <utility>

namespace tovangl {

namespace {

using namespace std::chrono_literals;

// Takes a fraction of a microsecond, unless the thread is interrupted.
constexpr auto kLongExchange = 10us;
constexpr int kMostAttempts = 3;
// Longer than any message is under way.
constexpr auto kRest = 1s;

} // namespace

// When the filters are used up, the current handler stays: a superfluous message is better than a
// lost handler.
void CHandlerExchange::settle(bool isDrawing)
{
    if (CMessageFilters::kCount - m_used < kReserve)
        return;
    const Clock::time_point begin = m_now();
    const QtMessageHandler host = putProbeInFront();
    if (isDrawing || m_isContested)
        replaceProbeByFilter(filterOf(host));
    else
        replaceProbeByHost(host);
    const Clock::time_point end = m_now();
    if (end - begin > kLongExchange)
        letRest(std::exchange(m_probe, takeFilter(end)), end);
}

// If the library is interrupted, a host may exchange handlers meanwhile. The probe is right even
// then; the filter that was to take its place might not be, so all begins again.
QtMessageHandler CHandlerExchange::putProbeInFront()
{
    std::optional<std::size_t> lastProbe;
    for (int attempt = 1;; ++attempt) {
        const Clock::time_point begin = m_now();
        const QtMessageHandler found = putProbeInForce();
        const QtMessageHandler host = hostHandlerOf(found);
        m_filters.hostHandlers[m_probe] = host;
        m_isContested = m_isContested || (m_inForce && found != m_inForce);
        const Clock::time_point end = m_now();
        if (lastProbe)
            release(*lastProbe, found, end);
        if (end - begin <= kLongExchange || attempt == kMostAttempts)
            return host;
        m_inForce = m_filters.functions[m_probe];
        lastProbe = std::exchange(m_probe, takeFilter(end));
    }
}

// A host that has installed a handler on top of a probe keeps that probe as the previous one.
void CHandlerExchange::release(std::size_t probe, QtMessageHandler found, Clock::time_point now)
{
    if (found == m_filters.functions[probe])
        letRest(probe, now);
    else
        m_isForGood[probe] = true;
}

// Qt returns the current handler only in exchange for another one. The probe has no handler yet:
// messages wait, because the handler of the last rendering may no longer exist.
QtMessageHandler CHandlerExchange::putProbeInForce()
{
    const QtMessageHandler probe = m_filters.functions[m_probe];
    const QtMessageHandler last = m_filters.hostHandlers[m_probe].exchange(nullptr);
    const QtMessageHandler found = m_exchange(probe);
    if (found == probe)
        m_filters.hostHandlers[m_probe] = last;
    return found;
}

// A host may exchange handlers just before, and install one on top of the filter right after. The
// filter then stands for what was in force in between: with its old meaning, a handler that the
// host has taken away and installed again could meet itself behind it. Messages wait at the filter
// until that is known.
void CHandlerExchange::replaceProbeByFilter(std::size_t filter)
{
    const QtMessageHandler host = m_filters.hostHandlers[filter].exchange(nullptr);
    m_inForce = m_filters.functions[filter];
    const QtMessageHandler bypassed = replaceProbe(m_inForce);
    m_filters.hostHandlers[filter] = bypassed ? bypassed : host;
}

void CHandlerExchange::replaceProbeByHost(QtMessageHandler host)
{
    m_inForce = nullptr;
    replaceProbe(host);
}

// A host may have installed its own handler just before, and got the probe in return. That handler
// must come into force, behind a filter that no host knows, and the probe must keep its meaning.
// Returns the handler instead of which a host has already got the wanted one as the previous one.
QtMessageHandler CHandlerExchange::replaceProbe(QtMessageHandler wanted)
{
    const QtMessageHandler missed = m_exchange(wanted);
    if (missed == m_filters.functions[m_probe])
        return nullptr;
    m_isContested = true;
    keepProbe();
    if (missed == wanted)
        return nullptr;
    const QtMessageHandler missedHost = hostHandlerOf(missed);
    const QtMessageHandler found = putProbeInForce();
    const bool isBypassed = found != wanted;
    m_filters.hostHandlers[m_probe] = isBypassed ? hostHandlerOf(found) : missedHost;
    keepProbe();
    return isBypassed ? missedHost : nullptr;
}

void CHandlerExchange::keepProbe()
{
    m_isForGood[m_probe] = true;
    m_probe = takeFilter(m_now());
}

// While a filter was in force, a host may have installed a handler and taken it away again. A
// message that is on its way through that handler still comes to the filter, and must find its
// meaning there.
void CHandlerExchange::letRest(std::size_t filter, Clock::time_point now)
{
    m_resting[m_rests % m_resting.size()] = {filter, now};
    ++m_rests;
}

std::size_t CHandlerExchange::takeFilter(Clock::time_point now)
{
    const std::size_t resting = m_rests - m_wakes;
    const CRestingFilter& oldest = m_resting[m_wakes % m_resting.size()];
    if (resting == 0 || (resting < m_resting.size() && now - oldest.since < kRest))
        return m_used++;
    ++m_wakes;
    return oldest.number;
}

QtMessageHandler CHandlerExchange::hostHandlerOf(QtMessageHandler handler) const
{
    for (std::size_t filter = 0; filter < m_used; ++filter) {
        if (m_filters.functions[filter] == handler)
            return m_filters.hostHandlers[filter];
    }
    return handler;
}

std::size_t CHandlerExchange::filterOf(QtMessageHandler host)
{
    for (std::size_t filter = 0; filter < m_used; ++filter) {
        if (m_isForGood[filter] && m_filters.hostHandlers[filter] == host)
            return filter;
    }
    const std::size_t filter = m_used++;
    m_isForGood[filter] = true;
    m_filters.hostHandlers[filter] = host;
    return filter;
}

} // namespace tovangl
