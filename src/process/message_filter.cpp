// SPDX-License-Identifier: MIT
// A Qt message handler that discards the messages of drawing threads and passes on all others.
#include "process/message_filter.h"

#include "process/CHandlerExchange.h"

#include <QtGlobal>

#include <array>
#include <atomic>
#include <cstddef>
#include <mutex>
#include <thread>
#include <utility>

namespace tovangl {

namespace {

extern CMessageFilters filters;

thread_local int silencedScopes = 0;
thread_local bool wasSilenced = false;
std::atomic<bool> areOthersSilent{false};

// --- passing a message on

// A message of the calling thread on its way through a filter to a handler of the host's, inside
// the passage on which the thread has come there.
class CPassage
{
public:
    explicit CPassage(QtMessageHandler hostHandler)
        : m_hostHandler(hostHandler)
        , m_outer(innermost)
    {
        innermost = this;
    }
    ~CPassage() { innermost = m_outer; }
    Q_DISABLE_COPY(CPassage)

    static bool leadsTo(QtMessageHandler hostHandler)
    {
        const CPassage* passage = innermost;
        while (passage && passage->m_hostHandler != hostHandler)
            passage = passage->m_outer;
        return passage != nullptr;
    }

private:
    static thread_local const CPassage* innermost;

    QtMessageHandler m_hostHandler;
    const CPassage* m_outer;
};

thread_local const CPassage* CPassage::innermost = nullptr;

// Waits for another thread that is between two exchanges of the handler.
QtMessageHandler waitForHostHandler(std::size_t filter)
{
    QtMessageHandler handler = filters.hostHandlers[filter];
    while (!handler) {
        std::this_thread::yield();
        handler = filters.hostHandlers[filter];
    }
    return handler;
}

void passOn(std::size_t filter, QtMsgType type, const QMessageLogContext& context,
            const QString& message)
{
    if (silencedScopes > 0 || (wasSilenced && areOthersSilent))
        return;
    const QtMessageHandler hostHandler = waitForHostHandler(filter);
    if (CPassage::leadsTo(hostHandler))
        return;
    const CPassage passage(hostHandler);
    hostHandler(type, context, message);
}

template <std::size_t filter>
void filterMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    passOn(filter, type, context, message);
}

template <std::size_t... numbers>
constexpr std::array<QtMessageHandler, CMessageFilters::kCount>
makeFilters(std::index_sequence<numbers...>)
{
    return {filterMessage<numbers>...};
}

CMessageFilters filters = {makeFilters(std::make_index_sequence<CMessageFilters::kCount>())};

// --- what is in force

std::mutex exchangeMutex;
CHandlerExchange handlerExchange(filters, qInstallMessageHandler, CHandlerExchange::Clock::now);
int scopesOfAllThreads = 0;
int silencedThreads = 0; // ever

} // namespace

void beginSilence()
{
    ++silencedScopes;
    const std::lock_guard<std::mutex> lock(exchangeMutex);
    ++scopesOfAllThreads;
    handlerExchange.putFilterInFront();
    if (!wasSilenced && !areOthersSilent) {
        wasSilenced = true;
        ++silencedThreads;
    }
}

void endSilence()
{
    --silencedScopes;
    const std::lock_guard<std::mutex> lock(exchangeMutex);
    if (--scopesOfAllThreads == 0)
        handlerExchange.takeFilterAway();
}

void silenceOtherThreads()
{
    const std::lock_guard<std::mutex> lock(exchangeMutex);
    const int otherThreads = silencedThreads - (wasSilenced ? 1 : 0);
    if (areOthersSilent || otherThreads == 0)
        return;
    wasSilenced = false;
    areOthersSilent = true;
    ++scopesOfAllThreads;
    handlerExchange.putFilterInFront();
}

bool isSilenced()
{
    return silencedScopes > 0;
}

} // namespace tovangl
