// SPDX-License-Identifier: MIT
#include "layout/slice_outline.h"

#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace tovangl {
namespace {

using cdraw::outlineSlice;
using Outline = std::vector<QPointF>;

const QRectF kEllipse(10, 20, 200, 200);
const QPointF kCentre(110, 120);

double distanceToSegment(const QPointF& p, const QPointF& a, const QPointF& b)
{
    const QPointF along = b - a;
    const double square = along.x() * along.x() + along.y() * along.y();
    const QPointF way = p - a;
    const double t = square > 0 ? (way.x() * along.x() + way.y() * along.y()) / square : 0;
    const QPointF rest = way - std::clamp(t, 0.0, 1.0) * along;
    return std::hypot(rest.x(), rest.y());
}

double distanceToOutline(const QPointF& p, const Outline& outline)
{
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < outline.size(); ++i)
        least =
            std::min(least, distanceToSegment(p, outline[i], outline[(i + 1) % outline.size()]));
    return least;
}

// The greatest distance between the outline and the arc that the painter draws, at 200 places.
double greatestError(const QRectF& ellipse, double start, double span)
{
    QPainterPath arc;
    arc.arcMoveTo(ellipse, start);
    arc.arcTo(ellipse, start, span);
    const Outline outline = outlineSlice(ellipse, start, span);
    double error = 0;
    for (int i = 0; i <= 200; ++i)
        error = std::max(error, distanceToOutline(arc.pointAtPercent(i / 200.0), outline));
    return error;
}

QRectF circle(double radius)
{
    return QRectF(0.3, 0.7, 2 * radius, 2 * radius);
}

TEST(SliceOutline, StartsAtTheCentreAndFollowsTheArcCounterClockwise)
{
    const Outline outline = outlineSlice(kEllipse, 0, 90);
    ASSERT_GT(outline.size(), 3U);
    EXPECT_EQ(outline.front(), kCentre);
    EXPECT_EQ(outline[1], QPointF(210, 120));
    EXPECT_NEAR(outline.back().x(), 110, 1e-9);
    EXPECT_NEAR(outline.back().y(), 20, 1e-9);
    for (std::size_t i = 2; i < outline.size(); ++i)
        EXPECT_LT(outline[i].y(), outline[i - 1].y());
}

TEST(SliceOutline, NegativeSpanRunsClockwise)
{
    const Outline outline = outlineSlice(kEllipse, 180, -90);
    ASSERT_GT(outline.size(), 3U);
    EXPECT_NEAR(outline[1].x(), 10, 1e-9);
    EXPECT_NEAR(outline.back().y(), 20, 1e-9);
}

TEST(SliceOutline, WholePieHasNoCornerAtTheCentre)
{
    for (const double span : {360.0, -360.0, 500.0}) {
        for (const QPointF& corner : outlineSlice(kEllipse, 17, span))
            EXPECT_NEAR(std::hypot(corner.x() - 110, corner.y() - 120), 100, 0.1);
    }
}

TEST(SliceOutline, WholePieIsNotClosedTwice)
{
    const Outline outline = outlineSlice(kEllipse, 0, 360);
    ASSERT_GT(outline.size(), 8U);
    EXPECT_GT(std::hypot(outline.front().x() - outline.back().x(),
                         outline.front().y() - outline.back().y()),
              1);
}

TEST(SliceOutline, StaysWithinAQuarterOfAPixelOfTheArcAtAnyRadius)
{
    for (const double radius : {0.4, 3.0, 40.0, 200.0, 1500.0, 16000.0, 500000.0}) {
        EXPECT_LE(greatestError(circle(radius), 30, 200), cdraw::kOutlineError) << radius;
        EXPECT_LE(greatestError(circle(radius), -47, -0.5), cdraw::kOutlineError) << radius;
    }
}

TEST(SliceOutline, StaysCloseForRandomEllipsesAndAngles)
{
    std::mt19937 random(20240);
    std::uniform_real_distribution<double> extent(1, 3000);
    std::uniform_real_distribution<double> angle(-360, 360);
    for (int i = 0; i < 60; ++i) {
        const QRectF ellipse(extent(random), extent(random), extent(random), extent(random));
        const double start = angle(random);
        const double span = angle(random);
        EXPECT_LE(greatestError(ellipse, start, span), cdraw::kOutlineError)
            << start << ' ' << span << ' ' << ellipse.width() << ' ' << ellipse.height();
    }
}

TEST(SliceOutline, HasNoMoreCornersThanItNeeds)
{
    EXPECT_LT(outlineSlice(circle(200), 0, 360).size(), 100U);
    EXPECT_LE(outlineSlice(circle(200), 10, 0.0625).size(), 3U);
}

TEST(SliceOutline, IsEmptyWithoutExtent)
{
    EXPECT_TRUE(outlineSlice(kEllipse, 30, 0).empty());
    EXPECT_TRUE(outlineSlice(QRectF(0, 0, 0, 10), 30, 20).empty());
    EXPECT_TRUE(outlineSlice(QRectF(0, 0, 10, -1), 30, 20).empty());
}

TEST(SliceOutline, IsEmptyForNumbersThatNoPictureHas)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();
    for (const double number : {nan, infinite, -infinite, 1e300, -1e300}) {
        EXPECT_TRUE(outlineSlice(QRectF(number, 0, 10, 10), 0, 90).empty());
        EXPECT_TRUE(outlineSlice(QRectF(0, number, 10, 10), 0, 90).empty());
        EXPECT_TRUE(outlineSlice(QRectF(0, 0, number, 10), 0, 90).empty());
        EXPECT_TRUE(outlineSlice(QRectF(0, 0, 10, number), 0, 90).empty());
    }
    for (const double angle : {nan, infinite, -infinite}) {
        EXPECT_TRUE(outlineSlice(kEllipse, angle, 90).empty());
        EXPECT_TRUE(outlineSlice(kEllipse, 0, angle).empty());
    }
}

TEST(SliceOutline, IsEmptyWhereAnEdgeLiesBeyondABillionPixels)
{
    EXPECT_FALSE(outlineSlice(QRectF(-1e9, -1e9, 2e9, 2e9), 0, 90).empty());
    EXPECT_TRUE(outlineSlice(QRectF(-1.1e9, 0, 10, 10), 0, 90).empty());
    EXPECT_TRUE(outlineSlice(QRectF(0, -1.1e9, 10, 10), 0, 90).empty());
    EXPECT_TRUE(outlineSlice(QRectF(0, 0, 1.1e9, 10), 0, 90).empty());
    EXPECT_TRUE(outlineSlice(QRectF(0, 0, 10, 1.1e9), 0, 90).empty());
}

TEST(SliceOutline, TakesAnglesOfAnySize)
{
    EXPECT_EQ(outlineSlice(kEllipse, 3600 + 30, 90), outlineSlice(kEllipse, 30, 90));
    EXPECT_FALSE(outlineSlice(kEllipse, 1e300, -1e300).empty());
}

TEST(SliceOutline, HasABoundedNumberOfCorners)
{
    EXPECT_LE(outlineSlice(QRectF(-9e8, -9e8, 1.8e9, 1.8e9), 0, 360).size(), 4096U);
}

} // namespace
} // namespace tovangl
