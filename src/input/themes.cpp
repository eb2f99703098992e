// SPDX-License-Identifier: MIT
// The themes: nothing but values of settings.
#include "input/themes.h"

#include <iterator>

namespace tovangl {

namespace {

constexpr CThemeValue kLight[] = {
    {"palette", "default"},          {"picture_color", "default"}, {"plot_color", "default"},
    {"border_color", "default"},     {"text_color", "default"},    {"axis_color", "default"},
    {"axis_title_color", "default"}, {"grid_color", "default"},    {"value_color", "default"},
    {"outline_color", "default"},    {"line_color", "default"},
};

constexpr CThemeValue kDark[] = {
    {"palette", "#7fb2f0,#f2a65a,#8fd0a0,#e58fb1,#d9d06a,#b49ce6"},
    {"picture_color", "#1b1f27"},
    {"plot_color", "#232936"},
    {"border_color", "#4a5568"},
    {"text_color", "#e6e9ef"},
    {"axis_color", "#aab4c4"},
    {"axis_title_color", "#e6e9ef"},
    {"grid_color", "#3a4354"},
    {"value_color", "#e6e9ef"},
    {"outline_color", "#1b1f27"},
    {"line_color", "#aab4c4"},
};

constexpr CThemeValue kHighContrast[] = {
    {"palette", "#000000,#ffd400,#0057b8,#ffffff,#b00020,#7fd4ff"},
    {"picture_color", "#ffffff"},
    {"plot_color", "#ffffff"},
    {"border_color", "#000000"},
    {"text_color", "#000000"},
    {"axis_color", "#000000"},
    {"axis_title_color", "#000000"},
    {"grid_color", "#767676"},
    {"value_color", "#000000"},
    {"outline_color", "#000000"},
    {"line_color", "#000000"},
};

constexpr CThemeValue kColorBlind[] = {
    {"palette", "#000000,#e69f00,#0072b2,#f0e442,#d55e00,#56b4e9"},
    {"picture_color", "#ffffff"},
    {"plot_color", "#ffffff"},
    {"border_color", "#767676"},
    {"text_color", "#000000"},
    {"axis_color", "#000000"},
    {"axis_title_color", "#000000"},
    {"grid_color", "#b0b0b0"},
    {"value_color", "#000000"},
    {"outline_color", "#000000"},
    {"line_color", "#000000"},
};

struct CNamedTheme
{
    std::string_view name;
    CThemeValues values;
};

constexpr CNamedTheme kThemes[] = {
    {"light", {std::begin(kLight), std::end(kLight)}},
    {"dark", {std::begin(kDark), std::end(kDark)}},
    {"high-contrast", {std::begin(kHighContrast), std::end(kHighContrast)}},
    {"colour-blind", {std::begin(kColorBlind), std::end(kColorBlind)}},
};

} // namespace

const char* themeName(Theme theme)
{
    switch (theme) {
    case Theme::Dark:
        return "dark";
    case Theme::HighContrast:
        return "high-contrast";
    case Theme::ColorBlind:
        return "colour-blind";
    case Theme::Light:
        break;
    }
    return "light";
}

std::optional<CThemeValues> findTheme(std::string_view name)
{
    for (const CNamedTheme& theme : kThemes) {
        if (theme.name == name)
            return theme.values;
    }
    return std::nullopt;
}

std::string_view themeValue(std::string_view theme, std::string_view setting)
{
    for (const CThemeValue& value : findTheme(theme).value_or(CThemeValues())) {
        if (value.setting == setting)
            return value.value;
    }
    return {};
}

} // namespace tovangl
