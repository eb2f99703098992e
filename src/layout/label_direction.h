// SPDX-License-Identifier: MIT
/// @file
/// The direction in which the labels of a horizontal axis read.
#ifndef TOVANGL_LAYOUT_LABEL_DIRECTION_H
#define TOVANGL_LAYOUT_LABEL_DIRECTION_H

#include <cstdint>

namespace tovangl {

enum class LabelDirection
{
    Across = 0,      ///< across the axis: upright text on a horizontal axis
    Along = 1,       ///< along the axis, in one row
    AlongTwoRows = 2 ///< along the axis, in two staggered rows
};

/// Along in one row if all labels fit, otherwise along in two rows, otherwise across.
///
/// @param count       number of labels
/// @param labelWidth  pixels, of the widest one
/// @param oneRowSpan  usable length of the axis in pixels with labels in one row
/// @param twoRowSpan  likewise with two rows
[[nodiscard]] constexpr LabelDirection chooseLabelDirection(std::int64_t count,
                                                            std::int64_t labelWidth,
                                                            std::int64_t oneRowSpan,
                                                            std::int64_t twoRowSpan)
{
    // Deliberate: one extra width, because the outer labels can reach half a label past the ends.
    if (count * labelWidth <= oneRowSpan + labelWidth)
        return LabelDirection::Along;
    if (count * labelWidth <= 2 * twoRowSpan + labelWidth)
        return LabelDirection::AlongTwoRows;
    return LabelDirection::Across;
}

} // namespace tovangl

#endif
