// SPDX-License-Identifier: MIT
// Vertical blocks of equally high label slots.
#include "layout/zone_arithmetic.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr double kSlot = 10;
constexpr CZoneRange kWide{-1000, 1000};

TEST(ZoneBlock, IsCentredOnItsMeanPlusItsShift)
{
    const CZoneBlock block{5, 3, 2};
    EXPECT_EQ(block.top(kSlot), -8);
    EXPECT_EQ(block.bottom(kSlot), 22);
}

TEST(ZoneOverlap, CountsTouchingBlocks)
{
    EXPECT_TRUE(isOverlap({0, 1, 0}, {10, 1, 0}, kSlot));
    EXPECT_FALSE(isOverlap({0, 1, 0}, {10.001, 1, 0}, kSlot));
}

TEST(ZoneOverlap, SeesTheShifts)
{
    EXPECT_TRUE(isOverlap({0, 1, 5}, {15, 1, 0}, kSlot));
    EXPECT_FALSE(isOverlap({0, 1, 0}, {5, 1, 6}, kSlot));
}

TEST(ZoneMerge, WeighsTheMeanByTheSlots)
{
    const CZoneBlock merged = mergeBlocks({0, 3, 0}, {8, 1, 0}, kSlot, kWide);
    EXPECT_EQ(merged.count, 4);
    EXPECT_EQ(merged.avg, 2);
    EXPECT_EQ(merged.shift, 0);
}

TEST(ZoneMerge, LeavesThePartsShiftsOutOfTheMean)
{
    EXPECT_EQ(mergeBlocks({0, 1, 50}, {4, 1, -9}, kSlot, kWide).avg, 2);
}

TEST(ZoneMerge, PushesABlockDownToStartExactlyAtTheTopOfTheRange)
{
    const CZoneBlock merged = mergeBlocks({-98, 1, 0}, {-94, 1, 0}, kSlot, {-100, 100});
    EXPECT_EQ(merged.shift, 6);
    EXPECT_EQ(merged.top(kSlot), -100);
}

TEST(ZoneMerge, PullsABlockUpToEndAtTheBottomOfTheRange)
{
    const CZoneBlock merged = mergeBlocks({94, 1, 0}, {98, 1, 0}, kSlot, {-100, 100});
    EXPECT_EQ(merged.shift, -6);
    EXPECT_EQ(merged.bottom(kSlot), 100);
}

TEST(ZoneMerge, LetsTheTopWinWhereABlockIsTooHigh)
{
    const CZoneBlock merged = mergeBlocks({0, 3, 0}, {0, 3, 0}, kSlot, {-20, 20});
    EXPECT_EQ(merged.top(kSlot), -20);
    EXPECT_EQ(merged.bottom(kSlot), 40);
}

TEST(SurplusSlots, AreThoseBeyondWhatFitsStrictly)
{
    EXPECT_EQ(countSurplusSlots(9, kSlot, {0, 100}), 0u);
    EXPECT_EQ(countSurplusSlots(10, kSlot, {0, 100}), 1u);
    EXPECT_EQ(countSurplusSlots(25, kSlot, {0, 100}), 16u);
}

TEST(SurplusSlots, TakeTheRangeWhicheverWayRound)
{
    EXPECT_EQ(countSurplusSlots(12, kSlot, {100, 0}), 3u);
}

TEST(SurplusSlots, AreAllWhereThereIsNoRange)
{
    EXPECT_EQ(countSurplusSlots(3, 0, {5, 5}), 3u);
    EXPECT_EQ(countSurplusSlots(0, kSlot, {0, 0}), 0u);
}

TEST(CircleX, IsTheHalfChord)
{
    EXPECT_EQ(circleX(5, 3), 4);
    EXPECT_EQ(circleX(5, -4), 3);
}

TEST(CircleX, IsZeroAboveAndBelowTheCircle)
{
    EXPECT_EQ(circleX(5, 6), 0);
    EXPECT_EQ(circleX(5, -1e9), 0);
}

} // namespace
} // namespace tovangl
