// SPDX-License-Identifier: MIT
// What the program says about itself, and what its manual and completions say about it.
#include "apps/support/shell.h"
#include <tovangl/Compression.h>

#include <gmock/gmock.h>
#include <iterator>
#include <regex>

namespace tovangl::program {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

constexpr const char* kCommands[] = {"pie", "bars", "hbars"};

TEST(Help, TeachesWithExamples)
{
    const CTemporaryFolder folder;
    for (const char* command : {"", " pie", " bars", " hbars"}) {
        const ShellResult help =
            runShell(folder, std::string("tovangl-chart") + command + " --help");
        EXPECT_EQ(help.status, 0);
        EXPECT_THAT(help.errors, IsEmpty());
        EXPECT_THAT(help.output, HasSubstr("Examples:\n  "));
    }
    EXPECT_THAT(runShell(folder, "tovangl-chart bars -h").output, HasSubstr("--value-axis"));
}

TEST(Help, TellsTheVersion)
{
    const CTemporaryFolder folder;
    const ShellResult result = runShell(folder, "tovangl-chart --version");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, StartsWith("tovangl-chart "));
    EXPECT_THAT(result.output, EndsWith("\n"));
}

TEST(Help, TellsWithTheVersionWhatFastCompressesWith)
{
    const CTemporaryFolder folder;
    EXPECT_THAT(runShell(folder, "tovangl-chart --version").output,
                HasSubstr(std::string("\n--fast compresses with ") + fastCompressor() + "\n"));
}

/// The long options in the help of a command.
std::set<std::string> optionsOf(const std::string& command)
{
    const CTemporaryFolder folder;
    const std::string help = runShell(folder, "tovangl-chart " + command + " --help").output;
    const std::regex option("^  (?:-.,)?(--[a-z-]+)",
                            std::regex::ECMAScript | std::regex::multiline);
    std::set<std::string> options;
    for (std::sregex_iterator it(help.begin(), help.end(), option), end; it != end; ++it)
        options.insert((*it)[1]);
    return options;
}

/// A file beside the programs' sources, without what troff wants escaped.
std::string readSource(const std::string& name)
{
    std::ifstream file(TOVANGL_APPS_FOLDER "/" + name);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    return std::regex_replace(text, std::regex(R"(\\-)"), "-");
}

class Documentation : public ::testing::TestWithParam<const char*>
{};

TEST_P(Documentation, NamesEveryOption)
{
    const std::string text = readSource(GetParam());
    for (const char* command : kCommands) {
        const std::set<std::string> options = optionsOf(command);
        EXPECT_GT(options.size(), 10U);
        for (const std::string& option : options)
            EXPECT_THAT(text, HasSubstr(option)) << command;
    }
}

INSTANTIATE_TEST_SUITE_P(Help, Documentation,
                         ::testing::Values("man/tovangl-chart.1", "completions/tovangl-chart.bash",
                                           "completions/_tovangl-chart"));

} // namespace
} // namespace tovangl::program
