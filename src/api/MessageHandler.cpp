// SPDX-License-Identifier: MIT
// Silences the process's Qt messages.
#include <tovangl/MessageHandler.h>

#include <QtGlobal>

namespace tovangl {

namespace {

void discardMessage(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

void installEmptyMsgHandler()
{
    qInstallMessageHandler(discardMessage);
}

} // namespace tovangl
