// SPDX-License-Identifier: MIT
// The options that the table of settings gives to a command.
#include "common/CFailure.h"
#include "tovangl-chart/setting_options.h"
#include <tovangl/PieGraph.h>

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <gmock/gmock.h>
#include <vector>

namespace tovangl::program {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::ThrowsMessage;

class SettingOptions : public ::testing::Test
{
protected:
    SettingOptions() { addSettingOptions(m_command, Setting::Pie, m_given); }

    /// Reads arguments, which stand in reverse order.
    void read(std::vector<std::string> arguments) { m_command.parse(std::move(arguments)); }
    [[nodiscard]] std::vector<std::string> givenNames() const
    {
        std::vector<std::string> names;
        for (const auto& [setting, value] : m_given)
            names.emplace_back(setting->name);
        return names;
    }

    CLI::App m_command;
    GivenSettings m_given;
};

TEST_F(SettingOptions, AreThoseOfTheChartAndNoOthers)
{
    for (const Setting& setting : settings()) {
        const bool isOfPie = (setting.charts & Setting::Pie) != 0;
        EXPECT_EQ(m_command.get_option_no_throw(optionName(setting)) != nullptr, isOfPie)
            << setting.name;
    }
}

TEST_F(SettingOptions, KeepTheOrderOfTheTable)
{
    read({"#ff0000", "--text-color", "--bold", "dark", "--theme"});
    EXPECT_THAT(givenNames(), ElementsAre("theme", "text_color", "bold"));
    m_given.clear();
    read({"dark", "--theme", "--bold", "#ff0000", "--text-color"});
    EXPECT_THAT(givenNames(), ElementsAre("theme", "text_color", "bold"));
}

TEST_F(SettingOptions, GiveNothingThatWasNotGiven)
{
    read({});
    EXPECT_THAT(m_given, IsEmpty());
    EXPECT_EQ(givenValue(m_given, "font"), std::nullopt);
}

TEST_F(SettingOptions, TakeTheLastOfTwoValues)
{
    read({"20", "--font-size", "10", "--font-size"});
    EXPECT_EQ(givenValue(m_given, "font_size"), "20");
}

TEST_F(SettingOptions, AreFlagsWhereTheValueIsYesOrNo)
{
    read({"--bold"});
    EXPECT_EQ(givenValue(m_given, "bold"), "true");
    read({"--bold=false"});
    EXPECT_EQ(givenValue(m_given, "bold"), "false");
}

TEST_F(SettingOptions, TellDefaultsAndChoicesInTheHelp)
{
    const std::string help = m_command.help();
    EXPECT_THAT(help, HasSubstr("--font TEXT"));
    EXPECT_THAT(help, HasSubstr("[Tahoma]"));
    EXPECT_THAT(help, HasSubstr("--theme light|dark|"));
    EXPECT_THAT(help, Not(HasSubstr("[default]")));
    EXPECT_THAT(help, Not(HasSubstr("[false]")));
}

TEST_F(SettingOptions, AreRefusedByNameAndValue)
{
    PieGraph chart(false);
    read({"red", "--text-color"});
    EXPECT_THAT([&] { applySettings(chart, m_given); },
                ThrowsMessage<CFailure>(
                    HasSubstr("--text-color: \"red\" is not a colour such as #4070c0")));
}

TEST_F(SettingOptions, AcceptTheDefaultsOfTheTable)
{
    PieGraph chart(false);
    for (const Setting& setting : settings()) {
        if ((setting.charts & Setting::Pie) != 0)
            m_given[&setting] = setting.defaultValue;
    }
    EXPECT_NO_THROW(applySettings(chart, m_given));
}

} // namespace
} // namespace tovangl::program
