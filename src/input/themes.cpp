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

// Outlines as dark as the picture part the light colours.
constexpr CThemeValue kDark[] = {
    {"palette", "#6cace4,#f4a259,#a78bda,#7bc8a4,#e9d66b,#ee7f8f"},
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

// Dark and light colours in turn: neighbours differ in lightness by their fillings alone.
constexpr CThemeValue kHighContrast[] = {
    {"palette", "#0057d9,#ffd400,#c8102e,#ffffff,#007a33,#7fe0ff"},
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

// Colours of Okabe and Ito, "Color Universal Design" (2008), less two: any two of these six can be
// told apart with any kind of colour blindness, and none is as dark as the outlines.
constexpr CThemeValue kColorBlind[] = {
    {"palette", "#0072b2,#e69f00,#56b4e9,#d55e00,#009e73,#f0e442"},
    {"picture_color", "#ffffff"},
    {"plot_color", "#ffffff"},
    {"border_color", "#767676"},
    {"text_color", "#000000"},
    {"axis_color", "#000000"},
    {"axis_title_color", "#000000"},
    {"grid_color", "#b0b0b0"},
    {"value_color", "#000000"},
    {"outline_color", "#202020"},
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
