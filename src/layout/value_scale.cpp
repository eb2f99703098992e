// SPDX-License-Identifier: MIT
// Maps values to pixels along a value axis.
#include "layout/value_scale.h"

#include "base/pixel_arithmetic.h"
#include "base/wide_integer.h"

#include <algorithm>

namespace tovangl {

namespace {

// The distance of two values; exact for any two.
double distance(long long a, long long b)
{
    const auto greater = static_cast<std::uint64_t>(std::max(a, b));
    const auto lesser = static_cast<std::uint64_t>(std::min(a, b));
    return static_cast<double>(greater - lesser);
}

int pixelsOf(std::int64_t span, double value, double range)
{
    return range == 0.0 ? 0 : truncateToInt(static_cast<double>(span) * value / range);
}

} // namespace

int CValueScale::size(long long value) const
{
    return pixelsOf(span, static_cast<double>(value), distance(min, max));
}

int CValueScale::coord(long long value) const
{
    const double belowZero = static_cast<double>(magnitudeOf(min));
    // Deliberate: zero is truncated separately, not together with the value, so that a value has
    // the same length in pixels on either side of zero, wherever zero stands.
    const int zero = pixelsOf(span, belowZero, distance(min, max));
    return clampToInt(std::int64_t{start} + zero + size(value));
}

} // namespace tovangl
