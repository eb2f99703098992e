// SPDX-License-Identifier: MIT
#include "apps/support/CProgramTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tovangl::program {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::MatchesRegex;

class DiskUsageFailure : public CProgramTest
{
protected:
    DiskUsageFailure()
    {
        std::filesystem::create_directories(folder.pathOf("tree/a"));
        folder.write("tree/a/file", std::string(100, 'x'));
    }

    // The line that it says, and nothing left beside the tree.
    std::string lineOf(const std::string& command) const
    {
        const ShellResult result = shell(command);
        EXPECT_EQ(result.status, 2) << command;
        EXPECT_EQ(result.output, "");
        EXPECT_THAT(result.errors, MatchesRegex("tovangl-du: [^\n]+\n"));
        EXPECT_THAT(folder.names(), ElementsAre("tree"));
        return result.errors;
    }
};

TEST_F(DiskUsageFailure, FolderIsNotThere)
{
    EXPECT_THAT(lineOf("tovangl-du none -o report"), HasSubstr("none: No such file"));
}

TEST_F(DiskUsageFailure, FolderIsAFile)
{
    EXPECT_THAT(lineOf("tovangl-du tree/a/file -o report"), HasSubstr("Not a directory"));
}

TEST_F(DiskUsageFailure, OutputIsAFolderOfSomethingElse)
{
    EXPECT_THAT(lineOf("tovangl-du tree -o tree"), HasSubstr("holds other files"));
    EXPECT_EQ(folder.read("tree/a/file").size(), 100U);
}

TEST_F(DiskUsageFailure, OutputIsAFile)
{
    EXPECT_THAT(lineOf("tovangl-du tree -o tree/a/file"), HasSubstr("is not a folder"));
}

TEST_F(DiskUsageFailure, OutputHasNoPlace)
{
    EXPECT_THAT(lineOf("tovangl-du tree -o none/report"), HasSubstr("No such file"));
    EXPECT_THAT(lineOf("tovangl-du tree -o ''"), HasSubstr("tovangl-du: "));
}

TEST_F(DiskUsageFailure, ReportWithAForeignFileIsKept)
{
    ASSERT_EQ(shell("tovangl-du tree -o report && echo >report/mine").status, 0);
    const ShellResult result = shell("tovangl-du tree -o report");
    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(std::filesystem::exists(folder.pathOf("report/mine")));
}

TEST_F(DiskUsageFailure, FilesMayNotGrow)
{
    EXPECT_THAT(lineOf("ulimit -f 1; tovangl-du tree -o report"), HasSubstr("File too large"));
}

TEST_F(DiskUsageFailure, IsInterrupted)
{
    // In the foreground it sends one signal; otherwise two, of which the second may kill.
    EXPECT_THAT(
        lineOf("timeout --foreground -s INT 2 tovangl-du / -o report --pages 100000 || exit 2"),
        HasSubstr("interrupted"));
}

TEST_F(DiskUsageFailure, ArgumentsAreWrong)
{
    EXPECT_THAT(lineOf("tovangl-du --pages 0 tree"), HasSubstr("see tovangl-du --help"));
    EXPECT_THAT(lineOf("tovangl-du --depth -1 tree"), HasSubstr("see tovangl-du --help"));
    EXPECT_THAT(lineOf("tovangl-du tree other"), HasSubstr("see tovangl-du --help"));
}

TEST_F(DiskUsageFailure, OutputIsToldWithoutSteeringTheTerminal)
{
    EXPECT_THAT(lineOf("tovangl-du \"$(printf 'a\\033[2Jb')\" -o report"), HasSubstr("a?[2Jb"));
}

} // namespace
} // namespace tovangl::program
