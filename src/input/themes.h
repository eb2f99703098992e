// SPDX-License-Identifier: MIT
/// @file
/// The themes: nothing but values of settings.
#ifndef TOVANGL_INPUT_THEMES_H
#define TOVANGL_INPUT_THEMES_H

#include <tovangl/Theme.h>

#include <optional>
#include <string_view>

namespace tovangl {

/// The names of all themes, with commas between them.
inline constexpr const char* kThemeNames = "light,dark,high-contrast,colour-blind";

/// The name of a theme; that of Light for a number that is none.
[[nodiscard]] const char* themeName(Theme theme);

/// A setting, and the value that a theme gives to it.
struct CThemeValue
{
    std::string_view setting;
    std::string_view value;
};

/// The values of a theme, for a range-based for.
struct CThemeValues
{
    const CThemeValue* first = nullptr;
    const CThemeValue* last = nullptr;

    [[nodiscard]] const CThemeValue* begin() const { return first; }
    [[nodiscard]] const CThemeValue* end() const { return last; }
};

/// What a theme sets; nothing where there is no theme of that name. Every theme sets the same
/// settings, so that the last one alone decides.
[[nodiscard]] std::optional<CThemeValues> findTheme(std::string_view name);

/// The value of one setting in a theme; empty where there is none.
[[nodiscard]] std::string_view themeValue(std::string_view theme, std::string_view setting);

} // namespace tovangl

#endif
