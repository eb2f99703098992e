// SPDX-License-Identifier: MIT
/// @file
/// How an axis line's width is shared between its two sides.
#ifndef TOVANGL_AXES_LINE_SHARE_H
#define TOVANGL_AXES_LINE_SHARE_H

#include "core/pixel_arithmetic.h"

namespace tovangl {

/// The part of a line's width, in pixels, that lies on the side of the labels.
///
/// Deliberate: the share of an axis with labels at its top or left is the greater half, and more
/// than that for an even width, so that a line of one pixel counts there and nowhere else.
[[nodiscard]] constexpr int lineShare(int lineWidth, bool isTopOrLeft)
{
    const std::int64_t greaterHalf = lineWidth < 0 ? 0 : (std::int64_t{lineWidth} + 2) / 2;
    return clampToInt(isTopOrLeft ? greaterHalf : lineWidth - greaterHalf);
}

} // namespace tovangl

#endif
