// SPDX-License-Identifier: MIT
/// @file
/// A chart's title in its place.
#ifndef TOVANGL_LAYOUT_CCHARTTITLE_H
#define TOVANGL_LAYOUT_CCHARTTITLE_H

#include "layout/CPlacedText.h"

namespace tovangl {

struct CChartTitle
{
    CPlacedText text;
    QRect rect; ///< what the text covers on the picture

    /// The first row of pixels below the title. The chart begins there, with its own margin.
    [[nodiscard]] int chartTop() const { return rect.bottom() + 1; }
};

} // namespace tovangl

#endif
