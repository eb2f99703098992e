// SPDX-License-Identifier: MIT
/// @file
/// The sharing of the circle in its plainest form: step by step, in integers that nothing
/// overflows.
#ifndef TOVANGL_LAYOUT_PLAIN_SLICE_ANGLES_H
#define TOVANGL_LAYOUT_PLAIN_SLICE_ANGLES_H

#include "base/wide_integer.h"
#include "layout/slice_angles.h"

#include <vector>

namespace tovangl {

inline std::vector<CSliceAngles> plainSliceAngles(const std::vector<long long>& values,
                                                  int startAngle, int direction)
{
    constexpr int kCircle = 5760;
    constexpr WideInt kWholeNumbers = 0x7fffffff;
    std::vector<CSliceAngles> slices(values.size());
    WideInt total = 0;
    for (const long long value : values)
        total += value < 0 ? -WideInt{value} : WideInt{value};

    int sum = 0;
    std::size_t greatest = 0;
    for (std::size_t i = 0; total > 0 && i < values.size(); ++i) {
        const int span = total < kWholeNumbers
                             ? static_cast<int>(WideInt{values[i]} * kCircle / total)
                             : static_cast<int>(static_cast<double>(values[i]) * 5760.0 /
                                                static_cast<double>(total));
        slices[i].span = direction * span;
        sum += span;
        greatest = values[i] > values[greatest] ? i : greatest;
    }
    if (total > 0 && sum != kCircle)
        slices[greatest].span += slices[greatest].span > 0 ? kCircle - sum : sum - kCircle;

    int angle = startAngle;
    for (CSliceAngles& slice : slices) {
        slice.start = angle;
        angle += slice.span;
    }
    return slices;
}

} // namespace tovangl

#endif
