// SPDX-License-Identifier: MIT
/// @file
/// How every program starts, and how it ends on an error.
#ifndef TOVANGL_COMMON_PROGRAM_FRAME_H
#define TOVANGL_COMMON_PROGRAM_FRAME_H

#include <functional>

namespace tovangl::program {

/// The exit status of a program that failed.
inline constexpr int kExitFailure = 2;

/// Runs a program's work. Any error becomes one line on standard error and exit status 2; so does a
/// failed write to standard output.
///
/// @param name  the program, for messages
/// @param work  returns the exit status, or throws CFailure if it cannot continue
/// @return the exit status for main()
int runProgram(const char* name, const std::function<int()>& work);

} // namespace tovangl::program

#endif
