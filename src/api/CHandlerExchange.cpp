// SPDX-License-Identifier: MIT
// Puts filters in front of the process's Qt message handler, and takes them away.
#include "api/CHandlerExchange.h"

namespace tovangl {

namespace {

using namespace std::chrono_literals;

// Takes a fraction of a microsecond, unless the thread is interrupted.
constexpr auto kLongExchange = 10us;
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
    const QtMessageHandler found = putProbeInForce();
    const QtMessageHandler host = hostHandlerOf(found);
    m_filters.hostHandlers[m_probe] = host;
    m_isContested = m_isContested || (m_inForce && found != m_inForce);
    m_inForce = isDrawing || m_isContested ? filterOf(host) : nullptr;
    replaceProbe(m_inForce ? m_inForce : host);
    const Clock::time_point end = m_now();
    if (end - begin > kLongExchange)
        letProbeRest(end);
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

// A host may have installed its own handler just before, and got the probe in return. That handler
// must come into force, behind a filter that no host knows, and the probe must keep its meaning.
void CHandlerExchange::replaceProbe(QtMessageHandler wanted)
{
    const QtMessageHandler missed = m_exchange(wanted);
    if (missed == m_filters.functions[m_probe])
        return;
    m_isContested = true;
    keepProbe();
    const QtMessageHandler found = putProbeInForce();
    m_filters.hostHandlers[m_probe] = hostHandlerOf(found == wanted ? missed : found);
    keepProbe();
}

void CHandlerExchange::keepProbe()
{
    m_isForGood[m_probe] = true;
    takeNewProbe();
}

// While the probe was in force, a host may have installed a handler and taken it away again. A
// message that is on its way through that handler still comes to the probe, and must find its
// meaning there.
void CHandlerExchange::letProbeRest(Clock::time_point now)
{
    CRestingFilter& place = m_resting[m_rests % m_resting.size()];
    const CRestingFilter oldest = place;
    const bool isPlaceEmpty = m_rests < m_resting.size();
    if (!isPlaceEmpty && now - oldest.since < kRest)
        return;
    place = {m_probe, now};
    ++m_rests;
    if (isPlaceEmpty)
        takeNewProbe();
    else
        m_probe = oldest.number;
}

QtMessageHandler CHandlerExchange::hostHandlerOf(QtMessageHandler handler) const
{
    for (std::size_t filter = 0; filter < m_used; ++filter) {
        if (m_filters.functions[filter] == handler)
            return m_filters.hostHandlers[filter];
    }
    return handler;
}

QtMessageHandler CHandlerExchange::filterOf(QtMessageHandler host)
{
    for (std::size_t filter = 0; filter < m_used; ++filter) {
        if (m_isForGood[filter] && m_filters.hostHandlers[filter] == host)
            return m_filters.functions[filter];
    }
    const std::size_t filter = m_used++;
    m_isForGood[filter] = true;
    m_filters.hostHandlers[filter] = host;
    return m_filters.functions[filter];
}

} // namespace tovangl
