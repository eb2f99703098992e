// SPDX-License-Identifier: MIT
// Many charts from lines of JSON, as a shell draws them.
#include "apps/support/CProgramTest.h"
#include "apps/support/batch_lines.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

namespace tovangl::program {
namespace {

using ::testing::ContainsRegex;
using ::testing::EndsWith;
using ::testing::Eq;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

using Json = nlohmann::json;

/// All records of a text, one for each line.
std::vector<Json> records(const std::string& text)
{
    std::vector<Json> result;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        result.push_back(Json::parse(line));
    return result;
}

/// A host that keeps the program running; ask sends it the chart in "line", and waits for the
/// answer's header.
constexpr const char* kRunningHost =
    "mkfifo in out\n"
    "tovangl-chart batch --frames --jobs 4 <in >out &\n"
    "exec 3>in 4<out\n"
    "ask() { cat line >&3; timeout 20 head -n 1 <&4 >/dev/null; }\n";

using Batch = CProgramTest;

TEST_F(Batch, WritesAPictureForEachIdIntoANewFolder)
{
    const ShellResult result = runLines(folder, chartLine("a") + '\n' + chartLine("b"));
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output + result.errors, IsEmpty());
    EXPECT_THAT(folder.names("p"), Eq(Names{"a.png", "b.png"}));
}

TEST_F(Batch, DrawsWhatTheCommandOfTheChartDraws)
{
    runLines(folder, chartLine("a", R"(, "theme": "dark", "bar_width": 9)"), "-o p --maps");
    shell("echo 7 x | tovangl-chart bars --size 120x90 --theme dark --bar-width 9 "
          "-o a.png --map a.json");
    EXPECT_EQ(folder.read("p/a.png"), folder.read("a.png"));
    EXPECT_EQ(folder.read("p/a.json"), folder.read("a.json"));
}

TEST_F(Batch, GoesOnAfterABadLine)
{
    const ShellResult result = runLines(folder, chartLine("a") + "oops\n" + chartLine("b"));
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(folder.names("p"), Eq(Names{"a.png", "b.png"}));
    const std::vector<Json> errors = records(result.errors);
    ASSERT_THAT(errors, SizeIs(1));
    EXPECT_EQ(errors[0],
              Json({{"line", 2}, {"id", nullptr}, {"reason", "not JSON: wrong at byte 1"}}));
}

TEST_F(Batch, WritesItsRecordsWhereTheOptionSays)
{
    folder.write("bad", std::string(1000, 'x')); // longer than the record
    const ShellResult result =
        runLines(folder, chartLine("a", R"(, "text_color": "red")"), "-o p --errors bad");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, IsEmpty());
    const Json record = records(folder.read("bad")).at(0);
    EXPECT_EQ(record["id"], "a");
    EXPECT_THAT(record["reason"].get<std::string>(), StartsWith("/text_color: \"red\" is not"));
}

TEST_F(Batch, TellsAPictureWithoutItsChartAndWritesIt)
{
    const ShellResult result =
        runLines(folder, R"({"chart": "pie", "id": "a", "width": 5, "height": 5, "items": []})");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(records(result.errors).at(0)["problem"].get<std::string>(), HasSubstr("no room"));
    EXPECT_THAT(folder.names("p"), Eq(Names{"a.png"}));
}

TEST_F(Batch, TheSecondOfTwoEqualIdsIsAnError)
{
    const std::string lines = chartLine("a") + chartLine("a", R"(, "theme": "dark")");
    for (const char* options : {"-o p", "-o p --resume"}) {
        const ShellResult result = runLines(folder, lines, options);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(records(result.errors).at(0)["line"], 2);
    }
    runLines(folder, chartLine("a"), "-o once");
    EXPECT_EQ(folder.read("p/a.png"), folder.read("once/a.png"));
}

TEST_F(Batch, NeedsAnIdWhereFilesAreNamed)
{
    const std::string line = R"({"chart": "pie", "items": [{"value": 1}]})";
    EXPECT_THAT(runLines(folder, line).errors, HasSubstr("/id: is missing"));
    EXPECT_EQ(runLines(folder, line, "--frames").status, 0);
}

TEST_F(Batch, IsTheSameWithAnyNumberOfThreads)
{
    const std::string lines = manyLines(60) + "oops\n" + chartLine("last");
    for (const char* jobs : {"1", "2", "7"}) {
        const std::string number = jobs;
        const std::string errors = " --errors e" + number;
        runLines(folder, lines, "--maps -o p" + number + " --jobs " + number + errors);
        runLines(folder, lines, "--frames --jobs " + number + " >f" + number);
    }
    EXPECT_EQ(shell("for n in 2 7; do diff -r p1 p$n && cmp f1 f$n && cmp e1 e$n || "
                    "exit 1; done")
                  .status,
              0);
    EXPECT_THAT(folder.names("p1"), SizeIs(2 * 61));
}

