// SPDX-License-Identifier: MIT
// Many charts in one archive.
#include "apps/support/CProgramTest.h"
#include "apps/support/batch_lines.h"
#include "apps/support/failing_commands.h"

#include <gmock/gmock.h>

namespace tovangl::program {
namespace {

using ::testing::Eq;
using ::testing::HasSubstr;
using ::testing::StartsWith;

using TarBatch = CProgramTest;

TEST_F(TarBatch, HasTheFilesOfTheFolder)
{
    const std::string lines = manyLines(5) + chartLine(std::string(200, 'x'));
    runLines(folder, lines, "--maps -o p");
    runLines(folder, lines, "--maps --tar p.tar");
    EXPECT_EQ(shell("mkdir t && tar -C t -xf p.tar && diff -r p t").status, 0);
    runLines(folder, lines, "--maps --tar - >s.tar");
    EXPECT_EQ(folder.read("s.tar"), folder.read("p.tar"));
}

TEST_F(TarBatch, HasPicturesOfTheFormat)
{
    for (const std::string format : {"svg", "pdf"}) {
        runLines(folder, manyLines(3), "--format " + format + " -o " + format);
        runLines(folder, manyLines(3), "--format " + format + " --tar p.tar");
        EXPECT_EQ(shell("rm -rf t; mkdir t && tar -C t -xf p.tar && diff -r t " + format).status, 0)
            << format;
    }
}

TEST_F(TarBatch, HasFilesThatEveryoneMayRead)
{
    const ShellResult result = runLines(folder, chartLine("a"), "--tar - | tar -tv");
    EXPECT_THAT(result.output, StartsWith("-rw-r--r--"));
}

TEST_F(TarBatch, IsTheSameWithAnyNumberOfThreads)
{
    const std::string lines = manyLines(60) + "oops\n" + chartLine("last");
    for (const char* jobs : {"1", "2", "7"})
        runLines(folder, lines, "--maps --tar t" + std::string(jobs) + " --jobs " + jobs);
    EXPECT_EQ(shell("cmp t1 t2 && cmp t1 t7").status, 0);
}

TEST_F(TarBatch, HasTheFirstOfTwoEqualIds)
{
    const ShellResult result =
        runLines(folder, chartLine("a") + chartLine("a", R"(, "theme": "dark")"), "--tar p.tar");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("{\"line\":2,\"id\":\"a\",\"reason\":\"/id: an earlier"));
    runLines(folder, chartLine("a"), "--tar once.tar");
    EXPECT_EQ(folder.read("p.tar"), folder.read("once.tar"));
}

// The lines fill the pipe several times, so that many are drawn when the last one is written.
TEST_F(TarBatch, KilledWhileItWritesLeavesNothing)
{
    folder.write("lines", manyLines(2000));
    shell("mkfifo in; exec 3<>in\n"
          "for signal in KILL TERM; do\n"
          "    tovangl-chart batch --tar p.tar <in &\n"
          "    cat lines >&3; kill -$signal $!; wait $!\n"
          "done");
    EXPECT_THAT(folder.names(), Eq(Names{"in", "lines"}));
}

// A reader takes the zeros that every archive ends in for a sign that it is whole.
TEST_F(TarBatch, BrokenOffHasNoEnd)
{
    folder.write("lines", manyLines(60));
    const ShellResult result = shell("mkfifo in\n"
                                     "tovangl-chart batch --tar - <in >archive &\n"
                                     "exec 3>in; cat lines >&3\n"
                                     "until [ -s archive ]; do sleep 0.01; done\n"
                                     "kill -TERM $!; wait $!");
    EXPECT_EQ(result.status, 2);
    const std::string archive = folder.read("archive");
    constexpr std::size_t kEnd = 1024; // bytes
    ASSERT_GT(archive.size(), kEnd);
    EXPECT_NE(archive.substr(archive.size() - kEnd), std::string(kEnd, '\0'));
}

TEST_F(TarBatch, LeavesNothingWhereTheFileMayNotGrow)
{
    folder.write("lines", manyLines(600));
    const ShellResult result = shell("ulimit -f 300; tovangl-chart batch lines --tar p.tar");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "tovangl-chart: p.tar: File too large\n");
    EXPECT_THAT(folder.names(), Eq(Names{"lines"}));
}

TEST_F(TarBatch, SaysThatAPipeIsClosed)
{
    folder.write("lines", manyLines(2000));
    const ShellResult result =
        shell("{ tovangl-chart batch lines --tar -; echo $? >status; } | head -c 10 >x");
    EXPECT_EQ(folder.read("status"), "2\n");
    EXPECT_EQ(result.errors, "tovangl-chart: standard output: Broken pipe\n");
}

class BrokenTar : public TarBatch, public ::testing::WithParamInterface<FailingCommand>
{};

TEST_P(BrokenTar, SaysWhyInOneLine)
{
    folder.write("lines", chartLine("a"));
    expectOneLine(shell(GetParam().command), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    TarBatch, BrokenTar,
    ::testing::Values(FailingCommand{"FullDevice", "tovangl-chart batch lines --tar /dev/full",
                                     "tovangl-chart: /dev/full: No space left on device\n"},
                      FailingCommand{"NoFolder", "tovangl-chart batch lines --tar p/x.tar",
                                     "tovangl-chart: p/x.tar: No such file or directory\n"},
                      FailingCommand{"TarAmongErrors",
                                     "tovangl-chart batch lines --tar - --errors -",
                                     "cannot go to one place"}),
    caseName);

} // namespace
} // namespace tovangl::program
