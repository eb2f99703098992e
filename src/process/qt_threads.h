// SPDX-License-Identifier: MIT
/// @file
/// Tells which Qt runs, and hides what differs between 5.15 and 6 in threads. No other file in this
/// folder tests the Qt version.
#ifndef TOVANGL_PROCESS_QT_THREADS_H
#define TOVANGL_PROCESS_QT_THREADS_H

#include <QtGlobal>

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QThreadPool>

#include <system_error>
#include <thread>
#endif

#include <cstddef>

namespace tovangl {
namespace qt {

/// The version that runs, which can be later than the one that the library was built with.
inline const char* runningVersion()
{
    return qVersion();
}

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
inline constexpr std::size_t kMostThreadsOfAPicture = 0; // beside the caller's

inline void endPaintThreads() {}

inline bool canStartPaintThreads()
{
    return true;
}
#else
/// Each of them waits on a descriptor of its own. There can be one for each processor; more than
/// these are not worth refusing a picture for.
inline constexpr std::size_t kMostThreadsOfAPicture = 4;

/// Ends the idle threads of the pool that does antialiased fills; the next fill starts new ones. It
/// waits long enough for a thread that is just finishing a fill, even where every processor has
/// other things to do, but no longer for one that works for the host.
inline void endPaintThreads()
{
    constexpr int kTimeToBecomeIdle = 1000; // milliseconds
    if (QThreadPool* pool = QThreadPool::globalInstance())
        pool->waitForDone(kTimeToBecomeIdle);
}

/// Whether the process can have one more thread. A fill waits for ever for a thread of the pool
/// that cannot be started.
inline bool canStartPaintThreads()
{
    try {
        std::thread([] {}).join();
    } catch (const std::system_error&) {
        return false;
    }
    return true;
}
#endif

} // namespace qt
} // namespace tovangl

#endif
