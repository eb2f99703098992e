// SPDX-License-Identifier: MIT
#include "input/setting_rules.h"
#include "input/setting_values.h"
#include "input/themes.h"
#include "support/input_text.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

std::vector<std::string> themeNames()
{
    std::vector<std::string> names;
    for (const std::string_view name : splitText(kThemeNames, ','))
        names.emplace_back(name);
    return names;
}

std::vector<std::string> settingsOf(const std::string& theme)
{
    std::vector<std::string> names;
    for (const CThemeValue& value : findTheme(theme).value_or(CThemeValues()))
        names.emplace_back(value.setting);
    return names;
}

bool isSettingOf(Setting::Chart chart, std::string_view name)
{
    return std::any_of(settings().begin(), settings().end(), [&](const Setting& setting) {
        return setting.name == name && (setting.charts & chart) != 0;
    });
}

template <typename Input>
void apply(Input& input, std::string_view name, std::string_view value)
{
    EXPECT_EQ(applySetting(CSettingTarget(input), name, value), "") << name;
}

// The input after each of a theme's settings was set by its name.
template <typename Input>
std::string textAfterParts(Input input, const std::string& theme)
{
    const Setting::Chart chart = CSettingTarget(input).kind;
    const CThemeValues values = findTheme(theme).value_or(CThemeValues());
    for (const CThemeValue& value : values) {
        if (isSettingOf(chart, value.setting))
            apply(input, value.setting, value.value);
    }
    return inputText(input);
}

template <typename Input>
std::string textAfter(Input input, const std::string& theme)
{
    apply(input, "theme", theme);
    return inputText(input);
}

class EveryTheme : public ::testing::TestWithParam<std::string>
{};

TEST_P(EveryTheme, SetsEveryColourSettingOfTheTableAndNothingElse)
{
    std::vector<std::string> colors;
    for (const Setting& setting : settings()) {
        if (setting.type == SettingType::Color || setting.type == SettingType::PictureColor ||
            setting.type == SettingType::Palette)
            colors.emplace_back(setting.name);
    }
    EXPECT_THAT(settingsOf(GetParam()), ::testing::UnorderedElementsAreArray(colors));
}

TEST_P(EveryTheme, IsTheSumOfItsSettings)
{
    const CBarInput standing(BarKind::Standing, true);
    const CBarInput lying(BarKind::Lying, true);
    const CPieInput pie(true);
    EXPECT_EQ(textAfter(standing, GetParam()), textAfterParts(standing, GetParam()));
    EXPECT_EQ(textAfter(lying, GetParam()), textAfterParts(lying, GetParam()));
    EXPECT_EQ(textAfter(pie, GetParam()), textAfterParts(pie, GetParam()));
}

TEST_P(EveryTheme, ReplacesTheOneBefore)
{
    for (const std::string& before : themeNames()) {
        CPieInput pie(true);
        apply(pie, "theme", before);
        EXPECT_EQ(textAfter(pie, GetParam()), textAfter(CPieInput(true), GetParam())) << before;
    }
}

TEST_P(EveryTheme, LeavesOtherSettingsAlone)
{
    CPieInput pie(true);
    apply(pie, "title", "Disks");
    apply(pie, "theme", GetParam());
    EXPECT_EQ(pie.settings.title, QString("Disks"));
    EXPECT_TRUE(pie.settings.hasBackground);
}

INSTANTIATE_TEST_SUITE_P(Themes, EveryTheme, ::testing::ValuesIn(themeNames()),
                         [](const ::testing::TestParamInfo<std::string>& info) {
                             std::string name = info.param;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

TEST(Theme, HasTheNameThatTheTableTells)
{
    EXPECT_STREQ(themeName(Theme::Light), "light");
    EXPECT_STREQ(themeName(Theme::Dark), "dark");
    EXPECT_STREQ(themeName(Theme::HighContrast), "high-contrast");
    EXPECT_STREQ(themeName(Theme::ColorBlind), "colour-blind");
    EXPECT_THAT(themeNames(),
                ::testing::ElementsAre("light", "dark", "high-contrast", "colour-blind"));
}

TEST(Theme, OfANumberThatIsNoneIsLight)
{
    EXPECT_STREQ(themeName(static_cast<Theme>(-1)), "light");
    EXPECT_STREQ(themeName(static_cast<Theme>(4)), "light");
}

TEST(Theme, OfAnUnknownNameIsNone)
{
    for (const char* name : {"", "Dark", "default", "dark "})
        EXPECT_FALSE(findTheme(name)) << name;
    EXPECT_EQ(themeValue("none", "palette"), "");
    EXPECT_EQ(themeValue("dark", "title"), "");
}

TEST(LightTheme, IsTheLookOfANewChart)
{
    const CBarInput bars(BarKind::Standing, true);
    EXPECT_EQ(textAfter(bars, "light"), inputText(bars));
    EXPECT_EQ(textAfter(CPieInput(true), "light"), inputText(CPieInput(true)));
}

} // namespace
} // namespace tovangl
