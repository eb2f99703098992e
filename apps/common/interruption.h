// SPDX-License-Identifier: MIT
/// @file
/// Lets a program that runs for long clean up when it is told to end.
#ifndef TOVANGL_COMMON_INTERRUPTION_H
#define TOVANGL_COMMON_INTERRUPTION_H

namespace tovangl::program {

/// From now on the signals that end a program are noted first; a second one of a kind ends it.
void noteInterruptions();

/// Throws CFailure where a signal was noted.
void stopIfInterrupted();

} // namespace tovangl::program

#endif
