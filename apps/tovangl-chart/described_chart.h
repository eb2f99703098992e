// SPDX-License-Identifier: MIT
/// @file
/// Draws a chart that is described as data.
#ifndef TOVANGL_CHART_DESCRIBED_CHART_H
#define TOVANGL_CHART_DESCRIBED_CHART_H

#include "tovangl-chart/chart_description.h"
#include "tovangl-chart/picture_format.h"
#include "tovangl-chart/region_map.h"

#include <optional>
#include <string>

namespace tovangl::program {

/// What is wanted of every chart.
struct DrawingRules
{
    PictureFormat format = PictureFormat::Png; ///< a factor for print is for PNG alone
    std::string family = {}; ///< the font's, where a description names none; empty for the default
    bool wantsRegions = true;
};

struct DrawnChart
{
    std::string picture;
    std::optional<ChartRegions> regions; ///< where they are wanted
    std::string problem; ///< one sentence about the picture; empty where all is well
};

/// Throws CFailure with the place and the reason if a setting or a link is refused, or there is no
/// picture. Different threads can draw at once.
[[nodiscard]] DrawnChart drawDescription(const ChartDescription& description,
                                         const DrawingRules& rules);

} // namespace tovangl::program

#endif
