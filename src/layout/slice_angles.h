// SPDX-License-Identifier: MIT
/// @file
/// How values divide a full circle.
#ifndef TOVANGL_LAYOUT_SLICE_ANGLES_H
#define TOVANGL_LAYOUT_SLICE_ANGLES_H

#include <vector>

namespace tovangl {

/// Where a slice begins and how far it reaches, in sixteenths of a degree, counter-clockwise.
struct CSliceAngles
{
    int start = 0;
    int span = 0; ///< negative for a clockwise slice
};

/// Gives each value its share of the circle, one slice after the other. The slice of the greatest
/// value gets what truncation leaves over, so that the circle closes. If all values are 0, all
/// spans are 0.
///
/// @param startAngle  where the first slice begins, in sixteenths of a degree
/// @param direction   1 counter-clockwise, -1 clockwise
[[nodiscard]] std::vector<CSliceAngles> computeSliceAngles(const std::vector<long long>& values,
                                                           int startAngle, int direction);

} // namespace tovangl

#endif
