// SPDX-License-Identifier: MIT
// How values divide a full circle.
#include "layout/slice_angles.h"

#include "base/circle_geometry.h"
#include "base/pixel_arithmetic.h"
#include "base/wide_integer.h"

#include <algorithm>
#include <limits>

namespace tovangl {

namespace {

// Totals below this are divided in integers: a value times the full circle fits into 64 bits.
constexpr WideUnsigned kLeastFloatingTotal = std::numeric_limits<int>::max();

WideUnsigned totalOf(const std::vector<long long>& values)
{
    WideUnsigned total = 0;
    for (const long long value : values)
        total += magnitudeOf(value);
    return total;
}

int spanOf(long long value, WideUnsigned total)
{
    if (total < kLeastFloatingTotal)
        return static_cast<int>(value * cdraw::kFullCircle / static_cast<long long>(total));
    return truncateToInt(static_cast<double>(value) * double{cdraw::kFullCircle} /
                         static_cast<double>(total));
}

// If even the greatest span was truncated to 0, so were all others: its slice becomes the whole
// disc, and its direction does not show.
int closeCircle(int span, int rest)
{
    return span > 0 ? span + rest : span - rest;
}

} // namespace

std::vector<CSliceAngles> computeSliceAngles(const std::vector<long long>& values, int startAngle,
                                             int direction)
{
    std::vector<CSliceAngles> slices(values.size());
    const WideUnsigned total = totalOf(values);
    if (total > 0) {
        int sum = 0;
        for (std::size_t i = 0; i < values.size(); ++i) {
            const int span = spanOf(values[i], total);
            slices[i].span = direction * span;
            sum += span;
        }
        const auto greatest = std::max_element(values.begin(), values.end()) - values.begin();
        int& span = slices[static_cast<std::size_t>(greatest)].span;
        if (sum != cdraw::kFullCircle)
            span = closeCircle(span, cdraw::kFullCircle - sum);
    }

    int angle = startAngle;
    for (CSliceAngles& slice : slices) {
        slice.start = angle;
        angle += slice.span;
    }
    return slices;
}

} // namespace tovangl
