// SPDX-License-Identifier: MIT
/// @file
/// A chart as one page.
#ifndef TOVANGL_CHART_CHART_PAGE_H
#define TOVANGL_CHART_CHART_PAGE_H

#include "tovangl-chart/ChartItem.h"
#include "tovangl-chart/picture_format.h"
#include "tovangl-chart/region_map.h"

#include <optional>
#include <string>
#include <string_view>

namespace tovangl::program {

/// Whether a file name means a page: it ends in ".html" or ".htm", in upper or lower case.
[[nodiscard]] bool isPageName(std::string_view name);

/// A picture with several pixels for each pixel of the page.
struct DensePicture
{
    std::string png;
    int density; ///< how many, each way
};

struct ChartPictures
{
    std::string shown;                 ///< the regions belong to it
    std::optional<DensePicture> dense; ///< shown in its place on dense displays
    PictureFormat shownFormat = PictureFormat::Png;
    bool followsDisplay = false; ///< whether an SVG picture is dark on displays that are
};

/// The place of an item in the page's table, from 0: "item-1" for the first.
[[nodiscard]] std::string itemAnchor(std::size_t index);

/// A page that needs no other file: the picture, the regions of its items, and a table of the items
/// that the regions lead to. An SVG picture is taken to have links of its own there. The page is as
/// dark as its picture.
///
/// @param title  of the page; plain text
[[nodiscard]] std::string chartPageHtml(const std::string& title, const ChartPictures& pictures,
                                        const ChartItems& items, const ChartRegions& regions);

} // namespace tovangl::program

#endif
