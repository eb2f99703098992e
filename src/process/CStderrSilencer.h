// SPDX-License-Identifier: MIT
/// @file
/// Keeps fontconfig's complaints out of the host's output.
#ifndef TOVANGL_PROCESS_CSTDERRSILENCER_H
#define TOVANGL_PROCESS_CSTDERRSILENCER_H

#include <QtGlobal>

#include <cstdio>
#include <mutex>

namespace tovangl {

/// Discards what the calling thread writes to the C stream stderr while this object lives. What
/// other threads write goes where it went before. A second object waits for the end of the first.
///
/// Meanwhile the variable stderr is another stream, without a descriptor. It is never closed,
/// because other threads may still be writing to it.
class CStderrSilencer
{
public:
    CStderrSilencer();
    ~CStderrSilencer();
    Q_DISABLE_COPY(CStderrSilencer)

private:
    const std::lock_guard<std::mutex> m_lock; // one object at a time
    std::FILE* m_hostStream;
    std::FILE* m_stream; // null if there is no memory for it
};

} // namespace tovangl

#endif
