// SPDX-License-Identifier: MIT
/// @file
/// How the width of an axis line is split between the axis and the plot.
#ifndef TOVANGL_LAYOUT_LINE_SHARE_H
#define TOVANGL_LAYOUT_LINE_SHARE_H

#include "base/pixel_arithmetic.h"

namespace tovangl {

/// The number of pixels of a line's width that count toward the axis, on the side of its labels.
/// The others count toward the plot.
///
/// Deliberate: with labels at the top or left this is the larger part: 1 of 1 pixel, 2 of 2, 2 of
/// 3, 3 of 4. On the other two sides it is the rest, so that a line of one pixel counts toward
/// exactly one side.
[[nodiscard]] constexpr int lineShare(int lineWidth, bool isTopOrLeft)
{
    const std::int64_t greaterHalf = lineWidth < 0 ? 0 : (std::int64_t{lineWidth} + 2) / 2;
    return clampToInt(isTopOrLeft ? greaterHalf : lineWidth - greaterHalf);
}

} // namespace tovangl

#endif
