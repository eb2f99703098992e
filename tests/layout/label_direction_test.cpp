// SPDX-License-Identifier: MIT
#include "layout/label_direction.h"

#include <gtest/gtest.h>
#include <limits>

namespace tovangl {
namespace {

// An axis of 400 pixels with a line of one, and labels 50 wide.
constexpr LabelDirection directionOf(std::int64_t count)
{
    return chooseLabelDirection(count, 50, 399, 399);
}

TEST(LabelDirection, OneRowHasRoomForEightLabels)
{
    EXPECT_EQ(directionOf(1), LabelDirection::Along);
    EXPECT_EQ(directionOf(8), LabelDirection::Along);
}

TEST(LabelDirection, TwoRowsHaveRoomForSixteen)
{
    EXPECT_EQ(directionOf(9), LabelDirection::AlongTwoRows);
    EXPECT_EQ(directionOf(16), LabelDirection::AlongTwoRows);
}

TEST(LabelDirection, MoreAreTurned)
{
    EXPECT_EQ(directionOf(17), LabelDirection::Across);
    EXPECT_EQ(directionOf(100000), LabelDirection::Across);
}

TEST(LabelDirection, HasOneLabelWidthToSpare)
{
    EXPECT_EQ(chooseLabelDirection(2, 50, 50, 50), LabelDirection::Along);
    EXPECT_EQ(chooseLabelDirection(2, 50, 49, 49), LabelDirection::AlongTwoRows);
    EXPECT_EQ(chooseLabelDirection(3, 50, 50, 50), LabelDirection::AlongTwoRows);
    EXPECT_EQ(chooseLabelDirection(3, 50, 49, 49), LabelDirection::Across);
}

TEST(LabelDirection, AsksEachRowCountForItsOwnSpan)
{
    EXPECT_EQ(chooseLabelDirection(4, 50, 149, 75), LabelDirection::AlongTwoRows);
    EXPECT_EQ(chooseLabelDirection(4, 50, 149, 74), LabelDirection::Across);
}

TEST(LabelDirection, WithoutLabelsIsOneRow)
{
    EXPECT_EQ(chooseLabelDirection(0, 0, 0, 0), LabelDirection::Along);
}

TEST(LabelDirection, DoesNotWrapForManyWideLabels)
{
    constexpr std::int64_t kWidest = std::numeric_limits<int>::max();
    EXPECT_EQ(chooseLabelDirection(100000, kWidest, 399, 399), LabelDirection::Across);
}

} // namespace
} // namespace tovangl
