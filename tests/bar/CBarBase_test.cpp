// SPDX-License-Identifier: MIT
#include "bar/bar_chart_support.h"
#include "core/qt_versions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

namespace tovangl {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr int kMost = std::numeric_limits<int>::max();

TEST(CBarBase, HasItsDefaults)
{
    const CUprightBars chart(true);
    EXPECT_TRUE(chart.hasBackground());
    EXPECT_EQ(chart.position(), QPoint(-1, -1));
    EXPECT_EQ(chart.barWidth(), 0);
    EXPECT_FALSE(chart.textColor().isValid());
    EXPECT_EQ(chart.plotRect(), QRect());
    EXPECT_EQ(chart.barLabelRect(), QRect());
    EXPECT_EQ(chart.categoryAxis(), nullptr);
    EXPECT_EQ(chart.numberAxis(), nullptr);
}

TEST(CBarBase, BarWithoutColourTakesTheDefaultOfItsPosition)
{
    CUprightBars chart;
    chart.add(1);
    chart.add(2, "own", Qt::red);
    chart.add(3);
    chart.add(4);
    EXPECT_EQ(chart.item(0)->color(), QColor(23, 52, 124));
    EXPECT_EQ(chart.item(1)->color(), QColor(Qt::red));
    EXPECT_EQ(chart.item(2)->color(), QColor(174, 191, 234));
    EXPECT_EQ(chart.item(3)->color(), QColor(254, 102, 13));
}

TEST(CBarBase, DefaultColoursStartAgainAfterTheLastOne)
{
    CUprightBars chart;
    chart.addMany(7);
    EXPECT_EQ(chart.item(6)->color(), chart.item(0)->color());
}

TEST(CBarBase, BarWithoutOutlineColourGetsItsFillDarkened)
{
    CUprightBars chart;
    chart.add(1);
    chart.add(2, "own", Qt::red, Qt::green);
    EXPECT_EQ(chart.item(0)->outlineColor(), QColor(23, 52, 124).darker(150));
    EXPECT_EQ(chart.item(1)->outlineColor(), QColor(Qt::green));
}

TEST(CBarBase, AddingReturnsTrue)
{
    CUprightBars chart;
    EXPECT_TRUE(chart.addItem(1, "a", QColor(), QColor()));
    EXPECT_TRUE(chart.addItem(1, "a", QColor()));
}

TEST(CBarBase, NegativePositionLeavesThatAxisFree)
{
    CUprightBars chart;
    chart.setPosition(-5, 3);
    EXPECT_EQ(chart.position(), QPoint(-1, 3));
    chart.setPosition(7, std::numeric_limits<int>::min());
    EXPECT_EQ(chart.position(), QPoint(7, -1));
}

TEST(CBarBase, NegativeBarWidthIsKeptAsZero)
{
    CUprightBars chart;
    chart.setBarWidth(-4);
    EXPECT_EQ(chart.barWidth(), 0);
    chart.setBarWidth(4);
    EXPECT_EQ(chart.barWidth(), 4);
}

TEST(CBarBase, HasNoBarRectanglesBeforeALayout)
{
    CUprightBars chart;
    chart.add(1);
    std::list<QRect> rects{QRect(1, 2, 3, 4)};
    EXPECT_FALSE(chart.putBarRectangle(rects));
    EXPECT_THAT(rects, ElementsAre(QRect(1, 2, 3, 4)));
}

TEST(CBarBase, HasOneBarRectangleForEveryBarDrawn)
{
    CUprightBars chart;
    chart.add(100);
    chart.add(1);
    chart.add(99);
    chart.setThreshold(10);
    chart.getImage(400, 300);
    EXPECT_THAT(chart.bars(), ElementsAre(chart.bar(0), chart.bar(2)));
}

TEST(CBarBase, EmptyChartHasNoBarRectanglesButALayout)
{
    CUprightBars chart;
    chart.getImage(400, 300);
    std::list<QRect> rects;
    EXPECT_TRUE(chart.putBarRectangle(rects));
    EXPECT_THAT(rects, IsEmpty());
}

TEST(CBarBase, ChartThatDoesNotFitHasNoBarRectangles)
{
    CUprightBars chart;
    chart.add(1);
    chart.getImage(400, 300);
    chart.getImage(15, 15);
    std::list<QRect> rects;
    EXPECT_FALSE(chart.putBarRectangle(rects));
}

TEST(CBarBase, AxesAreMadeAfreshForEveryRendering)
{
    CUprightBars chart;
    chart.addMany(3);
    chart.getImage(400, 300);
    EXPECT_THAT(chart.categoryAxis()->labels(), SizeIs(3));
    chart.addMany(2);
    chart.getImage(400, 300);
    EXPECT_THAT(chart.categoryAxis()->labels(), SizeIs(5));
}

TEST(CBarBase, NumberAxisSpansTheSelectedValues)
{
    CUprightBars chart;
    chart.add(-30);
    chart.add(70);
    chart.add(5);
    chart.getImage(400, 300);
    EXPECT_EQ(chart.numberAxis()->scaleMin(), -40);
    EXPECT_EQ(chart.numberAxis()->scaleMax(), 80);
    EXPECT_FALSE(chart.numberAxis()->isGraphEmpty());
}

TEST(CBarBase, NumberAxisOfAnEmptyChartSpansZeroAndIsEmpty)
{
    CUprightBars chart;
    chart.getImage(400, 300);
    EXPECT_TRUE(chart.numberAxis()->isGraphEmpty());
    EXPECT_EQ(chart.numberAxis()->scaleMin(), 0);
    EXPECT_EQ(chart.numberAxis()->scaleMax(), 1);
}

TEST(CBarBase, AxesTakeLineWidthBarWidthAndColourFromTheChart)
{
    CUprightBars chart;
    chart.addMany(3);
    chart.setBarWidth(12);
    chart.setTextColor(Qt::red);
    chart.getImageForPrinter(400, 300, 3);
    EXPECT_EQ(chart.categoryAxis()->lineWidth(), 3);
    EXPECT_EQ(chart.numberAxis()->lineWidth(), 3);
    EXPECT_EQ(chart.categoryAxis()->fixedBarWidth(), 36);
    EXPECT_EQ(chart.categoryAxis()->lineColor(), QColor(Qt::red));
    EXPECT_EQ(chart.numberAxis()->lineColor(), QColor(Qt::red));
}

TEST(CBarBase, WithoutTextColourAxesAreBlack)
{
    CUprightBars chart;
    chart.getImage(400, 300);
    EXPECT_EQ(chart.categoryAxis()->lineColor(), QColor(Qt::black));
    EXPECT_EQ(chart.numberAxis()->lineColor(), QColor(Qt::black));
}

TEST(CBarBase, FillingAnAxisThatIsNotThereDoesNothing)
{
    CUprightBars chart;
    chart.initCategoryAxis();
    chart.initNumberAxis(5);
    EXPECT_EQ(chart.categoryAxis(), nullptr);
    EXPECT_EQ(chart.numberAxis(), nullptr);
}

TEST(CBarBase, LargestValueLabelIsThatOfAllSelectedItems)
{
    CLyingBars chart;
    QImage image(10, 10, QImage::Format_ARGB32);
    QPainter painter(&image);
    chart.initBarLabelBoundingRect(painter);
    EXPECT_EQ(chart.barLabelRect(), QRect());
    chart.add(1);
    chart.selectItems();
    chart.initBarLabelBoundingRect(painter);
    const QRect small = chart.barLabelRect();
    EXPECT_EQ(small, qt::measureText(painter, QRect(), "1"));
    chart.add(1234567);
    chart.selectItems();
    chart.initBarLabelBoundingRect(painter);
    EXPECT_EQ(chart.barLabelRect(), qt::measureText(painter, QRect(), "1,234,567"));
}

// --- the room of axes

// A chart of 400 by 300 pixels with both axes and a painter.
class CAxisRoom : public ::testing::Test
{
protected:
    CAxisRoom()
        : image(10, 10, QImage::Format_ARGB32)
        , painter(&image)
    {
        chart.setSize(400, 300);
        chart.addMany(3, "caption");
        chart.selectItems();
        chart.createAxes(painter);
    }
    CAxis* categories() { return chart.m_categoryAxis.get(); }
    CAxis* numbers() { return chart.m_numberAxis.get(); }

