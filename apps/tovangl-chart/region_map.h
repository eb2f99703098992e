// SPDX-License-Identifier: MIT
/// @file
/// Where each item was drawn, as JSON.
#ifndef TOVANGL_CHART_REGION_MAP_H
#define TOVANGL_CHART_REGION_MAP_H

#include "tovangl-chart/ChartItem.h"
#include "tovangl-chart/option_values.h"
#include <tovangl/Rectangle.h>
#include <tovangl/Slice.h>

#include <cstddef>
#include <list>
#include <optional>
#include <string>

namespace tovangl::program {

/// The item that gathers what the threshold left out.
struct OthersItem
{
    std::string caption;
    std::size_t count = 0; ///< of the items that it gathers
    long value = 0;        ///< their sum
    std::string link = {}; ///< an address that the item leads to; empty: none
};

/// What a rendered chart reports about itself. Every list has one record for each item, and then
/// one for the others if there are any to be gathered.
struct ChartRegions
{
    std::string kind;        ///< name of the chart's command
    std::string description; ///< one sentence, for an alternative text
    PictureSize size;        ///< in pixels of the picture
    std::string title;       ///< empty: none
    Rectangle titleRectangle{};
    std::optional<OthersItem> others;
    std::list<Rectangle> captions;
    std::optional<std::list<Rectangle>> bars; ///< a pie has none
    std::optional<std::list<Slice>> slices;   ///< only a pie has them
};

/// An object with the chart's kind, description, title and size, and for each item and the others
/// the value, the caption, the link where there is one, and the regions, null where nothing was
/// drawn.
[[nodiscard]] std::string regionMapJson(const ChartItems& items, const ChartRegions& regions);

/// The same object without any line break.
[[nodiscard]] std::string regionMapLine(const ChartItems& items, const ChartRegions& regions);

} // namespace tovangl::program

#endif
