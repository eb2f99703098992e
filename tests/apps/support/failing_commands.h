// SPDX-License-Identifier: MIT
/// @file
/// Commands that fail, and what they say then.
#ifndef TOVANGL_TESTS_APPS_FAILING_COMMANDS_H
#define TOVANGL_TESTS_APPS_FAILING_COMMANDS_H

#include "apps/support/shell.h"

#include <gtest/gtest.h>
#include <ostream>
#include <string>

namespace tovangl::program {

struct FailingCommand
{
    const char* name;    ///< of the test
    const char* command; ///< as a user types it
    const char* message; ///< a part of what it says
};

void PrintTo(const FailingCommand& command, std::ostream* stream);

/// The name of the test.
[[nodiscard]] std::string caseName(const ::testing::TestParamInfo<FailingCommand>& info);

/// Expects that tovangl-chart failed, with this message in one line on standard error, and with
/// nothing on standard output.
void expectOneLine(const ShellResult& result, const std::string& message);

} // namespace tovangl::program

#endif
