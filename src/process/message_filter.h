// SPDX-License-Identifier: MIT
/// @file
/// A Qt message handler that discards the messages of drawing threads and passes on all others.
///
/// Qt has one handler for the whole process, and can only exchange it. A host can do so at any
/// time, in any thread, and can keep the previous handler: to pass messages on to it, or to restore
/// it. So:
///
/// - The filter is in force only while a thread of the process draws. A host that exchanges the
///   handler at other times never gets a function of the library's.
/// - The filter consists of many functions. Each passes on to one fixed handler of the host's, so
///   that a previous handler keeps its meaning whenever the host calls or restores it. None passes
///   on to another filter function or to itself.
/// - A rendering that begins puts a filter in front of the current handler, even if the host
///   installed that handler while another thread draws.
/// - The end of the last rendering restores the host's handler. Once a host has exchanged handlers
///   while pictures were drawn, a filter stays in force instead.
/// - A message reaches each handler through a filter once. If handlers of the host's pass messages
///   on in a loop, it ends there.
///
/// Restoring the host's handler leaves one gap, in whatever order handlers are exchanged, because
/// Qt tells which one was in force only after another one is. If a host exchanges handlers within
/// the fraction of a microsecond between the two exchanges by which the library restores its
/// handler, and again right after them, its last handler gets the one before as the previous one,
/// and so bypasses one. From then on filters stay in force, and such moments do no harm.
///
/// A handler that the host installs *while* a thread draws gets the rest of that rendering's
/// messages, because it is the host's latest choice.
///
/// When the process ends, a filter stays in force if several threads have drawn: Qt 5 complains
/// about each that ends after Qt's tables.
#ifndef TOVANGL_PROCESS_MESSAGE_FILTER_H
#define TOVANGL_PROCESS_MESSAGE_FILTER_H

namespace tovangl {

/// Discards the Qt messages of the calling thread until endSilence(). Calls can nest.
void beginSilence();

/// Ends the last beginSilence() of the calling thread.
void endSilence();

/// Whether the calling thread is between the two.
[[nodiscard]] bool isSilenced();

/// Discards, until the process has ended, the messages of all threads that were ever silent, but
/// for the calling one, which ends the process.
void silenceOtherThreads();

} // namespace tovangl

#endif
