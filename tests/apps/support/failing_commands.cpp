// SPDX-License-Identifier: MIT
// Commands that fail, and what they say then.
#include "apps/support/failing_commands.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace tovangl::program {

namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

constexpr int kFailure = 2;

} // namespace

void PrintTo(const FailingCommand& command, std::ostream* stream)
{
    *stream << command.command;
}

std::string caseName(const ::testing::TestParamInfo<FailingCommand>& info)
{
    return info.param.name;
}

void expectOneLine(const ShellResult& result, const std::string& message)
{
    EXPECT_EQ(result.status, kFailure);
    EXPECT_THAT(result.errors, StartsWith("tovangl-chart: "));
    EXPECT_THAT(result.errors, HasSubstr(message));
    EXPECT_THAT(result.errors, EndsWith("\n"));
    EXPECT_EQ(std::count(result.errors.begin(), result.errors.end(), '\n'), 1) << result.errors;
    EXPECT_THAT(result.output, IsEmpty());
}

} // namespace tovangl::program
