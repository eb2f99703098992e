// SPDX-License-Identifier: MIT
/// @file
/// Draws a described chart and tells its layout.
#ifndef TOVANGL_LAYOUT_DRAWN_CHART_H
#define TOVANGL_LAYOUT_DRAWN_CHART_H

#include "layout/chart_file.h"

#include <QImage>

#include <string>

namespace tovangl {

/// A picture, and the layout that it was drawn from: every rectangle, every text where and as it
/// was painted, what was hidden or turned, sizes and scale.
struct CDrawnChart
{
    QImage image;
    std::string layout;
};

[[nodiscard]] CDrawnChart drawChart(const CChartFile& file);

} // namespace tovangl

#endif
