// SPDX-License-Identifier: MIT
/// @file
/// A Qt message handler that discards the messages of threads which draw, and passes on all others.
///
/// Qt has one handler for the whole process, and offers nothing but to exchange it. A host may do
/// so at any time, in any thread, and may keep what it got: to pass messages on to it, or to put it
/// back. So:
///
/// - The filter is in force only while a thread of the process draws. A host that exchanges the
///   handler at other times meets nothing of the library's.
/// - The filter is many functions. Each stands for one handler of the host's, which it passes on
/// to,
///   and never for another one: what a host was given keeps its meaning, whenever it is called or
///   put back. None passes on to another of them, let alone to itself.
/// - A beginning rendering puts the filter in front of whatever is in force, a handler included
/// that
///   the host installed while another thread draws.
/// - The end of the last rendering puts the host's handler back: the one that the host wants by
/// then.
///   Once a host has exchanged handlers while pictures were drawn, a filter for it stays instead.
/// - A message passes each of these functions once. Where handlers of the host's pass messages on
/// in a
///   circle, it ends there.
///
/// What Qt's exchange leaves open: where hosts exchange handlers twice within the fraction of a
/// microsecond in which a rendering begins or ends, one of them may be given the filter of the
/// handler before the last, and pass the last one by.
///
/// A handler that the host installs *while* a thread draws gets what is left of that rendering's
/// messages: it was the host's last word.
#ifndef TOVANGL_API_MESSAGE_FILTER_H
#define TOVANGL_API_MESSAGE_FILTER_H

namespace tovangl {

/// Discards the Qt messages of the calling thread until endSilence(). Calls may nest.
void beginSilence();

/// Ends what the last beginSilence() of the calling thread began.
void endSilence();

} // namespace tovangl

#endif
