// SPDX-License-Identifier: MIT
/// @file
/// One item as read.
#ifndef TOVANGL_CHART_CHARTITEM_H
#define TOVANGL_CHART_CHARTITEM_H

#include <tovangl/Color.h>

#include <optional>
#include <string>
#include <vector>

namespace tovangl::program {

struct ChartItem
{
    long value = 0;
    std::string caption;
    std::optional<Color> fill;
    std::optional<Color> outline; // only beside a fill
    std::string link = {};        // an address that the item leads to; empty: none
};

using ChartItems = std::vector<ChartItem>;

/// Stands for a missing colour: the library then uses its default.
inline constexpr Color kNoColor = {-1, -1, -1};

} // namespace tovangl::program

#endif
