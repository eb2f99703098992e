// SPDX-License-Identifier: MIT
#include "input/setting_rules.h"
#include "input/setting_values.h"
#include "support/input_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

namespace tovangl {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;

constexpr int kAllCharts = Setting::Pie | Setting::VerticalBars | Setting::HorizontalBars;

// A pie and both bar charts, without a background, which is the table's default.
struct CInputs
{
    CPieInput pie{false};
    CBarInput standing{BarKind::Standing, false};
    CBarInput lying{BarKind::Lying, false};

    [[nodiscard]] std::vector<CSettingTarget> targets()
    {
        return {CSettingTarget(pie), CSettingTarget(standing), CSettingTarget(lying)};
    }
    [[nodiscard]] std::string text() const
    {
        return inputText(pie) + inputText(standing) + inputText(lying);
    }
    // Sets it in every chart that has it; tells the first problem.
    std::string apply(const Setting& setting, const std::string& value)
    {
        std::string problem;
        for (const CSettingTarget& target : targets()) {
            if ((setting.charts & target.kind) != 0 && problem.empty())
                problem = applySetting(target, setting.name, value);
        }
        return problem;
    }
};

// A value that no new chart has.
std::string otherValue(const Setting& setting)
{
    switch (setting.type) {
    case SettingType::Boolean:
        return "true";
    case SettingType::Whole:
        return "17";
    case SettingType::Real:
        return "2.5";
    case SettingType::Text:
        return "Größe";
    case SettingType::Color:
    case SettingType::PictureColor:
        return "#123456";
    case SettingType::Palette:
        return "#123456,#654321";
    case SettingType::Locale:
        return "de_AT";
    case SettingType::AxisProperties:
        return "bold-title";
    case SettingType::Position:
        return "60,200";
    case SettingType::Choice:
        return std::string(splitText(setting.choices, ',').back());
    case SettingType::Link:
        return "rest.html";
    }
    return {};
}

// A value that the type does not accept. Of a text only broken UTF-8 is refused, and nearly every
// word is an address.
std::string badValue(const Setting& setting)
{
    if (setting.type == SettingType::Link)
        return "nonsense:";
    return setting.type == SettingType::Text ? "\xff" : "nonsense";
}

class EverySetting : public ::testing::TestWithParam<Setting>
{
protected:
    CInputs m_inputs;
    std::string m_before = m_inputs.text();
};

TEST_P(EverySetting, HasANameOfLowerCaseWords)
{
    EXPECT_THAT(GetParam().name, MatchesRegex("[a-z]+(_[a-z]+)*"));
}

TEST_P(EverySetting, IsToldInOneSentence)
{
    EXPECT_THAT(GetParam().summary, MatchesRegex("[A-Z].*[^ .]\\."));
    EXPECT_THAT(std::string(GetParam().summary), ::testing::Not(HasSubstr(". ")));
}

TEST_P(EverySetting, BelongsToAChart)
{
    EXPECT_NE(GetParam().charts, 0);
    EXPECT_EQ(GetParam().charts & ~kAllCharts, 0);
}

TEST_P(EverySetting, TellsARangeWhereItIsANumberAndChoicesWhereItHasSome)
{
    const Setting& setting = GetParam();
    EXPECT_EQ(setting.minimum < setting.maximum, setting.type == SettingType::Whole);
    EXPECT_EQ(splitText(setting.choices, ',').size() > 1,
              setting.type == SettingType::Choice || setting.type == SettingType::AxisProperties);
}

TEST_P(EverySetting, OfItsDefaultLeavesANewChartAsItIs)
{
    EXPECT_EQ(m_inputs.apply(GetParam(), GetParam().defaultValue), "");
    EXPECT_EQ(m_inputs.text(), m_before);
}

TEST_P(EverySetting, ChangesAChartAndItsDefaultChangesItBack)
{
    EXPECT_EQ(m_inputs.apply(GetParam(), otherValue(GetParam())), "");
    EXPECT_NE(m_inputs.text(), m_before);
    EXPECT_EQ(m_inputs.apply(GetParam(), GetParam().defaultValue), "");
    EXPECT_EQ(m_inputs.text(), m_before);
}

TEST_P(EverySetting, IsKeptWhereAValueIsBad)
{
    EXPECT_EQ(m_inputs.apply(GetParam(), otherValue(GetParam())), "");
    const std::string kept = m_inputs.text();
    EXPECT_THAT(m_inputs.apply(GetParam(), badValue(GetParam())),
                ::testing::StartsWith("the value is not "));
    EXPECT_EQ(m_inputs.text(), kept);
}

TEST_P(EverySetting, IsUnknownToTheChartsThatDoNotHaveIt)
{
    for (const CSettingTarget& target : m_inputs.targets()) {
        if ((GetParam().charts & target.kind) == 0) {
            EXPECT_EQ(applySetting(target, GetParam().name, GetParam().defaultValue),
                      "this chart has no such setting");
        }
    }
    EXPECT_EQ(m_inputs.text(), m_before);
}

INSTANTIATE_TEST_SUITE_P(Table, EverySetting,
                         ::testing::ValuesIn(settings().begin(), settings().end()),
                         [](const ::testing::TestParamInfo<Setting>& info) {
                             return std::string(info.param.name);
                         });

TEST(SettingTable, HasEachNameOnce)
{
    std::set<std::string> names;
    for (const Setting& setting : settings())
        EXPECT_TRUE(names.insert(setting.name).second) << setting.name;
}

TEST(SettingTable, HasWholeNumbersThatReachBothEndsOfTheirRange)
{
    for (const Setting& setting : settings()) {
        if (setting.type != SettingType::Whole)
            continue;
        CInputs inputs;
        EXPECT_EQ(inputs.apply(setting, std::to_string(setting.minimum)), "") << setting.name;
        EXPECT_EQ(inputs.apply(setting, std::to_string(setting.maximum)), "") << setting.name;
        EXPECT_NE(inputs.apply(setting, std::to_string(setting.minimum - 1)), "") << setting.name;
        EXPECT_NE(inputs.apply(setting, std::to_string(setting.maximum + 1)), "") << setting.name;
    }
}

TEST(SettingTable, AcceptsEveryChoiceThatItTells)
{
    for (const Setting& setting : settings()) {
        if (std::string(setting.choices).empty())
            continue;
        CInputs inputs;
        for (const std::string_view choice : splitText(setting.choices, ','))
            EXPECT_EQ(inputs.apply(setting, std::string(choice)), "") << choice;
    }
}

TEST(SettingTable, AppliesThemesBeforeTheColoursThatTheySet)
{
    EXPECT_EQ(std::string(settings().begin()->name), "theme");
}

TEST(Setting, OfAnUnknownNameChangesNothing)
{
    CInputs inputs;
    const std::string before = inputs.text();
    for (const char* name : {"", "Title", "title ", "colour", "font-size"}) {
        for (const CSettingTarget& target : inputs.targets())
            EXPECT_EQ(applySetting(target, name, "1"), "this chart has no such setting") << name;
    }
    EXPECT_EQ(inputs.text(), before);
}

TEST(Setting, TellsTheRangeOfANumber)
{
    CPieInput pie(false);
    EXPECT_EQ(applySetting(CSettingTarget(pie), "scale", "0"),
              "the value is not a whole number from 1 to 1000");
}

TEST(Setting, TellsTheChoices)
{
    CPieInput pie(false);
    EXPECT_EQ(applySetting(CSettingTarget(pie), "kilo", "1001"),
              "the value is not one of default,1024,1000");
}

TEST(Setting, OfALinkTakesWhatLeadsToAPageOrBeginsAMail)
{
    CPieInput pie(false);
    for (const char* link : {"http://example.org", "HTTPS://example.org/?a&b", "mailto:a@b.org",
                             "rest.html", "#rest", "?page=2", "größe.html", ""}) {
        EXPECT_THAT(applySetting(CSettingTarget(pie), "others_link", link), IsEmpty()) << link;
        EXPECT_EQ(pie.settings.othersLink.toStdString(), link);
    }
}

TEST(Setting, OfALinkRefusesEveryOtherAddress)
{
    CPieInput pie(false);
    for (const char* link : {"javascript:alert(1)", "//example.org", "a b", "a\xff"}) {
        EXPECT_EQ(applySetting(CSettingTarget(pie), "others_link", link),
                  "the value is not an address of http:, https: or mailto:, or of a place relative "
                  "to the page")
            << link;
    }
    EXPECT_TRUE(pie.settings.othersLink.isEmpty());
}

TEST(Setting, OfAPaletteTakesTheNameOfATheme)
{
    CPieInput byName(false);
    CPieInput byTheme(false);
    EXPECT_THAT(applySetting(CSettingTarget(byName), "palette", "dark"), IsEmpty());
    EXPECT_THAT(applySetting(CSettingTarget(byTheme), "theme", "dark"), IsEmpty());
    EXPECT_EQ(byName.settings.colors.palette, byTheme.settings.colors.palette);
    EXPECT_FALSE(byName.settings.colors.text.isValid()) << "the palette alone";
}

TEST(Setting, OfAnAxisTitleShowsIt)
{
    CBarInput bars(BarKind::Standing, false);
    EXPECT_THAT(applySetting(CSettingTarget(bars), "category_title", "Month"), IsEmpty());
    EXPECT_TRUE(bars.horizontalAxis.has(CAxisSettings::ShowTitle));
    EXPECT_FALSE(bars.verticalAxis.has(CAxisSettings::ShowTitle));
}

TEST(Setting, OfAnEmptyAxisTitleShowsNone)
{
    CBarInput bars(BarKind::Standing, false);
    EXPECT_THAT(applySetting(CSettingTarget(bars), "category_title", "Month"), IsEmpty());
    EXPECT_THAT(applySetting(CSettingTarget(bars), "category_title", ""), IsEmpty());
    EXPECT_FALSE(bars.horizontalAxis.has(CAxisSettings::ShowTitle));
}

TEST(Setting, OfTheCategoryAxisFindsItInBothKindsOfBars)
{
    CInputs inputs;
    EXPECT_THAT(applySetting(CSettingTarget(inputs.standing), "category_axis", "none"), IsEmpty());
    EXPECT_THAT(applySetting(CSettingTarget(inputs.lying), "category_axis", "none"), IsEmpty());
    EXPECT_EQ(inputs.standing.horizontalAxis.properties, CAxisSettings::Properties());
    EXPECT_EQ(inputs.lying.verticalAxis.properties, CAxisSettings::Properties());
}

} // namespace

void PrintTo(const Setting& setting, std::ostream* stream)
{
    *stream << setting.name;
}

} // namespace tovangl
