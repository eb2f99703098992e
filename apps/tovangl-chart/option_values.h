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

/// "#rrggbb", in upper or lower case; nothing if the text has another form.
[[nodiscard]] std::optional<Color> findColor(std::string_view text);

/// The value of an item: a 64-bit whole number, with or without a sign.
[[nodiscard]] long parseItemValue(std::string_view text);

/// A whole number that fits into an int.
[[nodiscard]] int parseWhole(std::string_view text);

/// Any text in UTF-8.
[[nodiscard]] std::string parseText(std::string_view text);

/// The name of a file, which is not empty.
[[nodiscard]] std::string parsePath(std::string_view text);

/// "800x600"
[[nodiscard]] PictureSize parseSize(std::string_view text);

} // namespace tovangl::program

#endif
