// SPDX-License-Identifier: MIT
// Batches that go wrong, and inputs that mean harm.
#include "apps/support/CProgramTest.h"
#include "apps/support/batch_lines.h"
#include "apps/support/failing_commands.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <string>

namespace tovangl::program {
namespace {

using ::testing::EndsWith;
using ::testing::Eq;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr const char* kLine =
    R"({"chart": "pie", "id": "a", "width": 400, "height": 300, "items": [{"value": 7}]})";

class BrokenOff : public CProgramTest, public ::testing::WithParamInterface<FailingCommand>
{};

TEST_P(BrokenOff, SaysWhyInOneLine)
{
    folder.write("line", kLine);
    folder.write("file", "");
    expectOneLine(shell(GetParam().command), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Batch, BrokenOff,
    ::testing::Values(
        FailingCommand{"NoPlace", "tovangl-chart batch line", "say where the pictures go"},
        FailingCommand{"TwoPlaces", "tovangl-chart batch line -o p --tar p.tar",
                       "--output excludes"},
        FailingCommand{"ResumedTar", "tovangl-chart batch line --tar p.tar --resume",
                       "--resume requires --output"},
        FailingCommand{"NoInput", "tovangl-chart batch nowhere -o p", "nowhere: No such file"},
        FailingCommand{"InputIsAFolder", "tovangl-chart batch . -o p", ".: Is a directory"},
        FailingCommand{"OutputIsAFile", "tovangl-chart batch line -o file", "file: "},
        FailingCommand{"PictureIsAFolder", "mkdir -p p/a.png; tovangl-chart batch line -o p",
                       "p/a.png: Is a directory"},
        FailingCommand{"NoFolderOfTheErrors", "tovangl-chart batch line -o p --errors q/e",
                       "q/e: No "},
        FailingCommand{"RecordsOverCharts", "tovangl-chart batch line -o p --errors ./line",
                       "the records of --errors would replace the charts"},
        FailingCommand{"RecordsAmongFrames", "tovangl-chart batch line --frames --errors -",
                       "the pictures and the records of --errors cannot go to one place"},
        FailingCommand{"ClosedInput", "timeout 20 tovangl-chart batch -o p <&-",
                       "standard input: Bad file descriptor"},
        FailingCommand{"NoTemporaryFolder", "TMPDIR=/no tovangl-chart batch line -o p",
                       "folder for temporary files: "},
        FailingCommand{"FullOutput", "tovangl-chart batch line --frames >/dev/full",
                       "standard output: No space left"},
        FailingCommand{"FullErrors", "echo x | tovangl-chart batch -o p --errors /dev/full",
                       "/dev/full: No space left"},
        FailingCommand{"FileSizeLimit", "ulimit -f 1; tovangl-chart batch line -o p",
                       ": File too large"},
        FailingCommand{"Jobs", "tovangl-chart batch line -o p --jobs 0",
                       "--jobs: 0 is not a number "},
        FailingCommand{"LongestLine", "tovangl-chart batch line -o p --longest-line x",
                       "--longest-line: \"x\" is not a whole number"},
        FailingCommand{"Format", "tovangl-chart batch line -o p --format gif",
                       "--format: \"gif\" is not a format: png, svg or pdf"}),
    caseName);

using BrokenBatches = CProgramTest;

TEST_F(BrokenBatches, AClosedPipeIsOneError)
{
    folder.write("line", kLine);
    const ShellResult result =
        shell("for i in $(seq 2000); do cat line; echo; done | "
              "{ tovangl-chart batch --frames; echo $? >status; } | head -c 10 >/dev/null");
    EXPECT_EQ(folder.read("status"), "2\n");
    EXPECT_EQ(result.errors, "tovangl-chart: standard output: Broken pipe\n");
}

// A host can wait for the end of the program before it closes the pipe.
TEST_F(BrokenBatches, AFullDiskEndsARunThatWaitsForMoreLines)
{
    folder.write("line", kLine);
    const ShellResult result =
        shell("mkfifo in\n"
              "{ timeout 20 tovangl-chart batch --frames <in >/dev/full; echo $? >status; } &\n"
              "exec 3>in; { cat line; echo; } >&3; wait");
    EXPECT_EQ(folder.read("status"), "2\n");
    EXPECT_EQ(result.errors, "tovangl-chart: standard output: No space left on device\n");
}

// A file system of its own, which only this command sees.
TEST_F(BrokenBatches, AFullDiskIsOneErrorAndLeavesWholeFiles)
{
    folder.write("lines", manyLines(300));
    folder.write("run", "mount -t tmpfs -o size=200k none p || exit 77\n"
                        "tovangl-chart batch lines -o p; echo $? >status\n"
                        "for file in p/*; do tail -c 8 $file | grep -q IEND || exit 1; done\n"
                        "ls -A p | wc -l >count\n");
    const ShellResult result = shell("mkdir p; unshare --map-root-user --mount sh run 2>errors || "
                                     "unshare --mount sh run 2>errors");
    if (folder.names().count("status") == 0)
        GTEST_SKIP() << "no file system can be mounted here";
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(folder.read("status"), "2\n");
    EXPECT_THAT(folder.read("errors"), EndsWith(".png: No space left on device\n"));
    EXPECT_GT(std::stoi(folder.read("count")), 10);
}

TEST_F(BrokenBatches, RecordsGoToStandardOutputIfWanted)
{
    const ShellResult result = runLines(folder, "oops\n", "-o p --errors -");
    EXPECT_EQ(result.output, "{\"line\":1,\"id\":null,\"reason\":\"not JSON: wrong at byte 1\"}\n");
    EXPECT_THAT(result.errors, IsEmpty());
}

TEST_F(BrokenBatches, TheLongestLineIsAnOption)
{
    folder.write("line", kLine);
    EXPECT_THAT(shell("tovangl-chart batch line -o p --longest-line 20").errors,
                HasSubstr("the line has more than 20 bytes"));
}

TEST_F(BrokenBatches, BytesThatAreNoTextAreOneErrorALine)
{
    folder.write("lines", std::string("{\"\xff\": 1}\n") + '\0' + "\n\x1b[2J\n" + kLine);
    const ShellResult result = shell("tovangl-chart batch lines -o p");
    EXPECT_EQ(result.errors, "{\"line\":1,\"id\":null,\"reason\":\"byte 3 is not UTF-8\"}\n"
                             "{\"line\":2,\"id\":null,\"reason\":\"byte 1 is zero\"}\n"
                             "{\"line\":3,\"id\":null,\"reason\":\"not JSON: wrong at byte 1\"}\n");
    EXPECT_FALSE(folder.read("p/a.png").empty());
}

TEST_F(BrokenBatches, NoIdLeadsOutOfTheFolder)
{
    folder.write("lines", R"({"chart": "pie", "items": [], "id": "../out"})"
                          "\n"
                          R"({"chart": "pie", "items": [], "id": "/tmp/out"})");
    EXPECT_EQ(shell("tovangl-chart batch lines -o p").status, 1);
    EXPECT_THAT(folder.names(), Eq(Names{"lines", "p"}));
    EXPECT_TRUE(std::filesystem::is_empty(folder.pathOf("p")));
}

TEST_F(BrokenBatches, AFolderThatCannotBeWrittenIsToldBeforeAnythingIsDrawn)
{
    folder.write("line", kLine);
    const ShellResult result = shell("tovangl-chart batch line -o /proc/nowhere");
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.errors, HasSubstr("/proc/nowhere: "));
    EXPECT_THAT(result.errors, Not(HasSubstr("a.png")));
}

} // namespace
} // namespace tovangl::program
