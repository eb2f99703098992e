// SPDX-License-Identifier: MIT
/// @file
/// The command line: one command per chart.
#ifndef TOVANGL_CHART_COMMAND_LINE_H
#define TOVANGL_CHART_COMMAND_LINE_H

#include <functional>

namespace CLI {
class App;
}

namespace tovangl::program {

/// Adds the commands; each runs when it is parsed. Each is defined beside the code that it runs.
void addPieCommand(CLI::App& program);
void addBarsCommand(CLI::App& program);
void addHbarsCommand(CLI::App& program);
/// @param status  receives the exit status
void addBatchCommand(CLI::App& program, int& status);
/// @param status  receives the exit status
void addDoctorCommand(CLI::App& program, int& status);

/// Adds a command with the layout that all share, and without options.
///
/// @param examples  the end of its help
/// @param run       called when the command has been parsed
/// @return the command, which belongs to the program
CLI::App& addChartCommand(CLI::App& program, const char* name, const char* description,
                          const char* examples, std::function<void()> run);

/// Reads the arguments and does what they ask for. Throws CFailure.
///
/// @param version  printed by --version
/// @return the exit status
int runCommandLine(int count, const char* const* arguments, const char* version);

} // namespace tovangl::program

#endif
