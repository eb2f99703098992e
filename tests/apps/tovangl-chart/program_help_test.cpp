// SPDX-License-Identifier: MIT
// What the program says about itself, and what its manual and completions say about it.
#include "apps/support/CProgramTest.h"
#include <tovangl/Compression.h>
#include <tovangl/Setting.h>

#include <algorithm>
#include <gmock/gmock.h>
#include <iterator>
#include <regex>

namespace tovangl::program {
namespace {

using ::testing::Contains;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

using Options = std::set<std::string>;

struct Command
{
    const char* name;
    Setting::Chart chart;
};

constexpr Command kCommands[] = {
    {"pie", Setting::Pie}, {"bars", Setting::VerticalBars}, {"hbars", Setting::HorizontalBars}};

/// Everything in a text that looks like a long option.
Options optionsIn(const std::string& text, const char* pattern = R"((--[a-z][a-z-]*))")
{
    const std::regex option(pattern, std::regex::ECMAScript | std::regex::multiline);
    Options options;
    for (std::sregex_iterator it(text.begin(), text.end(), option), end; it != end; ++it)
        options.insert((*it)[1]);
    return options;
}

class Help : public CProgramTest
{
protected:
    /// The long options in the help of a command.
    Options optionsOf(const char* command) const
    {
        return optionsIn(shell(std::string("tovangl-chart ") + command + " --help").output,
                         "^  (?:-.,)?(--[a-z-]+)");
    }
    /// What bash offers after "tovangl-chart", some words, and the start of another.
    std::string completions(const std::string& words) const
    {
        return shell("bash -c 'source \"" TOVANGL_APPS_FOLDER "/completions/tovangl-chart.bash\"\n"
                     "COMP_WORDS=(tovangl-chart " +
                     words +
                     ") COMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n"
                     "_tovangl_chart\necho \"${COMPREPLY[@]}\"'")
            .output;
    }
};

TEST_F(Help, TeachesWithExamples)
{
    for (const char* command : {"", " pie", " bars", " hbars"}) {
        const ShellResult help = shell(std::string("tovangl-chart") + command + " --help");
        EXPECT_EQ(help.status, 0);
        EXPECT_THAT(help.errors, IsEmpty());
        EXPECT_THAT(help.output, HasSubstr("Examples:\n  "));
    }
    EXPECT_THAT(shell("tovangl-chart bars -h").output, HasSubstr("--value-axis"));
}

TEST_F(Help, TellsTheVersion)
{
    const ShellResult result = shell("tovangl-chart --version");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, StartsWith("tovangl-chart "));
    EXPECT_THAT(result.output, EndsWith("\n"));
}

TEST_F(Help, TellsWithTheVersionWhatFastCompressesWith)
{
    EXPECT_THAT(shell("tovangl-chart --version").output,
                HasSubstr(std::string("\n--fast compresses with ") + fastCompressor() + "\n"));
}

/// A file beside the programs' sources, without what troff wants escaped, and with the dashes that
/// fish does without.
std::string readSource(const std::string& name)
{
    std::ifstream file(TOVANGL_APPS_FOLDER "/" + name);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    const std::string plain = std::regex_replace(text, std::regex(R"(\\-)"), "-");
    return std::regex_replace(plain, std::regex("(complete .*) -l ([a-z])"), "$1 --$2");
}

std::string optionOf(const Setting& setting)
{
    std::string name = setting.name;
    std::replace(name.begin(), name.end(), '_', '-');
    return "--" + name;
}

TEST_F(Help, ListsEverySettingOfTheChart)
{
    for (const Command& command : kCommands) {
        const Options options = optionsOf(command.name);
        for (const Setting& setting : settings())
            EXPECT_EQ(options.count(optionOf(setting)) > 0, (setting.charts & command.chart) != 0)
                << command.name << ' ' << setting.name;
    }
}

class Documentation : public Help, public ::testing::WithParamInterface<const char*>
{};

TEST_P(Documentation, NamesEveryOptionAndNoOther)
{
    Options options = {"--version"};
    for (const Command& command : kCommands)
        options.merge(optionsOf(command.name));
    options.merge(optionsOf("batch"));
    EXPECT_EQ(optionsIn(readSource(GetParam())), options);
}

TEST_P(Documentation, NamesEverySetting)
{
    const Options named = optionsIn(readSource(GetParam()));
    for (const Setting& setting : settings())
        EXPECT_THAT(named, Contains(optionOf(setting)));
}

INSTANTIATE_TEST_SUITE_P(Help, Documentation,
                         ::testing::Values("man/tovangl-chart.1", "completions/tovangl-chart.bash",
                                           "completions/_tovangl-chart",
                                           "completions/tovangl-chart.fish"));

using Completion = Help;

TEST_F(Completion, OffersTheOptionsOfTheCommandAndNoOthers)
{
    for (const Command& command : kCommands)
        EXPECT_EQ(optionsIn(completions(std::string(command.name) + " --")),
                  optionsOf(command.name))
            << command.name;
    EXPECT_EQ(optionsIn(completions("batch --")), optionsOf("batch"));
}

TEST_F(Completion, OffersOptionsAfterFlagsAndValues)
{
    EXPECT_EQ(completions("pie --bold --wit"), "--without-sizes\n");
    EXPECT_EQ(completions("pie --theme dark --wit"), "--without-sizes\n");
}

TEST_F(Completion, OffersTheThemesOfTheTable)
{
    for (const Setting& setting : settings()) {
        if (setting.name != std::string("theme"))
            continue;
        std::string themes = setting.choices;
        std::replace(themes.begin(), themes.end(), ',', ' ');
        EXPECT_EQ(completions("bars --theme \"\""), themes + '\n');
    }
}

TEST_F(Completion, OffersNothingInPlaceOfATextOrANumber)
{
    EXPECT_EQ(completions("pie --title --"), "\n");
    EXPECT_EQ(completions("bars --bar-width --"), "\n");
}

} // namespace
} // namespace tovangl::program
