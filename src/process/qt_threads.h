// SPDX-License-Identifier: MIT
/// @file
/// Tells which Qt runs, and hides what differs between 5.15 and 6 in threads. No other file in this
/// folder tests the Qt version.
#ifndef TOVANGL_PROCESS_QT_THREADS_H
#define TOVANGL_PROCESS_QT_THREADS_H

#include <QtGlobal>

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QThreadPool>
#endif

namespace tovangl {
namespace qt {

/// The version that runs, which can be later than the one that the library was built with.
inline const char* runningVersion()
{
    return qVersion();
}

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
inline void endPaintThreads() {}
#else
/// Ends the idle threads of the pool that does antialiased fills; the next fill starts new ones. It
/// waits long enough for a thread that is just finishing a fill, even where every processor has
/// other things to do, but no longer for one that works for the host.
inline void endPaintThreads()
{
    constexpr int kTimeToBecomeIdle = 1000; // milliseconds
    if (QThreadPool* pool = QThreadPool::globalInstance())
        pool->waitForDone(kTimeToBecomeIdle);
}
#endif

} // namespace qt
} // namespace tovangl

#endif
