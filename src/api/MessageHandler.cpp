// SPDX-License-Identifier: MIT
// Silences the process's Qt messages.
#include "core/qt_versions.h"
#include <tovangl/MessageHandler.h>

namespace tovangl {

void installEmptyMsgHandler()
{
    qt::installMessageHandler(qt::discardMessage);
}

} // namespace tovangl
