// SPDX-License-Identifier: MIT
/// @file
/// Keeps Qt's messages about the library's own work out of the host's output.
#ifndef TOVANGL_PROCESS_CMESSAGESILENCER_H
#define TOVANGL_PROCESS_CMESSAGESILENCER_H

#include <QtGlobal>

namespace tovangl {

/// Discards the Qt messages of the calling thread while this object lives. Those of other threads
/// go where they went before. Scopes can nest, and exist in many threads at once.
class CMessageSilencer
{
public:
    CMessageSilencer();
    ~CMessageSilencer();
    Q_DISABLE_COPY(CMessageSilencer)

    /// Discards, until the process has ended, the messages of all threads that ever had such a
    /// scope, but for the calling one.
    static void silenceOtherThreads();
};

} // namespace tovangl

#endif
