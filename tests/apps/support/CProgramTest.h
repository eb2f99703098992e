// SPDX-License-Identifier: MIT
/// @file
/// What tests of whole programs start from.
#ifndef TOVANGL_TESTS_APPS_CPROGRAMTEST_H
#define TOVANGL_TESTS_APPS_CPROGRAMTEST_H

#include "apps/support/shell.h"

#include <gtest/gtest.h>
#include <string>

namespace tovangl::program {

/// A test that runs programs in a folder of its own.
class CProgramTest : public ::testing::Test
{
protected:
    /// Runs a command of the shell, as runShell() does.
    ShellResult shell(const std::string& command) const { return runShell(folder, command); }

    /// Runs a command that must succeed in silence.
    void runWell(const std::string& command) const
    {
        const ShellResult result = shell(command);
        EXPECT_EQ(result.status, 0) << command;
        EXPECT_EQ(result.output + result.errors, "") << command;
    }

    CTemporaryFolder folder;
};

} // namespace tovangl::program

#endif
