// SPDX-License-Identifier: MIT
/// @file
/// How a full circle is shared among values.
#ifndef TOVANGL_PIE_SLICE_ANGLES_H
#define TOVANGL_PIE_SLICE_ANGLES_H

#include <vector>

namespace tovangl {

/// Where a slice begins and how far it reaches, in sixteenths of a degree, counter-clockwise.
struct CSliceAngles
{
    int start = 0;
    int span = 0; ///< negative for a clockwise slice
};

/// Gives each value its share of the circle, one slice behind the other. What truncation leaves
/// over goes to the slice of the greatest value, so that the circle closes. Values that are all 0
/// get no span.
///
/// @param startAngle  where the first slice begins, in sixteenths of a degree
/// @param direction   1 counter-clockwise, -1 clockwise
[[nodiscard]] std::vector<CSliceAngles> computeSliceAngles(const std::vector<long long>& values,
                                                           int startAngle, int direction);

} // namespace tovangl

#endif