    QImage image;
    QPainter painter;
    CUprightBars chart;
};

TEST_F(CAxisRoom, OfAFreeAxisIsItsThickness)
{
    EXPECT_EQ(chart.getLeftAxisSpace(painter, numbers(), 280),
              numbers()->getWidthForHeight(painter, 280));
    EXPECT_EQ(chart.leftAxisSpace(), 10);
    EXPECT_EQ(chart.getBottomAxisSpace(painter, categories(), 380),
              categories()->getHeightForWidth(painter, 380));
    EXPECT_EQ(chart.bottomAxisSpace(), 10);
}

TEST_F(CAxisRoom, OfAFreeAxisIsAQuarterOfThePictureAtMost)
{
    chart.setSize(40, 32);
    EXPECT_EQ(chart.getLeftAxisSpace(painter, numbers(), 280), 10);
    EXPECT_EQ(chart.getBottomAxisSpace(painter, categories(), 380), 8);
}

TEST_F(CAxisRoom, AtTheTopIsThatOfTheNumberAxisWhicheverIsPassed)
{
    // The number axis is vertical here, so it has no height, although the other one does.
    EXPECT_GT(categories()->getHeightForWidth(painter, 380), 0);
    EXPECT_EQ(chart.getTopAxisSpace(painter, categories(), 380), 0);
    EXPECT_EQ(chart.topAxisSpace(), 10);
}

TEST_F(CAxisRoom, OfAFixedAxisReachesFromTheMarginToItsPlace)
{
    chart.setPosition(60, 250);
    EXPECT_EQ(chart.getLeftAxisSpace(painter, numbers(), 280), 1 + 50);
    EXPECT_EQ(chart.getBottomAxisSpace(painter, categories(), 380), 0 + 39);
    EXPECT_EQ(chart.getTopAxisSpace(painter, numbers(), 380), 1 + 240);
}

TEST_F(CAxisRoom, BottomIsMeasuredFromTheTopEdge)
{
    chart.setPosition(-1, 20);
    EXPECT_EQ(chart.getTopAxisSpace(painter, numbers(), 380), 1 + 10);
    EXPECT_EQ(chart.getBottomAxisSpace(painter, categories(), 380), 0 + 269);
}

TEST_F(CAxisRoom, OfAnAxisFixedInsideTheMarginIsItsLine)
{
    chart.setPosition(4, 296);
    EXPECT_EQ(chart.getLeftAxisSpace(painter, numbers(), 280), 1);
    EXPECT_EQ(chart.leftAxisSpace(), 4);
    EXPECT_EQ(chart.getBottomAxisSpace(painter, categories(), 380), 0);
    EXPECT_EQ(chart.bottomAxisSpace(), 3);
}

TEST_F(CAxisRoom, OfAnAxisFixedOutsideThePictureIsThatOfAFreeOne)
{
    const int left = chart.getLeftAxisSpace(painter, numbers(), 280);
    const int bottom = chart.getBottomAxisSpace(painter, categories(), 380);
    chart.setPosition(400, 300);
    EXPECT_EQ(chart.getLeftAxisSpace(painter, numbers(), 280), left);
    EXPECT_EQ(chart.getBottomAxisSpace(painter, categories(), 380), bottom);
    chart.setPosition(kMost, kMost);
    EXPECT_EQ(chart.getLeftAxisSpace(painter, numbers(), 280), left);
    EXPECT_EQ(chart.getBottomAxisSpace(painter, categories(), 380), bottom);
}

TEST_F(CAxisRoom, PositionAndMarginAreScaled)
{
    chart.setSize(800, 600, 2);
    chart.createAxes(painter);
    chart.setPosition(60, 250);
    EXPECT_EQ(chart.getLeftAxisSpace(painter, numbers(), 560), 2 + (120 - 20));
    EXPECT_EQ(chart.leftAxisSpace(), 20);
    EXPECT_EQ(chart.getBottomAxisSpace(painter, categories(), 760), 0 + (599 - 500 - 20));
}

} // namespace
} // namespace tovangl
