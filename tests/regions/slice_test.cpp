// SPDX-License-Identifier: MIT
#include "regions/region_test_charts.h"

#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

using ::testing::Each;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr Color kWhite = {255, 255, 255};
constexpr double kDegree = 3.14159265358979323846 / 180;

class PieSlices : public ::testing::Test
{
protected:
    void addThree()
    {
        m_pie.addItem(500, "red", kRed);
        m_pie.addItem(20, "green", kGreen);
        m_pie.addItem(480, "blue", kBlue);
    }
    std::vector<Slice> slices() { return copied(m_pie.getSlice()); }

    PieGraph m_pie{false};
};

Point middleOf(const Slice& slice, double partOfRadius)
{
    const double angle = (slice.start + 0.5 * slice.span) * kDegree;
    return Point{slice.x + 0.5 * slice.width * (1 + partOfRadius * std::cos(angle)),
                 slice.y + 0.5 * slice.height * (1 - partOfRadius * std::sin(angle))};
}

QPolygonF toPolygon(const Slice& slice)
{
    QPolygonF polygon;
    for (const Point& point : getPolygon(slice))
        polygon << QPointF(point.x, point.y);
    return polygon;
}

double distance(const QPointF& a, const QPointF& b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

double distanceToSide(const QPointF& place, const QPointF& a, const QPointF& b)
{
    double least = std::min(distance(place, a), distance(place, b));
    const double length = distance(a, b);
    for (double way = 0; way < length; way += 0.25)
        least = std::min(least, distance(place, a + (b - a) * (way / length)));
    return least;
}

double distanceToOutline(const QPointF& place, const QPolygonF& polygon)
{
    double least = distanceToSide(place, polygon.last(), polygon.first());
    for (int i = 1; i < polygon.size(); ++i)
        least = std::min(least, distanceToSide(place, polygon.at(i - 1), polygon.at(i)));
    return least;
}

TEST_F(PieSlices, AreZeroBeforeAnyRendering)
{
    EXPECT_THAT(slices(), IsEmpty());
    addThree();
    EXPECT_THAT(slices(), SizeIs(3));
    EXPECT_THAT(slices(), Each(kNoSlice));
}

TEST_F(PieSlices, TellAnglesCounterClockwiseFromThreeOClock)
{
    m_pie.addItem(1, "from nine o'clock over the top");
    m_pie.addItem(2, "the lower half and more");
    render(m_pie, 500, 400);
    EXPECT_EQ(slices()[0].start, 60);
    EXPECT_EQ(slices()[0].span, 120);
    EXPECT_EQ(slices()[1].start, 180);
    EXPECT_EQ(slices()[1].span, 240);
}

TEST_F(PieSlices, AreOneWholeTurnTogether)
{
    for (int i = 1; i <= 7; ++i)
        m_pie.addItem(i * i, "caption");
    render(m_pie, 500, 400);
    double sum = 0;
    for (const Slice& slice : slices()) {
        EXPECT_GE(slice.start, 0);
        EXPECT_LT(slice.start, 360);
        EXPECT_GT(slice.span, 0);
        sum += slice.span;
    }
    EXPECT_EQ(sum, 360);
}

TEST_F(PieSlices, ShareOneSquareInsideThePicture)
{
    addThree();
    render(m_pie, 500, 400);
    for (const Slice& slice : slices()) {
        EXPECT_EQ(slice.x, slices()[0].x);
        EXPECT_GT(slice.width, 100);
        EXPECT_DOUBLE_EQ(slice.width, slice.height);
        EXPECT_GT(slice.x, 0);
        EXPECT_LT(slice.x + slice.width, 500);
    }
}

TEST_F(PieSlices, StayInTheirPieWhereItIsWiderThanANarrowPicture)
{
    m_pie.setProperty(0);
    m_pie.addItem(100, "", kRed);
    m_pie.addItem(101, "", kBlue);
    render(m_pie, 104, 400);
    for (const Slice& slice : slices()) {
        EXPECT_GT(slice.width, 104);
        const QRectF square(slice.x, slice.y, slice.width, slice.height);
        for (const Point& point : getPolygon(slice))
            EXPECT_TRUE(square.adjusted(-0.5, -0.5, 0.5, 0.5).contains(point.x, point.y));
    }
}

TEST_F(PieSlices, AloneIsTheWholePie)
{
    m_pie.addItem(7, "caption", kRed);
    const QImage image = render(m_pie, 500, 400);
    const Slice slice = slices()[0];
    EXPECT_EQ(slice.span, 360);
    const QPolygonF polygon = toPolygon(slice);
    EXPECT_TRUE(polygon.containsPoint(QPointF(250, 200), Qt::OddEvenFill));
    EXPECT_EQ(colorAt(image, 250, 200), kRed);
}

TEST_F(PieSlices, CoverTheItemsColour)
{
    addThree();
    const QImage image = render(m_pie, 500, 400);
    const std::vector<Color> colors = {kRed, kGreen, kBlue};
    for (std::size_t i = 0; i < colors.size(); ++i) {
        const Point middle = middleOf(slices()[i], 0.6);
        EXPECT_EQ(colorAt(image, middle.x, middle.y), colors[i]);
    }
}

TEST_F(PieSlices, KeepAZeroPlaceBelowTheThreshold)
{
    addThree();
    m_pie.setThreshold(5);
    render(m_pie, 500, 400);
    EXPECT_THAT(slices(), SizeIs(3));
    EXPECT_GT(slices()[0].span, 180);
    EXPECT_EQ(slices()[1], kNoSlice);
    EXPECT_GT(slices()[2].span, 170);
}

TEST_F(PieSlices, AreZeroForValuesThatAreNotAboveZero)
{
    m_pie.addItem(-5, "negative");
    m_pie.addItem(0, "nothing");
    m_pie.addItem(5, "some");
    render(m_pie, 500, 400);
    EXPECT_EQ(slices()[0], kNoSlice);
    EXPECT_EQ(slices()[1], kNoSlice);
    EXPECT_EQ(slices()[2].span, 360);
}

TEST_F(PieSlices, AreZeroWhereTheAngleRoundsToNothing)
{
    m_pie.addItem(1, "tiny");
    m_pie.addItem(1000000, "huge");
    render(m_pie, 500, 400);
    EXPECT_EQ(slices()[0], kNoSlice);
    EXPECT_EQ(slices()[1].span, 360);
}

TEST_F(PieSlices, AreZeroAfterARenderingThatDidNotFit)
{
    addThree();
    render(m_pie, 500, 400);
    render(m_pie, 60, 400);
    EXPECT_THAT(slices(), SizeIs(3));
    EXPECT_THAT(slices(), Each(kNoSlice));
    render(m_pie, 500, 400);
    EXPECT_GT(slices()[0].span, 0);
}

TEST_F(PieSlices, AreZeroAfterANullPicture)
{
    addThree();
    render(m_pie, 500, 400);
    EXPECT_TRUE(render(m_pie, 500, 0).isNull());
    EXPECT_THAT(slices(), SizeIs(3));
    EXPECT_THAT(slices(), Each(kNoSlice));
}

TEST_F(PieSlices, AreNoneAfterClear)
{
    addThree();
    render(m_pie, 500, 400);
    m_pie.clear();
    EXPECT_THAT(slices(), IsEmpty());
    addThree();
    EXPECT_THAT(slices(), Each(kNoSlice));
}

TEST_F(PieSlices, AreZeroForItemsAddedAfterTheRendering)
{
    addThree();
    render(m_pie, 500, 400);
    m_pie.addItem(900, "late");
    EXPECT_THAT(slices(), SizeIs(4));
    EXPECT_GT(slices()[2].span, 0);
    EXPECT_EQ(slices()[3], kNoSlice);
}

TEST_F(PieSlices, AreInPixelsOfThePrintedPicture)
{
    addThree();
    render(m_pie, 500, 400);
    const double width = slices()[0].width;
    (void)printed(m_pie, 500, 400, 2);
    EXPECT_NEAR(slices()[0].width, 2 * width, 0.1 * width);
}

// The background moves the pie by half a pixel. Every pixel that the outline's line, one pixel
// wide, does not touch has the slice's colour where it lies inside, and another one outside.
class SliceOutlineOnPicture : public ::testing::TestWithParam<bool>
{};

TEST_P(SliceOutlineOnPicture, HoldsThePixelsOfTheSlice)
{
    PieGraph pie(GetParam());
    pie.addItem(5, "", kRed);
    pie.addItem(4, "", kGreen);
    pie.addItem(2, "", kBlue);
    pie.setColors(kWhite, kWhite, kGreen); // label lines run over the slice
    const QImage image = render(pie, 240, 180);
    const Slice slice = copied(pie.getSlice())[1];
    const QPolygonF polygon = toPolygon(slice);
    int inside = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QPointF middle(x + 0.5, y + 0.5);
            const bool isInside = polygon.containsPoint(middle, Qt::OddEvenFill);
            inside += isInside ? 1 : 0;
            const bool isGreen = colorAt(image, x, y) == kGreen;
            ASSERT_TRUE(isGreen == isInside || distanceToOutline(middle, polygon) < 1.75)
                << x << ' ' << y;
        }
    }
    EXPECT_GT(inside, 1000);
}

INSTANTIATE_TEST_SUITE_P(WithAndWithoutBackground, SliceOutlineOnPicture, ::testing::Bool());

TEST(SlicePolygon, IsEmptyForTheZeroRecord)
{
    EXPECT_THAT(getPolygon(kNoSlice), IsEmpty());
}

TEST(SlicePolygon, StartsAtTheCentre)
{
    const std::vector<Point> points = getPolygon(Slice{10, 20, 100, 60, 90, 45});
    ASSERT_GT(points.size(), 3U);
    EXPECT_EQ(points[0].x, 60);
    EXPECT_EQ(points[0].y, 50);
    EXPECT_NEAR(points[1].x, 60, 1e-9);
    EXPECT_NEAR(points[1].y, 20, 1e-9);
}

} // namespace
} // namespace tovangl
