// SPDX-License-Identifier: MIT
// Keeps Qt's messages about the library's own doings out of the host's output.
#include "api/CMessageSilencer.h"

#include <atomic>
#include <mutex>

namespace tovangl {

namespace {

std::mutex silencerMutex;
int silencerCount = 0;
std::atomic<QtMessageHandler> hostHandler{nullptr};
thread_local int silencedDepth = 0;

void filterMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const QtMessageHandler handler = hostHandler;
    if (silencedDepth == 0 && handler)
        handler(type, context, message);
}

} // namespace

CMessageSilencer::CMessageSilencer()
{
    ++silencedDepth;
    const std::lock_guard<std::mutex> lock(silencerMutex);
    if (silencerCount++ == 0)
        hostHandler = qInstallMessageHandler(filterMessage);
}

CMessageSilencer::~CMessageSilencer()
{
    --silencedDepth;
    const std::lock_guard<std::mutex> lock(silencerMutex);
    if (--silencerCount > 0)
        return;
    // A handler that the host installed meanwhile stays.
    const QtMessageHandler current = qInstallMessageHandler(hostHandler);
    if (current != filterMessage)
        qInstallMessageHandler(current);
}

} // namespace tovangl
