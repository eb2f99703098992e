// SPDX-License-Identifier: MIT
// Keeps Qt's messages about the library's own doings out of the host's output.
#include "api/CMessageSilencer.h"

#include "core/qt_versions.h"

#include <atomic>
#include <mutex>

namespace tovangl {

namespace {

std::mutex silencerMutex;
int silencerCount = 0;
std::atomic<qt::MessageHandler> hostHandler{nullptr};
thread_local int silencedDepth = 0;

// The types behind the message's own differ between versions of Qt.
template <typename... Message>
void filterMessage(QtMsgType type, Message... message)
{
    const qt::MessageHandler handler = hostHandler;
    if (silencedDepth == 0 && handler)
        handler(type, message...);
}

} // namespace

CMessageSilencer::CMessageSilencer()
{
    ++silencedDepth;
    const std::lock_guard<std::mutex> lock(silencerMutex);
    if (silencerCount++ == 0)
        hostHandler = qt::installMessageHandler(filterMessage);
}

CMessageSilencer::~CMessageSilencer()
{
    --silencedDepth;
    const std::lock_guard<std::mutex> lock(silencerMutex);
    if (--silencerCount > 0)
        return;
    // A handler that the host installed meanwhile stays.
    const qt::MessageHandler own = filterMessage;
    const qt::MessageHandler current = qt::installMessageHandler(hostHandler);
    if (current != own)
        qt::installMessageHandler(current);
}

} // namespace tovangl
