// SPDX-License-Identifier: MIT
#include "layout/axis_spaces.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr CEdgeOfPicture kEdge{300, 10, 1};

void expectSpace(const CAxisSpace& actual, int space, int thickness)
{
    EXPECT_EQ(actual.space, space);
    EXPECT_EQ(actual.thickness, thickness);
}

TEST(FixedPosition, LiesWithinThePicture)
{
    EXPECT_TRUE(isFixedPosition(0, 300));
    EXPECT_TRUE(isFixedPosition(299, 300));
    EXPECT_FALSE(isFixedPosition(300, 300));
    EXPECT_FALSE(isFixedPosition(-1, 300));
}

TEST(FixedNearSpace, BeyondTheMarginIsTheRestOfTheDistance)
{
    expectSpace(fixedNearSpace(11, kEdge), 10, 1 + 1);
    expectSpace(fixedNearSpace(60, kEdge), 10, 50 + 1);
}

TEST(FixedNearSpace, InsideTheMarginIsTheLineAlone)
{
    expectSpace(fixedNearSpace(10, kEdge), 10, 1);
    expectSpace(fixedNearSpace(3, kEdge), 3, 1);
    expectSpace(fixedNearSpace(0, kEdge), 0, 1);
}

TEST(FixedFarSpace, IsMeasuredFromTheOppositeEdge)
{
    expectSpace(fixedFarSpace(239, kEdge), 10, 50 + 1);
    expectSpace(fixedFarSpace(289, kEdge), 10, 1);
    expectSpace(fixedFarSpace(296, kEdge), 3, 1);
    expectSpace(fixedFarSpace(299, kEdge), 0, 1);
    expectSpace(fixedFarSpace(0, kEdge), 10, 289 + 1);
}

TEST(FreeSpace, IsAsThickAsTheAxisWantsUpToAQuarterOfThePicture)
{
    expectSpace(freeSpace(40, kEdge), 10, 40);
    expectSpace(freeSpace(75, kEdge), 10, 75);
    expectSpace(freeSpace(76, kEdge), 10, 75);
    expectSpace(freeSpace(40, {7, 10, 1}), 10, 1);
}

TEST(FreeSpace, HasNoShareOfTheLineAdded)
{
    expectSpace(freeSpace(0, kEdge), 10, 0);
}

} // namespace
} // namespace tovangl
