// SPDX-License-Identifier: MIT
/// @file
/// Reads items. Each has a line of its own: a whole number, white space, a caption, and colours
/// after tabs. Or they come from a table.
#ifndef TOVANGL_CHART_ITEM_LINES_H
#define TOVANGL_CHART_ITEM_LINES_H

#include "tovangl-chart/ChartItem.h"
#include "tovangl-chart/ItemSource.h"

#include <string_view>

namespace tovangl::program {

/// How many colours can end a line.
enum class LineColors
{
    Fill,          ///< one
    FillAndOutline ///< one or two
};

/// Reads one line. White space before the number is skipped, and so is all white space up to the
/// caption. A field after the last tab is a colour if it has the form "#rrggbb"; otherwise it
/// belongs to the caption. Throws CFailure with the reason if the line is not an item.
[[nodiscard]] ChartItem parseItemLine(std::string_view line, LineColors colors);

/// Whether a line is there for people: it is empty or blank, or begins with a '#' on its own or
/// before a space. "#3 x" is no comment, so that a mistyped item is never lost.
[[nodiscard]] bool isPassedOver(std::string_view line);

/// Reads all items. Throws CFailure with the place and the reason.
///
/// @param colors  of lines; a table has one colour
[[nodiscard]] ChartItems readItems(const ItemSource& source, LineColors colors);

} // namespace tovangl::program

#endif
