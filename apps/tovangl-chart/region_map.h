// SPDX-License-Identifier: MIT
/// @file
/// Where each item was drawn, as JSON.
#ifndef TOVANGL_CHART_REGION_MAP_H
#define TOVANGL_CHART_REGION_MAP_H

#include "tovangl-chart/ChartItem.h"
#include "tovangl-chart/option_values.h"
#include <tovangl/Rectangle.h>

#include <list>
#include <optional>
#include <string>

namespace tovangl::program {

/// The bars of a chart as the library tells them: one for each item that the threshold left in.
struct DrawnBars
{
    std::list<Rectangle> rectangles;
    double threshold = 0; ///< per cent
};

/// What a map is made from.
struct ChartRegions
{
    std::string kind;              ///< name of the chart's command
    PictureSize size;              ///< in pixels of the picture
    std::list<Rectangle> captions; ///< one for each item
    std::optional<DrawnBars> bars; ///< a pie has none
};

/// One rectangle for each item; all zero where the item has no bar.
[[nodiscard]] std::vector<Rectangle> barsOfItems(const ChartItems& items, const DrawnBars& bars);

/// An object with the chart's kind and size, and for each item its value, its caption and the
/// rectangles, null where nothing was drawn.
[[nodiscard]] std::string regionMapJson(const ChartItems& items, const ChartRegions& regions);

} // namespace tovangl::program

#endif
