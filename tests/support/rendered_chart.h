// SPDX-License-Identifier: MIT
/// @file
/// All that a host gets from one rendering, to be compared with another one.
#ifndef TOVANGL_SUPPORT_RENDERED_CHART_H
#define TOVANGL_SUPPORT_RENDERED_CHART_H

#include "support/CAnyChart.h"

#include <list>
#include <string>

namespace tovangl {

/// What a chart is rendered as.
enum class PictureKind
{
    Screen,
    Print,
    Svg,
    Pdf
};

struct CRenderedChart
{
    std::string png;
    Rectangle title = {};
    std::list<Rectangle> items;
    std::list<Rectangle> bars;
    std::list<Rectangle> itemBars;
    std::list<Slice> slices;
    std::string description;
    Problem problem = Problem::None;
    std::string pdf = {}; ///< empty where none was made
};

/// Copies the bytes of an export, and everything else that the chart tells of it.
[[nodiscard]] CRenderedChart copyRendering(CAnyChart& chart, const CExport& picture);

/// Whether two renderings have equal pixels, PDF files, regions, descriptions and problems.
[[nodiscard]] bool isSameRendering(const CRenderedChart& a, const CRenderedChart& b);

} // namespace tovangl

#endif
