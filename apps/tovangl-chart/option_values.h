// SPDX-License-Identifier: MIT
/// @file
/// Parses the values of options. Every parse… function throws CFailure with the reason if the text
/// has another form.
#ifndef TOVANGL_CHART_OPTION_VALUES_H
#define TOVANGL_CHART_OPTION_VALUES_H

#include <tovangl/Color.h>

#include <optional>
#include <string>
#include <string_view>

namespace tovangl::program {

struct PictureSize
{
    int width = 800;
    int height = 600;
};

struct LocaleName
{
    std::string language;
    std::string country;
};

struct AxisPosition
{
    int x = -1; // negative: left to the layout
    int y = -1;
};

/// "#rrggbb", in upper or lower case; nothing if the text has another form.
[[nodiscard]] std::optional<Color> findColor(std::string_view text);

/// The value of an item: a 64-bit whole number, with or without a sign.
[[nodiscard]] long parseItemValue(std::string_view text);

/// A whole number that fits into an int.
[[nodiscard]] int parseWhole(std::string_view text);

/// A decimal number, such as 2 or 1.5.
[[nodiscard]] double parseReal(std::string_view text);

/// Any text in UTF-8.
[[nodiscard]] std::string parseText(std::string_view text);

[[nodiscard]] Color parseColor(std::string_view text);

/// "800x600"
[[nodiscard]] PictureSize parseSize(std::string_view text);

/// "60,200"; a negative number leaves that axis to the layout.
[[nodiscard]] AxisPosition parsePosition(std::string_view text);

/// "de_AT", "de-AT" or "C"
[[nodiscard]] LocaleName parseLocale(std::string_view text);

/// Names of axis properties, separated by commas, or "none".
///
/// @return the sum of their AxisProperty bits
[[nodiscard]] int parseAxisProperties(std::string_view text);

/// The names of all axis properties, for the help.
[[nodiscard]] std::string axisPropertyNames();

} // namespace tovangl::program

#endif
