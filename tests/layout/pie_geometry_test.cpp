// SPDX-License-Identifier: MIT
// Where the pie and its ring of labels stand in the picture.
#include "layout/pie_geometry.h"

#include <gtest/gtest.h>
#include <limits>

namespace tovangl {
namespace {

constexpr CPieFrame kFrame{400, 300, 10, 1};

TEST(PieFrame, MarginGrowsWithTheScale)
{
    EXPECT_EQ((CPieFrame{400, 300, 10, 3}).scaledMargin(), 30);
}

TEST(PieFrame, LabelsAreCappedAtAFifthOfTheWidth)
{
    EXPECT_EQ(kFrame.labelWidthCap(), 80.0);
    EXPECT_EQ((CPieFrame{401, 300, 10, 1}).labelWidthCap(), 401 / 5.0);
}

TEST(RadiusForLabel, LeavesRoomForMarginLineGapAndText)
{
    EXPECT_EQ(radiusForLabel(kFrame, 50, 1.0), 200.0 - 31 - 50);
    EXPECT_EQ(radiusForLabel(CPieFrame{400, 300, 10, 2}, 50, 1.0), 200.0 - 62 - 50);
}

TEST(RadiusForLabel, CountsNoMoreThanTheCapOfALongText)
{
    EXPECT_EQ(radiusForLabel(kFrame, 5000, 1.0), 200.0 - 31 - 80);
}

TEST(RadiusForLabel, GrowsTowardTopAndBottomOnEitherHalf)
{
    EXPECT_EQ(radiusForLabel(kFrame, 50, 0.5), 2 * 119.0);
    EXPECT_EQ(radiusForLabel(kFrame, 50, -0.5), 2 * 119.0);
}

TEST(SquareArea, CutsAWideRectangleAndCentresItInThePicture)
{
    EXPECT_EQ(squareArea(kFrame, QRectF(10, 20, 360, 260)), QRectF(70, 20, 260, 260));
}

TEST(SquareArea, CutsAHighRectangleAndCentresItInThePicture)
{
    EXPECT_EQ(squareArea(kFrame, QRectF(150, 20, 100, 260)), QRectF(150, 100, 100, 100));
}

TEST(SquareArea, KeepsASquareWhereItIs)
{
    EXPECT_EQ(squareArea(kFrame, QRectF(3, 4, 90, 90)), QRectF(3, 4, 90, 90));
}

TEST(PieRectIn, TakesItsShareInTheMiddleOfTheArea)
{
    EXPECT_EQ(pieRectIn(QRectF(70, 20, 200, 200)), QRectF(83, 33, 174, 174));
}

TEST(IsRoomForPie, NeedsMoreThanTwiceTheWidthBesideTheCentre)
{
    // 18 + a fifth of the width + 3 + 10, twice
    EXPECT_FALSE(isRoomForPie(CPieFrame{103, 300, 10, 1}, QSizeF(0, 0)));
    EXPECT_TRUE(isRoomForPie(CPieFrame{104, 300, 10, 1}, QSizeF(0, 0)));
    EXPECT_FALSE(isRoomForPie(CPieFrame{310, 300, 10, 3}, QSizeF(0, 0)));
    EXPECT_TRUE(isRoomForPie(CPieFrame{311, 300, 10, 3}, QSizeF(0, 0)));
}

TEST(IsRoomForPie, NeedsMoreThanMarginsAndOneLabelOfHeight)
{
    EXPECT_FALSE(isRoomForPie(CPieFrame{400, 34, 10, 1}, QSizeF(50, 14)));
    EXPECT_TRUE(isRoomForPie(CPieFrame{400, 35, 10, 1}, QSizeF(50, 14)));
}

TEST(IsRoomForPie, IsNotFooledByScalesThatDoNotFit)
{
    constexpr int kHuge = std::numeric_limits<int>::max();
    EXPECT_FALSE(isRoomForPie(CPieFrame{1000000, 500, kHuge, kHuge}, QSizeF(50, 14)));
}

TEST(IsRightHalf, IncludesTheBottomAndExcludesTheTop)
{
    EXPECT_TRUE(isRightHalf(-1440));
    EXPECT_FALSE(isRightHalf(-1441));
    EXPECT_TRUE(isRightHalf(1439));
    EXPECT_FALSE(isRightHalf(1440));
}

TEST(IsRightHalf, HasThreeOClockAndNotNineOClock)
{
    EXPECT_TRUE(isRightHalf(0));
    EXPECT_FALSE(isRightHalf(2880));
    EXPECT_FALSE(isRightHalf(-2880));
}

} // namespace
} // namespace tovangl
