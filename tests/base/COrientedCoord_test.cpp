// SPDX-License-Identifier: MIT
#include "base/COrientedCoord.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

TEST(COrientedCoord, StartsAtZero)
{
    EXPECT_EQ(COrientedCoord(), COrientedCoord(0, 0));
}

TEST(COrientedCoord, RunsAlongXOnAHorizontalAxisAndAlongYOnAVerticalOne)
{
    const COrientedCoord coord(3, 7);
    EXPECT_EQ(coord.resolve(true), QPoint(3, 7));
    EXPECT_EQ(coord.resolve(false), QPoint(7, 3));
}

TEST(COrientedCoord, AddsComponentByComponent)
{
    EXPECT_EQ(COrientedCoord(3, 7) + COrientedCoord(10, -20), COrientedCoord(13, -13));
}

} // namespace
} // namespace tovangl
