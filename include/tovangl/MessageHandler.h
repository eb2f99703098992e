// SPDX-License-Identifier: MIT
/// @file
/// Silences the process's Qt messages.
#ifndef TOVANGL_MESSAGEHANDLER_H
#define TOVANGL_MESSAGEHANDLER_H

#include <tovangl/Export.h>

namespace tovangl {

/// Installs a Qt message handler that discards every Qt debug, warning and critical message of the
/// process. It does not remember the handler that was installed before. Nothing is thrown.
TOVANGL_EXPORT void installEmptyMsgHandler();

} // namespace tovangl

#endif
