// SPDX-License-Identifier: MIT
// A Qt message handler that discards the messages of drawing threads and passes on all others.
#include "api/message_filter.h"

#include <QtGlobal>

#include <array>
#include <atomic>
#include <cstddef>
#include <mutex>
#include <thread>
#include <utility>

namespace tovangl {

namespace {

// The process needs one for each handler that a host has in force while it draws, which are few,
// and one or two for each time that a host exchanges the handler within the same fraction of a
// microsecond as the library.
constexpr std::size_t kFilterCount = 256;

// The handler that the filter of the same number passes on to; null until that is known.
std::array<std::atomic<QtMessageHandler>, kFilterCount> hostHandlers;

thread_local int silencedScopes = 0;

// --- passing a message on

// A filter that the calling thread is running, and the one that called it.
class CPassage
{
public:
    explicit CPassage(std::size_t filter)
        : m_filter(filter)
        , m_outer(innermost)
    {
        innermost = this;
    }
    ~CPassage() { innermost = m_outer; }
    Q_DISABLE_COPY(CPassage)

    static bool leadsThrough(std::size_t filter)
    {
        const CPassage* passage = innermost;
        while (passage && passage->m_filter != filter)
            passage = passage->m_outer;
        return passage != nullptr;
    }

private:
    static thread_local const CPassage* innermost;

    std::size_t m_filter;
    const CPassage* m_outer;
};

thread_local const CPassage* CPassage::innermost = nullptr;

// Waits for another thread that is between two exchanges of the handler.
QtMessageHandler waitForHostHandler(std::size_t filter)
{
    QtMessageHandler handler = hostHandlers[filter];
    while (!handler) {
        std::this_thread::yield();
        handler = hostHandlers[filter];
    }
    return handler;
}

void passOn(std::size_t filter, QtMsgType type, const QMessageLogContext& context,
            const QString& message)
{
    if (silencedScopes > 0 || CPassage::leadsThrough(filter))
        return;
    const CPassage passage(filter);
    waitForHostHandler(filter)(type, context, message);
}

template <std::size_t filter>
void filterMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    passOn(filter, type, context, message);
}

template <std::size_t... numbers>
constexpr std::array<QtMessageHandler, kFilterCount> makeFilters(std::index_sequence<numbers...>)
{
    return {filterMessage<numbers>...};
}

constexpr auto kFilters = makeFilters(std::make_index_sequence<kFilterCount>());

// --- what is in force

// Knows which filter stands for which handler. Only one thread at a time may use it.
class CHandlerExchange
{
public:
    void settle(bool isDrawing);

private:
    static constexpr std::size_t kReserve = 3; // filters that one call can use up

    [[nodiscard]] QtMessageHandler putProbeInForce();
    void replaceProbe(QtMessageHandler wanted);
    void takeNextProbe() { m_probe = m_used++; }
    [[nodiscard]] QtMessageHandler hostHandlerOf(QtMessageHandler handler) const;
    [[nodiscard]] QtMessageHandler filterOf(QtMessageHandler host);

    std::size_t m_probe = 0;              // the filter that no host was ever given
    std::size_t m_used = 1;               // filters, the probe included
    QtMessageHandler m_inForce = nullptr; // the filter that the library installed last, if any
    bool m_isContested = false;
};

// Once a host has exchanged handlers while pictures were drawn, a filter stays in force from then
// on. Every previous handler that the host gets is then a filter, so its handlers cannot form a
// loop in which a message would run for ever. When the filters are used up, the current handler
// stays: a superfluous message is better than a lost handler.
void CHandlerExchange::settle(bool isDrawing)
{
    if (kFilterCount - m_used < kReserve)
        return;
    const QtMessageHandler found = putProbeInForce();
    const QtMessageHandler host = hostHandlerOf(found);
    hostHandlers[m_probe] = host;
    m_isContested = m_isContested || (m_inForce && found != m_inForce);
    m_inForce = isDrawing || m_isContested ? filterOf(host) : nullptr;
    replaceProbe(m_inForce ? m_inForce : host);
}

// Qt returns the current handler only in exchange for another one. The probe has no handler yet:
// messages wait, because the handler of the last rendering may no longer exist.
QtMessageHandler CHandlerExchange::putProbeInForce()
{
    const QtMessageHandler probe = kFilters[m_probe];
    const QtMessageHandler last = hostHandlers[m_probe].exchange(nullptr);
    const QtMessageHandler found = qInstallMessageHandler(probe);
    if (found == probe)
        hostHandlers[m_probe] = last;
    return found;
}

// A host may have installed its own handler just before, and got the probe in return. That handler
// must come into force, behind a filter that no host knows, and the probe must keep its meaning.
void CHandlerExchange::replaceProbe(QtMessageHandler wanted)
{
    const QtMessageHandler missed = qInstallMessageHandler(wanted);
    if (missed == kFilters[m_probe])
        return;
    m_isContested = true;
    takeNextProbe();
    const QtMessageHandler found = putProbeInForce();
    hostHandlers[m_probe] = hostHandlerOf(found == wanted ? missed : found);
    takeNextProbe();
}

QtMessageHandler CHandlerExchange::hostHandlerOf(QtMessageHandler handler) const
{
    for (std::size_t filter = 0; filter < m_used; ++filter) {
        if (kFilters[filter] == handler)
            return hostHandlers[filter];
    }
    return handler;
}

QtMessageHandler CHandlerExchange::filterOf(QtMessageHandler host)
{
    for (std::size_t filter = 0; filter < m_used; ++filter) {
        if (filter != m_probe && hostHandlers[filter] == host)
            return kFilters[filter];
    }
    hostHandlers[m_used] = host;
    return kFilters[m_used++];
}

std::mutex exchangeMutex;
CHandlerExchange handlerExchange;
int scopesOfAllThreads = 0;
constexpr bool kIsDrawing = true;

} // namespace

void beginSilence()
{
    ++silencedScopes;
    const std::lock_guard<std::mutex> lock(exchangeMutex);
    ++scopesOfAllThreads;
    handlerExchange.settle(kIsDrawing);
}

void endSilence()
{
    --silencedScopes;
    const std::lock_guard<std::mutex> lock(exchangeMutex);
    if (--scopesOfAllThreads == 0)
        handlerExchange.settle(!kIsDrawing);
}

} // namespace tovangl
