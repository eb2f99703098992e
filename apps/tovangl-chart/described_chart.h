// SPDX-License-Identifier: MIT
/// @file
/// Draws a chart that is described as data.
#ifndef TOVANGL_CHART_DESCRIBED_CHART_H
#define TOVANGL_CHART_DESCRIBED_CHART_H

#include "tovangl-chart/chart_description.h"
#include "tovangl-chart/picture_format.h"
#include "tovangl-chart/region_map.h"

#include <string>

namespace tovangl::program {

struct DrawnChart
{
    std::string picture;
    ChartRegions regions;
    std::string problem; ///< one sentence about the picture; empty where all is well
};

/// Throws CFailure with the place and the reason if a setting or a link is refused, or there is no
/// picture. Different threads can draw at once.
///
/// @param format  of the picture; a factor for print is for PNG alone
/// @param family  the font's family where the description names none; empty for the default
[[nodiscard]] DrawnChart drawDescription(const ChartDescription& description, PictureFormat format,
                                         const std::string& family);

} // namespace tovangl::program

#endif
