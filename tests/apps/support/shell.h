// SPDX-License-Identifier: MIT
/// @file
/// Runs commands as a user types them.
#ifndef TOVANGL_TESTS_APPS_SHELL_H
#define TOVANGL_TESTS_APPS_SHELL_H

#include "apps/support/CTemporaryFolder.h"

#include <string>

namespace tovangl::program {

struct ShellResult
{
    int status; ///< as in the shell: 128 + signal where one ended the command
    std::string output;
    std::string errors;
};

/// Runs a command of the shell with the programs in its path, the pinned fonts, and no input but
/// what the command names.
///
/// @param folder  where it runs
ShellResult runShell(const CTemporaryFolder& folder, const std::string& command);

/// Whether a terminal can be opened. A system's folder that is entered by chroot may have none.
bool hasTerminals();

} // namespace tovangl::program

#endif
