// SPDX-License-Identifier: MIT
#include "pdf/glyph_outline.h"

#include <QPainterPath>

#include <cmath>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

TEST(GlyphOutline, APolygonHasItsCornersWithYGrowingUpward)
{
    QPainterPath path(QPointF(0, 0));
    path.lineTo(10, -20);
    path.lineTo(30, 5);
    path.closeSubpath();
    const auto contours = toContours(path);
    ASSERT_EQ(contours.size(), 1u);
    ASSERT_EQ(contours[0].size(), 3u);
    EXPECT_EQ(contours[0][1].x, 10);
    EXPECT_EQ(contours[0][1].y, 20);
    EXPECT_EQ(contours[0][2].y, -5);
}

TEST(GlyphOutline, ACurveOfTheSecondDegreeKeepsItsPoints)
{
    QPainterPath path(QPointF(0, 0));
    path.quadTo(100, -300, 200, 0);
    path.lineTo(100, 50);
    const auto contours = toContours(path);
    ASSERT_EQ(contours.size(), 1u);
    ASSERT_EQ(contours[0].size(), 4u);
    EXPECT_FALSE(contours[0][1].isOnCurve);
    EXPECT_EQ(contours[0][1].x, 100);
    EXPECT_EQ(contours[0][1].y, 300);
    EXPECT_TRUE(contours[0][2].isOnCurve);
    EXPECT_EQ(contours[0][2].x, 200);
}

// A place on a curve of the second degree, from 0 at its begin to 1 at its end.
QPointF placeOn(const COutlinePoint& from, const COutlinePoint& control, const COutlinePoint& to,
                double t)
{
    const double s = 1 - t;
    return QPointF(s * s * from.x + 2 * s * t * control.x + t * t * to.x,
                   s * s * from.y + 2 * s * t * control.y + t * t * to.y);
}

TEST(GlyphOutline, ACircleStaysRound)
{
    constexpr double kRadius = 1000;
    QPainterPath path;
    path.addEllipse(QPointF(0, 0), kRadius, kRadius);
    const auto contours = toContours(path);
    ASSERT_EQ(contours.size(), 1u);
    const CContour& contour = contours[0];
    for (std::size_t i = 0; i + 2 < contour.size(); i += 2) {
        for (const double t : {0.2, 0.5, 0.8}) { // in between, curves differ the most
            const QPointF place = placeOn(contour[i], contour[i + 1], contour[i + 2], t);
            EXPECT_NEAR(std::hypot(place.x(), place.y()), kRadius, 1.5);
        }
    }
}

TEST(GlyphOutline, ALetterWithAHoleHasTwoContours)
{
    QPainterPath path;
    path.addRect(0, 0, 100, 100);
    path.addRect(20, 20, 60, 60);
    EXPECT_EQ(toContours(path).size(), 2u);
}

TEST(GlyphOutline, PointsWithoutALineAreNoContour)
{
    QPainterPath path(QPointF(3, 3));
    path.moveTo(4, 4);
    EXPECT_TRUE(toContours(path).empty());
    EXPECT_TRUE(toContours(QPainterPath()).empty());
}

TEST(GlyphOutline, CoordinatesStayInTheRangeOfAFont)
{
    QPainterPath path(QPointF(-1e9, 1e9));
    path.lineTo(1e9, 0);
    path.lineTo(0, -1e9);
    const auto contours = toContours(path);
    ASSERT_EQ(contours.size(), 1u);
    EXPECT_EQ(contours[0][0].x, -32767);
    EXPECT_EQ(contours[0][2].y, 32767);
}

} // namespace
} // namespace tovangl
