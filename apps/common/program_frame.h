// SPDX-License-Identifier: MIT
/// @file
/// How every program starts, and how it ends when something stops it.
#ifndef TOVANGL_COMMON_PROGRAM_FRAME_H
#define TOVANGL_COMMON_PROGRAM_FRAME_H

#include <functional>

namespace tovangl::program {

/// The exit status of a program that could not do what it was asked for.
inline constexpr int kExitFailure = 2;

/// Runs a program's work. Whatever stops it becomes one line on standard error and exit status 2;
/// so does a standard output that does not take what was printed.
///
/// @param name  the program, for messages
/// @param work  throws CFailure where it cannot go on
/// @return the exit status for main()
int runProgram(const char* name, const std::function<void()>& work);

} // namespace tovangl::program

#endif
