// SPDX-License-Identifier: MIT
// Whatever stops the program is one line on standard error, and leaves no file behind.
#include "apps/support/CProgramTest.h"
#include "apps/support/failing_commands.h"

#include <cstdlib>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <unistd.h>

namespace tovangl::program {
namespace {

using ::testing::Eq;

constexpr const char* kItems = "3 a\n2 b\n1 c\n";

class Failure : public CProgramTest, public ::testing::WithParamInterface<FailingCommand>
{};

TEST_P(Failure, IsOneLineAndLeavesNoFile)
{
    folder.write("items", kItems);
    expectOneLine(shell(GetParam().command), GetParam().message);
    EXPECT_THAT(folder.names(), Eq(Names{"items"}));
}

INSTANTIATE_TEST_SUITE_P(
    Input, Failure,
    ::testing::Values(
        FailingCommand{"NoItem", "echo oops | tovangl-chart pie -o x.png",
                       "standard input:1: \"oops\" is not a whole number"},
        FailingCommand{"LaterLine", "printf '1 a\\n\\n2\\n' | tovangl-chart bars -o x.png",
                       "standard input:3: there is no caption behind the number"},
        FailingCommand{"Decimals", "echo 1.5 a | tovangl-chart bars -o x.png",
                       "standard input:1: \"1.5\" is not a whole number; round it"},
        FailingCommand{"LargeNumber", "echo 9223372036854775808 a | tovangl-chart hbars -o x.png",
                       "standard input:1: \"9223372036854775808\" does not fit into 64 bits"},
        FailingCommand{"BrokenText", "printf '1 a\\n2 \\351\\n' | tovangl-chart pie -o x.png",
                       "standard input:2: byte 3 of the line is not UTF-8"},
        FailingCommand{"Missing", "tovangl-chart pie none -o x.png",
                       "none: No such file or directory"},
        FailingCommand{"Folder", "tovangl-chart pie . -o x.png", ".: Is a directory"},
        FailingCommand{"TerminalSequence", "printf '\\033[2J a' | tovangl-chart pie -o x.png",
                       "standard input:1: \"?[2J\" is not"}),
    caseName);

INSTANTIATE_TEST_SUITE_P(
    Output, Failure,
    ::testing::Values(
        FailingCommand{"Missing", "tovangl-chart pie items -o no/x.png",
                       "no/x.png: No such file or directory"},
        FailingCommand{"Folder", "tovangl-chart pie items -o .", ".: Is a directory"},
        FailingCommand{"FileAsFolder", "tovangl-chart pie items -o items/x.png",
                       "items/x.png: Not a directory"},
        FailingCommand{"FullDisk", "tovangl-chart pie items -o /dev/full",
                       "/dev/full: No space left on device"},
        FailingCommand{"FullStandardOutput", "tovangl-chart pie items >/dev/full",
                       "standard output: No space left on device"},
        FailingCommand{"FullHelp", "tovangl-chart --help >/dev/full",
                       "standard output: cannot write"},
        FailingCommand{"ClosedStandardOutput", "tovangl-chart pie items >&-", "standard output: "},
        FailingCommand{"ClosedPipe",
                       "mkfifo pipe; tovangl-chart pie items >pipe & exec 3<pipe; exec 3<&-; "
                       "wait $!; status=$?; rm pipe; exit $status",
                       "standard output: Broken pipe"},
        FailingCommand{"FileSizeLimit", "ulimit -f 1; tovangl-chart bars items -o x.png",
                       "x.png: File too large"},
        FailingCommand{"FullMap", "tovangl-chart pie items -o x.png --map /dev/full",
                       "/dev/full: No space left on device"},
        FailingCommand{"MissingMapFolder", "tovangl-chart pie items -o x.png --map no/x.json",
                       "no/x.json: No such file or directory"},
        FailingCommand{"BothToOne", "tovangl-chart pie items -o x --map x",
                       "the picture and the map cannot both go to x"},
        FailingCommand{"BothToStandardOutput", "tovangl-chart pie items --map -",
                       "the picture and the map cannot both go to standard output"}),
    caseName);

INSTANTIATE_TEST_SUITE_P(
    Arguments, Failure,
    ::testing::Values(
        FailingCommand{"NoCommand", "tovangl-chart", "A subcommand is required"},
        FailingCommand{"UnknownCommand", "tovangl-chart cake", "(see tovangl-chart --help)"},
        FailingCommand{"UnknownOption", "tovangl-chart pie --loud items -o x.png", "--loud"},
        FailingCommand{"OptionOfAnotherChart", "tovangl-chart pie --bar-width 3 items -o x.png",
                       "--bar-width"},
        FailingCommand{"NoNameOfAFile", "tovangl-chart pie --output= --bold items",
                       "--output: the file has no name"},
        FailingCommand{"Size", "tovangl-chart pie --size 100 items -o x.png",
                       "--size: \"100\" is not a size such as 800x600"},
        FailingCommand{"NoSize", "tovangl-chart pie --size 0x100 items -o x.png",
                       "no picture can measure 0x100"},
        FailingCommand{"HugeSize", "tovangl-chart pie --size 1000000x1000000 items -o x.png",
                       "no picture can measure 1000000x1000000"},
        FailingCommand{"HugePrint", "tovangl-chart pie --print 2147483647 items -o x.png",
                       "no picture can measure 800x600 for print at factor 2147483647"},
        FailingCommand{"Format", "tovangl-chart pie --format gif items -o x.gif",
                       "--format: \"gif\" is not a format: png, svg or pdf"},
        FailingCommand{"FormatInCapitals", "tovangl-chart pie --format SVG items -o x.svg",
                       "--format: \"SVG\" is not a format"},
        FailingCommand{"SvgWithoutPage", "tovangl-chart pie --svg items -o x.svg",
                       "--svg: there is no page without --map FILE.html"},
        FailingCommand{"SvgOfOtherMap", "tovangl-chart bars --svg items -o x.png --map x.json",
                       "--svg: there is no page without --map FILE.html"},
        FailingCommand{"PrintOfSvg", "tovangl-chart pie --print 2 items -o x.svg",
                       "--print: only a PNG picture has pixels"},
        FailingCommand{"PrintOfPdf", "tovangl-chart pie --print 2 --format pdf items -o x",
                       "--print: only a PNG picture has pixels"},
        FailingCommand{"PrintOfSvgInPage", "tovangl-chart pie --print 2 --svg items --map x.html",
                       "--print: only a PNG picture has pixels"},
        FailingCommand{"HugePdf", "tovangl-chart pie --size 14401x100 items -o x.pdf",
                       "no picture can measure 14401x100"},
        FailingCommand{"HugeSvgInPage",
                       "tovangl-chart pie --size 1000001x100 --svg items --map x.html",
                       "no picture can measure 1000001x100"},
        FailingCommand{"Color", "tovangl-chart pie --text-color red items -o x.png",
                       "--text-color: \"red\" is not a colour such as #4070c0"},
        FailingCommand{"Threshold", "tovangl-chart bars --threshold 5% items -o x.png",
                       "--threshold: \"5%\" is not a number"},
        FailingCommand{"Axis", "tovangl-chart bars --value-axis line,loud items -o x.png",
                       "--value-axis: \"line,loud\" is not a list of axis properties (line,"},
        FailingCommand{"BarWidth", "tovangl-chart bars --bar-width x items -o x.png",
                       "--bar-width: \"x\" is not a whole number from "},
        FailingCommand{"NoScale", "tovangl-chart hbars --scale 0 items -o x.png",
                       "--scale: \"0\" is not a whole number from 1 to 1000"},
        FailingCommand{"HugeScale",
                       "tovangl-chart pie --scale 1000 --size 2000x2000 items -o x.png",
                       "no picture can measure 2000x2000 at scale 1000"},
        FailingCommand{"HugeScaleOfPage",
                       "tovangl-chart pie --scale 1000 --size 2000x2000 items --map x.html",
                       "no picture can measure 2000x2000 at scale 1000"},
        FailingCommand{"Theme", "tovangl-chart pie --theme \"$(printf '\\033[2J')\" items -o x.png",
                       "--theme: \"?[2J\" is not one of "},
        FailingCommand{"LongValue",
                       "tovangl-chart pie --palette \"$(printf '%2000d' 0)\" items -o x.png",
                       "...\" is not a list of colours"},
        FailingCommand{"BrokenTitle",
                       "tovangl-chart bars --value-title \"$(printf 'a\\351')\" items -o x.png",
                       "--value-title: \"a?\" is not UTF-8"},
        FailingCommand{"ValueOfLines", "tovangl-chart pie --value 2 items -o x.png",
                       "--value requires --csv"},
        FailingCommand{"CaptionOfLines", "tovangl-chart pie --caption 2 items -o x.png",
                       "--caption requires --csv"},
        FailingCommand{"ColorOfLines", "tovangl-chart pie --color 2 items -o x.png",
                       "--color requires --csv"},
        FailingCommand{"BrokenColumn",
                       "tovangl-chart pie --csv --value \"$(printf 'a\\351')\" items -o x.png",
                       "--value: \"a?\" is not UTF-8"},
        FailingCommand{"NoName", "tovangl-chart pie items -o ''",
                       "--output: the file has no name"}),
    caseName);

class PictureWithoutRoom : public CProgramTest, public ::testing::WithParamInterface<const char*>
{};

INSTANTIATE_TEST_SUITE_P(Charts, PictureWithoutRoom, ::testing::Values("pie", "bars", "hbars"),
                         [](const auto& info) { return info.param; });

TEST_P(PictureWithoutRoom, IsWrittenAndToldInOneLine)
{
    folder.write("items", kItems);
    const ShellResult result =
        shell("tovangl-chart " + std::string(GetParam()) + " --size 15x15 items -o x.png");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "tovangl-chart: 15x15: The picture has no room for the chart.\n");
    EXPECT_THAT(folder.names(), Eq(Names{"items", "x.png"}));
}

using Failures = CProgramTest;

TEST_F(Failures, LeaveTheOldPicture)
{
    folder.write("x.png", "old");
    shell("echo oops | tovangl-chart pie -o x.png");
    shell("ulimit -f 1; echo 1 a | tovangl-chart pie -o x.png");
    EXPECT_EQ(folder.read("x.png"), "old");
    EXPECT_THAT(folder.names(), Eq(Names{"x.png"}));
}

TEST_F(Failures, ATerminalIsNoPlaceForAPicture)
{
    if (!hasTerminals())
        GTEST_SKIP() << "no terminal can be opened here";
    const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_EQ(::grantpt(terminal) + ::unlockpt(terminal), 0);
    const std::string name = ::ptsname(terminal);
    expectOneLine(shell("echo 1 a | tovangl-chart pie >" + name), "standard output is a terminal");
    ::close(terminal);
}

} // namespace
} // namespace tovangl::program
