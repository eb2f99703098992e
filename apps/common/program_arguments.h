// SPDX-License-Identifier: MIT
/// @file
/// How every program reads its arguments.
#ifndef TOVANGL_COMMON_PROGRAM_ARGUMENTS_H
#define TOVANGL_COMMON_PROGRAM_ARGUMENTS_H

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

namespace tovangl::program {

/// Reads the arguments, and prints help or version where they ask for it.
///
/// @param program  with its name set; its callbacks run
/// @return false where nothing more is to be done
/// @throws CFailure where the arguments are wrong: one line that leads to the help
bool parseArguments(CLI::App& program, int count, const char* const* arguments);

/// Gives the help of a program the looks that all have in common.
///
/// @param teaching  stands at the help's end
void describeProgram(CLI::App& program, const char* name, const char* version,
                     const char* teaching);

} // namespace tovangl::program

#endif
