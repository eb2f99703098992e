// SPDX-License-Identifier: MIT
#include "base/circle_geometry.h"

#include <QPointF>

#include <gtest/gtest.h>
#include <limits>

namespace tovangl {
namespace cdraw {
namespace {

struct CArcCase
{
    int angle;
    int normalized;
};

void PrintTo(const CArcCase& arc, std::ostream* stream)
{
    *stream << arc.angle;
}

class NormalizeArc : public ::testing::TestWithParam<CArcCase>
{};

TEST_P(NormalizeArc, BringsAnAngleIntoHalfATurnEitherWay)
{
    EXPECT_EQ(normalizeArc(GetParam().angle), GetParam().normalized);
}

INSTANTIATE_TEST_SUITE_P(CircleGeometry, NormalizeArc,
                         ::testing::Values(CArcCase{0, 0}, CArcCase{5760, 0}, CArcCase{2880, 2880},
                                           CArcCase{2881, -2879}, CArcCase{-2880, -2880},
                                           CArcCase{-2881, 2879}, CArcCase{-8640, -2880},
                                           CArcCase{8640, 2880}, CArcCase{8641, -2879},
                                           CArcCase{-8641, 2879}, CArcCase{100, 100}));

TEST(NormalizeArc, BothEndsOfTheRangeStayApartDeliberately)
{
    EXPECT_EQ(normalizeArc(2880), 2880);
    EXPECT_EQ(normalizeArc(-2880), -2880);
}

TEST(NormalizeArc, KeepsTheDirectionOfEveryAngle)
{
    for (int angle = -20000; angle <= 20000; ++angle) {
        const int normalized = normalizeArc(angle);
        ASSERT_EQ((angle - normalized) % kFullCircle, 0) << angle;
        ASSERT_GE(normalized, -kHalfCircle) << angle;
        ASSERT_LE(normalized, kHalfCircle) << angle;
    }
}

TEST(NormalizeArc, TakesTheEndsOfInt)
{
    EXPECT_EQ(normalizeArc(std::numeric_limits<int>::max()), 127);
    EXPECT_EQ(normalizeArc(std::numeric_limits<int>::min()), -128);
}

struct CCrossing
{
    int count;
    QPointF first;
    QPointF second;
};

CCrossing crossingAt(double y)
{
    CCrossing crossing{0, QPointF(-1, -1), QPointF(-2, -2)};
    crossing.count = yCircleIntersection(QPointF(10, 10), 5, y, crossing.first, crossing.second);
    return crossing;
}

TEST(YCircleIntersection, ALineThroughTheCircleMeetsItTwice)
{
    const CCrossing crossing = crossingAt(10);
    EXPECT_EQ(crossing.count, 2);
    EXPECT_EQ(crossing.first, QPointF(5, 10));
    EXPECT_EQ(crossing.second, QPointF(15, 10));
}

TEST(YCircleIntersection, ALineOffCentreMeetsItLeftAndRightOfTheCentre)
{
    const CCrossing crossing = crossingAt(6);
    EXPECT_EQ(crossing.count, 2);
    EXPECT_EQ(crossing.first, QPointF(7, 6));
    EXPECT_EQ(crossing.second, QPointF(13, 6));
}

TEST(YCircleIntersection, ATouchingLineMeetsItOnceAndSetsBothPoints)
{
    const CCrossing crossing = crossingAt(15);
    EXPECT_EQ(crossing.count, 1);
    EXPECT_EQ(crossing.first, QPointF(10, 15));
    EXPECT_EQ(crossing.second, QPointF(10, 15));
}

TEST(YCircleIntersection, ALineBesideTheCircleLeavesThePointsAlone)
{
    const CCrossing crossing = crossingAt(16);
    EXPECT_EQ(crossing.count, 0);
    EXPECT_EQ(crossing.first, QPointF(-1, -1));
    EXPECT_EQ(crossing.second, QPointF(-2, -2));
}

} // namespace
} // namespace cdraw
} // namespace tovangl
