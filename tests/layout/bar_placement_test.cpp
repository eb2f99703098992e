// SPDX-License-Identifier: MIT
#include "layout/bar_placement.h"

#include <gtest/gtest.h>
#include <limits>

namespace tovangl {
namespace {

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

QRect edges(int left, int top, int right, int bottom)
{
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

TEST(DerivedBarWidth, FillsSeventyPerCentOfTheAxis)
{
    EXPECT_EQ(derivedBarWidth(401, 4), 70);
    EXPECT_EQ(derivedBarWidth(10, 1), 7);
    EXPECT_EQ(derivedBarWidth(100, 1000), 0);
}

TEST(DerivedBarWidth, WithoutCategoriesIsZero)
{
    EXPECT_EQ(derivedBarWidth(401, 0), 0);
}

TEST(CategoryShift, IsOneGapAndHalfABar)
{
    // 400 - 4 x 70 leave 120 pixels for five gaps.
    EXPECT_EQ(categoryShift({4, 400, 70}, 0), 24 + 35);
}

TEST(CategoryShift, CutsTheSumOfGapAndHalfBarOnce)
{
    // (100 - 3 x 21) / 4 = 9.25 and 10.5.
    EXPECT_EQ(categoryShift({3, 100, 21}, 0), 19);
}

TEST(CategoryShift, GapIsNotAWholeNumber)
{
    // (10 - 2 x 1) / 3 = 2.67 and 0.5.
    EXPECT_EQ(categoryShift({2, 10, 1}, 0), 3);
}

TEST(CategoryShift, IsAtLeastHalfALabel)
{
    EXPECT_EQ(categoryShift({4, 400, 70}, 118), 59);
    EXPECT_EQ(categoryShift({4, 400, 70}, 121), 60);
}

TEST(CategoryShift, HasNoGapWhereBarsAreWiderThanTheAxis)
{
    EXPECT_EQ(categoryShift({4, 400, 200}, 0), 100);
    EXPECT_EQ(categoryShift({100000, 400, kMost}, 0), kMost / 2);
}

TEST(CategoryShift, WithoutCategoriesIsTheLengthOfTheAxis)
{
    EXPECT_EQ(categoryShift({0, 400, 0}, 0), 400);
}

TEST(CategoryPitch, SharesTheSpanAmongTheGaps)
{
    EXPECT_DOUBLE_EQ(categoryPitch(100, 5), 25.0);
    EXPECT_DOUBLE_EQ(categoryPitch(100, 4), 100.0 / 3.0);
    EXPECT_DOUBLE_EQ(categoryPitch(-30, 4), -10.0);
}

TEST(CategoryPitch, OfOneCategoryIsZero)
{
    EXPECT_DOUBLE_EQ(categoryPitch(100, 1), 0.0);
    EXPECT_DOUBLE_EQ(categoryPitch(100, 0), 0.0);
}

TEST(BarRectangle, OfAnUprightBarHasItsWidthAcrossThePicture)
{
    EXPECT_EQ(barRectangle({50, 20, -100, 0}, true), edges(40, -100, 59, -1));
}

TEST(BarRectangle, OfALyingBarHasItsWidthDownThePicture)
{
    EXPECT_EQ(barRectangle({50, 20, 0, 100}, false), edges(0, 40, 99, 59));
}

TEST(BarRectangle, TakesItsEndsInAnyOrder)
{
    EXPECT_EQ(barRectangle({50, 20, 100, 30}, false), barRectangle({50, 20, 30, 100}, false));
    EXPECT_EQ(barRectangle({50, 20, 0, -100}, true), barRectangle({50, 20, -100, 0}, true));
}

TEST(BarRectangle, CutsTheStartTowardZero)
{
    EXPECT_EQ(barRectangle({50, 21, 0, 1}, true).left(), 39);
    EXPECT_EQ(barRectangle({-50, 21, 0, 1}, true).left(), -60);
}

TEST(BarRectangle, WithoutExtentIsNotValid)
{
    EXPECT_FALSE(barRectangle({50, 20, 7, 7}, true).isValid());
    EXPECT_FALSE(barRectangle({50, 0, 0, 10}, true).isValid());
}

TEST(BarRectangle, StaysInTheRangeOfPixels)
{
    EXPECT_EQ(barRectangle({0, kMost, kLeast, kMost}, true),
              edges(-(kMost / 2), kLeast, kMost / 2, kMost - 1));
    EXPECT_EQ(barRectangle({2.0 * kMost, kMost, 0, 1}, false),
              edges(0, kMost / 2 + 1 + kMost / 2, 0, kMost));
}

} // namespace
} // namespace tovangl
