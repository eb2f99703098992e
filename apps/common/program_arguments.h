// SPDX-License-Identifier: MIT
/// @file
/// How every program reads its arguments.
#ifndef TOVANGL_COMMON_PROGRAM_ARGUMENTS_H
#define TOVANGL_COMMON_PROGRAM_ARGUMENTS_H

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace tovangl::program {

/// Reads the arguments, and prints help or version if they ask for it.
///
/// @param program  with its name set; its callbacks run
/// @return false if nothing is left to do
/// @throws CFailure if the arguments are wrong: one line that refers to the help
bool parseArguments(CLI::App& program, int count, const char* const* arguments);

/// Gives a program's help the layout that all share.
///
/// @param teaching  the end of the help
void describeProgram(CLI::App& program, const char* name, const char* version,
                     const char* teaching);

/// Adds the option --font-file, which can be given several times.
///
/// @param files  receives the paths
void addFontFileOption(CLI::App& program, std::vector<std::string>& files);

} // namespace tovangl::program

#endif
