// SPDX-License-Identifier: MIT
/// @file
/// The command line of tovangl-du, and what it does.
#ifndef TOVANGL_DU_COMMAND_LINE_H
#define TOVANGL_DU_COMMAND_LINE_H

namespace tovangl::program {

/// Reads the arguments and writes the report that they ask for. Throws CFailure.
///
/// @param version  printed by --version
void runDiskUsage(int count, const char* const* arguments, const char* version);

} // namespace tovangl::program

#endif
