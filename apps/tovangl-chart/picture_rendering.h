// SPDX-License-Identifier: MIT
/// @file
/// Renders a chart in the format that is wanted, and asks it what is where.
#ifndef TOVANGL_CHART_PICTURE_RENDERING_H
#define TOVANGL_CHART_PICTURE_RENDERING_H

#include "tovangl-chart/given_settings.h"
#include "tovangl-chart/option_values.h"
#include "tovangl-chart/picture_format.h"
#include "tovangl-chart/region_map.h"
#include <tovangl/Graph.h>

#include <optional>
#include <string>

namespace tovangl::program {

/// The bytes of a picture; empty if there is none. Graph::problemText() then tells why.
///
/// @param printFactor  draws a PNG picture for print; the other formats have no pixels
[[nodiscard]] std::string renderPicture(Graph& chart, PictureFormat format, PictureSize size,
                                        std::optional<int> printFactor);

/// What the last rendering of a chart reports about itself, without bars and slices.
///
/// @param kind      name of the chart's command
/// @param size      in pixels of the regions
/// @param settings  those that the chart has
[[nodiscard]] ChartRegions captionRegions(Graph& chart, const char* kind, PictureSize size,
                                          const GivenSettings& settings);

} // namespace tovangl::program

#endif
