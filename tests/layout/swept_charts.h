// SPDX-License-Identifier: MIT
/// @file
/// Charts that differ from the next one in a single setting, to be compared between builds.
#ifndef TOVANGL_LAYOUT_SWEPT_CHARTS_H
#define TOVANGL_LAYOUT_SWEPT_CHARTS_H

#include "layout/chart_file.h"

#include <string>
#include <vector>

namespace tovangl {

/// A chart that no file describes. The name tells the sweep and the setting: "width_126_pie".
struct CSweptChart
{
    std::string name;
    CChartFile chart;
};

/// All of them, always the same: widths from 40 to 300, font sizes from -3 to 40, locales of many
/// scripts, every sum of options, and captions that are too long for any room.
[[nodiscard]] std::vector<CSweptChart> sweptCharts();

} // namespace tovangl

#endif