TEST_F(Batch, FramesTellTheirLengthAndTheirRegions)
{
    const std::string lines = chartLine("a") + "oops\n";
    runLines(folder, lines, "--maps -o p");
    const ShellResult result = runLines(folder, lines, "--frames");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, IsEmpty());
    const std::size_t headerEnd = result.output.find('\n');
    const Json header = Json::parse(result.output.substr(0, headerEnd));
    const std::size_t bytes = header["bytes"];
    EXPECT_EQ(result.output.substr(headerEnd + 1, bytes), folder.read("p/a.png"));
    EXPECT_EQ(header["regions"], Json::parse(folder.read("p/a.json")));
    EXPECT_THAT(header["description"].get<std::string>(), StartsWith("Vertical bar chart"));
    EXPECT_EQ(header["problem"], nullptr);
    const Json refused = Json::parse(result.output.substr(headerEnd + 1 + bytes));
    EXPECT_EQ(refused["bytes"], 0);
    EXPECT_EQ(refused["line"], 2);
    EXPECT_EQ(refused["problem"], "not JSON: wrong at byte 1");
}

TEST_F(Batch, AFrameTellsWhyItsPictureHasNoChart)
{
    const ShellResult result =
        runLines(folder, R"({"chart": "pie", "width": 5, "height": 5, "items": []})", "--frames");
    const Json header = Json::parse(result.output.substr(0, result.output.find('\n')));
    EXPECT_THAT(header["problem"].get<std::string>(), HasSubstr("no room"));
    EXPECT_GT(header["bytes"], 0);
}

TEST_F(Batch, FramesComeAtOnceWhileThePipeStaysOpen)
{
    folder.write("line", chartLine("a"));
    const ShellResult result =
        shell(std::string(kRunningHost) + "for i in 1 2 3; do ask && echo answer || exit 1; done");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "answer\nanswer\nanswer\n");
}

TEST_F(Batch, ResumesWithoutDrawingWhatIsThere)
{
    const std::string lines = manyLines(3);
    runLines(folder, lines, "--maps -o whole");
    runLines(folder, lines, "--maps -o p");
    shell("cp p/c1.png p/c0.png; rm p/c1.png p/c2.json");
    EXPECT_EQ(runLines(folder, lines, "--maps -o p --resume").status, 0);
    EXPECT_EQ(folder.read("p/c0.png"), folder.read("whole/c1.png"));
    EXPECT_EQ(shell("rm */c0.png; diff -r p whole").status, 0);
}

TEST_F(Batch, ResumesWhereAPipeHasTheNameOfAPicture)
{
    folder.write("line", chartLine("a"));
    const ShellResult result =
        shell("mkdir p; mkfifo p/a.png; timeout 20 tovangl-chart batch line -o p --resume");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(shell("test -s p/a.png").status, 0);
}

class BatchFormat : public CProgramTest, public ::testing::WithParamInterface<const char*>
{};

INSTANTIATE_TEST_SUITE_P(Batch, BatchFormat, ::testing::Values("png", "svg", "pdf"),
                         [](const auto& info) { return info.param; });

TEST_P(BatchFormat, IsThatOfTheCommandOfTheChart)
{
    const std::string format = GetParam();
    runLines(folder, chartLine("a", R"(, "scale": 2)"), "-o p --maps --format " + format);
    shell("echo 7 x | tovangl-chart bars --size 120x90 --scale 2 --map a.json -o a." + format);
    EXPECT_EQ(folder.names("p"), (Names{"a." + format, "a.json"}));
    EXPECT_EQ(folder.read("p/a." + format), folder.read("a." + format));
    EXPECT_EQ(folder.read("p/a.json"), folder.read("a.json"));
}

TEST_P(BatchFormat, IsTheSameInFramesAndWithAnyNumberOfThreads)
{
    const std::string option = " --format " + std::string(GetParam());
    const std::string lines = manyLines(20) + "oops\n";
    runLines(folder, lines, "-o p --jobs 1" + option);
    const std::string frames = runLines(folder, lines, "--frames --jobs 3" + option).output;
    for (const std::string& name : folder.names("p"))
        EXPECT_THAT(frames, HasSubstr("}\n" + folder.read("p/" + name))) << name;
    EXPECT_THAT(folder.names("p"), SizeIs(20));
}

