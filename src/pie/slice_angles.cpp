// SPDX-License-Identifier: MIT
// How a full circle is shared among values.
#include "pie/slice_angles.h"

#include "core/pixel_arithmetic.h"
#include "core/wide_integer.h"
#include "draw/circle_geometry.h"

#include <algorithm>
#include <limits>

namespace tovangl {

namespace {

// Totals below this are shared in whole numbers: a value times the full circle fits into 64 bits.
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

// A greatest span that was cut to 0 stands among others that were as well: its slice becomes the
// whole disc, and nobody sees which way it runs.
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
