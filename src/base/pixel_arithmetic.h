// SPDX-License-Identifier: MIT
/// @file
/// The roundings, clamps and scalings of pixel geometry, each under one name.
#ifndef TOVANGL_BASE_PIXEL_ARITHMETIC_H
#define TOVANGL_BASE_PIXEL_ARITHMETIC_H

#include <cstdint>
#include <limits>

namespace tovangl {

/// The nearest value that an int can hold.
[[nodiscard]] constexpr int clampToInt(std::int64_t value)
{
    constexpr std::int64_t kMin = std::numeric_limits<int>::min();
    constexpr std::int64_t kMax = std::numeric_limits<int>::max();
    return static_cast<int>(value < kMin ? kMin : value > kMax ? kMax : value);
}

/// Truncates toward zero; values beyond int become the nearest int, NaN becomes 0.
[[nodiscard]] constexpr int truncateToInt(double value)
{
    constexpr double kMin = std::numeric_limits<int>::min();
    constexpr double kMax = std::numeric_limits<int>::max();
    if (!(value > kMin))
        return value <= kMin ? std::numeric_limits<int>::min() : 0;
    return value < kMax ? static_cast<int>(value) : std::numeric_limits<int>::max();
}

/// A pixel measure at the chart's resolution.
[[nodiscard]] constexpr int scalePixels(int pixels, int scale)
{
    return clampToInt(std::int64_t{pixels} * scale);
}

/// The sum of two pixel measures.
[[nodiscard]] constexpr int addPixels(int a, int b)
{
    return clampToInt(std::int64_t{a} + b);
}

/// The pixels from the first to the last one, both included; negative where the last one lies
/// before the first.
[[nodiscard]] constexpr std::int64_t inclusiveExtent(int first, int last)
{
    return std::int64_t{last} - first + 1;
}

} // namespace tovangl

#endif