TEST_P(BatchFormat, IsResumedWithFilesThatLostTheirEnd)
{
    const std::string options = "--maps --format " + std::string(GetParam());
    const std::string lines = manyLines(4);
    runLines(folder, lines, options + " -o whole");
    runLines(folder, lines, options + " -o p");
    shell("truncate -s 0 p/c0.*[gf]; truncate -s -1 p/c1.*[gf]; truncate -s -4 p/c2.json\n"
          "sed -i 1i. p/c3.*[gf] && cp p/c3.*[gf] whole");
    EXPECT_EQ(runLines(folder, lines, options + " -o p --resume").status, 0);
    EXPECT_EQ(shell("diff -r p whole").status, 0);
}

TEST_F(Batch, ResumesInAnotherFormatBesideTheFirst)
{
    runLines(folder, manyLines(2));
    runLines(folder, manyLines(2), "-o p --resume --format svg");
    EXPECT_EQ(folder.names("p"), (Names{"c0.png", "c0.svg", "c1.png", "c1.svg"}));
}

TEST_F(Batch, DrawsChartsForPrintAsShapesToo)
{
    runLines(folder, chartLine("a", R"(, "print": 4)"), "-o p --maps --format svg");
    runLines(folder, chartLine("a"), "-o q --maps --format svg");
    EXPECT_EQ(shell("diff -r p q").status, 0);
}

TEST_F(Batch, LeadsFromItemsToTheirLinks)
{
    runLines(folder,
             R"({"chart": "pie", "id": "a", "items": [{"value": 1, "link": "a.html?b&c"}]})",
             "-o p --format svg");
    EXPECT_THAT(folder.read("p/a.svg"), HasSubstr("href=\"a.html?b&amp;c\""));
}

TEST_F(Batch, MapsAndFramesTellWhereItemsLead)
{
    const std::string line =
        R"({"chart": "bars", "id": "a", "items": [{"value": 1, "link": "#a"}, {"value": 2}]})";
    runLines(folder, line, "-o p --maps");
    const Json items = Json::parse(folder.read("p/a.json"))["items"];
    EXPECT_EQ(items[0]["link"], "#a");
    EXPECT_FALSE(items[1].contains("link"));
    EXPECT_THAT(runLines(folder, line, "--frames").output, HasSubstr(R"("link":"#a")"));
}

TEST_F(Batch, ALinkThatRunsAScriptCostsOnlyItsLine)
{
    const ShellResult result =
        runLines(folder, R"({"chart": "pie", "id": "a", "items": [{"value": 1, "link": "js:x"}]})"
                         "\n" +
                             chartLine("b"));
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(records(result.errors).at(0)["reason"].get<std::string>(),
                StartsWith("/items/0/link: \"js:x\" is not an address"));
    EXPECT_EQ(folder.names("p"), Names{"b.png"});
}

TEST_F(Batch, AKilledRunIsResumedToTheSameFiles)
{
    folder.write("lines", manyLines(400));
    const ShellResult result = shell(

        "tovangl-chart batch lines --maps -o whole\n"
        "for milliseconds in $(shuf -i 20-250 -n 6); do\n"
        "    echo killed after $milliseconds ms\n"
        "    delay=$(printf 0.%03d $milliseconds)\n"
        "    timeout -s KILL $delay tovangl-chart batch lines --maps -o p --resume --jobs 3\n"
        "    for file in p/c*; do [ ! -e \"$file\" ] || cmp $file whole/${file#p/} || exit 1; "
        "done\n"
        "done\n"
        "tovangl-chart batch lines --maps -o p --resume && diff -r whole p");
    EXPECT_EQ(result.status, 0) << result.output << result.errors;
}

// Its answer shows that it runs, and has nothing left to do but to wait.
TEST_F(Batch, EndsOnASignalWhileItWaits)
{
    folder.write("line", chartLine("a"));
    const ShellResult result = shell(std::string(kRunningHost) + "ask; kill -TERM $!; wait $!");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "tovangl-chart: interrupted\n");
}

TEST_F(Batch, ShowsItsProgressOnATerminal)
{
    if (!hasTerminals())
        GTEST_SKIP() << "no terminal can be opened here";
    folder.write("lines", manyLines(600));
    const ShellResult result =
        shell("script -qec 'tovangl-chart batch lines -o p --jobs 1' /dev/null");
    EXPECT_THAT(result.output, ContainsRegex(" a second, 0 errors, [0-9:]+ left"));
    EXPECT_THAT(result.output, EndsWith("\r\x1b[K"));
}

} // namespace
} // namespace tovangl::program
