// SPDX-License-Identifier: MIT
/// @file
/// Lets a long-running program clean up when it receives a signal to end.
#ifndef TOVANGL_COMMON_INTERRUPTION_H
#define TOVANGL_COMMON_INTERRUPTION_H

namespace tovangl::program {

/// From now on, signals that end a program are only noted; a second one of the same kind ends it.
void noteInterruptions();

/// Throws CFailure if a signal was noted.
void stopIfInterrupted();

} // namespace tovangl::program

#endif
