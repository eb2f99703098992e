// SPDX-License-Identifier: MIT
/// @file
/// The grid lines of a value axis.
#ifndef TOVANGL_LAYOUT_GRID_LINES_H
#define TOVANGL_LAYOUT_GRID_LINES_H

#include "layout/CBarLayout.h"

#include <vector>

namespace tovangl {

/// The colours of a plot's borders and grid lines, at its top and its bottom.
inline const QColor kBorderTop(179, 190, 204);
inline const QColor kBorderBottom(204, 204, 204);

/// A grid line at every visible tick, across the plot to the right of the axis or below it.
///
/// @param length  pixels from the axis to the far end of the lines; a negative one gives no lines
/// @param colors  of the first line and of a line for the last tick
[[nodiscard]] std::vector<CStraightLine> drawLabelLines(const CAxisLayout& axis, int length,
                                                        const CVerticalFade& colors);

} // namespace tovangl

#endif
