// SPDX-License-Identifier: MIT
#include "base/pixel_arithmetic.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();

TEST(PixelArithmetic, TruncationGoesTowardZeroOnBothSides)
{
    EXPECT_EQ(truncateToInt(2.9), 2);
    EXPECT_EQ(truncateToInt(-2.9), -2);
}

TEST(PixelArithmetic, TruncationClampsWhatAnIntCannotHold)
{
    EXPECT_EQ(truncateToInt(1e300), kMax);
    EXPECT_EQ(truncateToInt(-1e300), kMin);
    EXPECT_EQ(truncateToInt(INFINITY), kMax);
    EXPECT_EQ(truncateToInt(-INFINITY), kMin);
    EXPECT_EQ(truncateToInt(NAN), 0);
}

TEST(PixelArithmetic, ScaledMeasuresClampInsteadOfWrapping)
{
    EXPECT_EQ(scalePixels(10, 3), 30);
    EXPECT_EQ(scalePixels(kMax, kMax), kMax);
    EXPECT_EQ(scalePixels(kMin, kMax), kMin);
}

TEST(PixelArithmetic, SumsClampInsteadOfWrapping)
{
    EXPECT_EQ(addPixels(kMax, 1), kMax);
    EXPECT_EQ(addPixels(kMin, -1), kMin);
}

} // namespace
} // namespace tovangl
