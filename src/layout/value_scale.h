// SPDX-License-Identifier: MIT
/// @file
/// Maps values to pixels along a value axis.
#ifndef TOVANGL_LAYOUT_VALUE_SCALE_H
#define TOVANGL_LAYOUT_VALUE_SCALE_H

#include <cstdint>

namespace tovangl {

/// A linear scale over the usable part of an axis.
struct CValueScale
{
    long long min = 0;     ///< the value at the start of the scale
    long long max = 0;     ///< the value at its end
    int start = 0;         ///< pixels from the axis start to the start of the scale
    std::int64_t span = 0; ///< length of the scale in pixels; it can be negative

    /// The length of a value in pixels; 0 if the scale has no extent.
    [[nodiscard]] int size(long long value) const;

    /// Where a value stands, in pixels from the axis start.
    ///
    /// The position of zero and the length of the value are each truncated to whole pixels, so the
    /// greatest value can stand one pixel short of the end of the scale.
    [[nodiscard]] int coord(long long value) const;
};

} // namespace tovangl

#endif
