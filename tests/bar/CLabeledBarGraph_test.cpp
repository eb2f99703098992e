// SPDX-License-Identifier: MIT
#include "bar/bar_chart_support.h"
#include "labels/CBarTextLabel.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

TEST(CLabeledBarGraph, HasItsDefaultProperties)
{
    const CLabeledBarGraph chart(false);
    EXPECT_EQ(int(chart.horizontalAxisProperties()), 4097);
    EXPECT_EQ(int(chart.verticalAxisProperties()), 131);
    EXPECT_TRUE(chart.isBarLabel());
}

TEST(CLabeledBarGraph, HasNumbersAtTheTopAndCategoriesAtTheLeft)
{
    CLyingBars chart;
    chart.setVerticalAxis(CAxis::ShowTitle, "categories");
    chart.getImage(400, 300);
    EXPECT_EQ(chart.numberAxis()->orientation(), CAxis::LeftToRight);
    EXPECT_EQ(chart.numberAxis()->legendLocation(), CAxis::Top);
    EXPECT_EQ(int(chart.numberAxis()->properties()), 4097);
    EXPECT_EQ(chart.numberAxis()->titleLabel().getText(), QString());
    EXPECT_EQ(chart.categoryAxis()->orientation(), CAxis::TopToBottom);
    EXPECT_EQ(chart.categoryAxis()->legendLocation(), CAxis::Left);
    EXPECT_EQ(chart.categoryAxis()->titleLabel().getText(), QString("categories"));
}

TEST(CLabeledBarGraph, MakesTheNumberAxisFirst)
{
    struct COrderedChart : CLyingBars
    {
        void initCategoryAxis() override
        {
            order += 'c';
            CLyingBars::initCategoryAxis();
        }
        void initNumberAxis(int extra) override
        {
            order += 'n';
            CLyingBars::initNumberAxis(extra);
        }
        std::string order;
    };
    COrderedChart chart;
    chart.getImage(400, 300);
    EXPECT_EQ(chart.order, "nc");
}

TEST(CLabeledBarGraph, ReservesTwoMarginsAndTheWidestValue)
{
    CLyingBars chart;
    chart.add(5);
    chart.add(1234567);
    chart.getImage(400, 300);
    EXPECT_EQ(chart.numberAxis()->endShift(), 20 + chart.barLabelRect().width());
    chart.getImageForPrinter(400, 300, 2);
    EXPECT_EQ(chart.numberAxis()->endShift(), 40 + chart.barLabelRect().width());
}

TEST(CLabeledBarGraph, WithoutItemsReservesTwoMargins)
{
    CLyingBars chart;
    chart.getImage(400, 300);
    EXPECT_EQ(chart.numberAxis()->endShift(), 20);
}

TEST(CLabeledBarGraph, WithoutValueLabelsReservesNothing)
{
    struct CUnlabeledChart : CLyingBars
    {
        bool isBarLabel() const override { return false; }
    };
    CUnlabeledChart chart;
    chart.add(5);
    chart.getImage(400, 300);
    EXPECT_EQ(chart.numberAxis()->endShift(), 0);
    EXPECT_FALSE(chart.item(0)->barLabelRect().isValid());
}

TEST(CLabeledBarGraph, PlotReachesToTheMargins)
{
    CLyingBars chart;
    chart.addMany(4, "caption");
    chart.getImage(400, 300);
    const QRect plot = chart.plotRect();
    EXPECT_EQ(plot.bottomRight(), QPoint(389, 289));
    EXPECT_EQ(plot.top(), 10 + 1);
    EXPECT_EQ(chart.categoryAxis()->axisRect(),
              QRect(QPoint(10, plot.top()), QPoint(plot.left() - 1, 289)));
}

TEST(CLabeledBarGraph, ValueAxisStartsOnePixelLeftOnTheVerticalLine)
{
    CLyingBars chart;
    chart.addMany(4, "caption");
    const QImage image = chart.getImage(400, 300);
    const QRect plot = chart.plotRect();
    EXPECT_EQ(chart.numberAxis()->axisRect(),
              QRect(QPoint(plot.left() - 1, 10), QPoint(389, plot.top() - 1)));
    EXPECT_TRUE(isColumn(image, plot.left() - 1, plot.top() - 1, plot.bottom(), kBlackPixel));
    EXPECT_TRUE(isRow(image, plot.top() - 1, plot.left() - 1, plot.right(), kBlackPixel));
}

TEST(CLabeledBarGraph, FixedPositionIsWhereTheAxisLinesStand)
{
    CLyingBars chart;
    chart.setPosition(100, 50);
    chart.addMany(4, "caption");
    const QImage image = chart.getImage(400, 300);
    EXPECT_EQ(chart.plotRect().topLeft(), QPoint(101, 51));
    EXPECT_TRUE(isColumn(image, 100, 51, 289, kBlackPixel));
    EXPECT_TRUE(isRow(image, 50, 100, 389, kBlackPixel));
}

TEST(CLabeledBarGraph, BarsStartOnTheVerticalLineOneBelowTheOther)
{
    CLyingBars chart;
    chart.addMany(4, "caption");
    chart.getImage(400, 300);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(chart.bar(i).left(), chart.plotRect().left() - 1);
        if (i > 0) {
            EXPECT_GT(chart.bar(i).top(), chart.bar(i - 1).bottom());
        }
    }
}

TEST(CLabeledBarGraph, ValueStandsAMarginBeyondTheEndOfItsBar)
{
    CLyingBars chart;
    chart.add(40, "caption");
    chart.getImage(400, 300);
    EXPECT_EQ(chart.item(0)->barLabelRect().left(), chart.bar(0).right() + 1 + 10 + 1);
    EXPECT_LE(chart.item(0)->barLabelRect().right(), chart.plotRect().right() - 9);
}

TEST(CLabeledBarGraph, TooSmallForItsAxesFitsNothing)
{
    CLyingBars chart;
    chart.addMany(4, "caption");
    chart.getImage(20, 300);
    EXPECT_FALSE(chart.plotRect().isValid());
    chart.getImage(400, 20);
    EXPECT_FALSE(chart.plotRect().isValid());
}

// A chart whose borders are not hidden by anything.
struct CBorderedChart : CLyingBars
{
    explicit CBorderedChart(bool background)
        : CLyingBars(background)
    {
        setVerticalAxis(CAxis::Properties(), QString());
        setHorizontalAxis(CAxis::ShiftLastLabel, QString());
        add(40, "");
    }
};

TEST(CLabeledBarGraph, BordersAreAtTheRightAndAtTheBottom)
{
    CBorderedChart chart(true);
    const QImage image = chart.getImage(200, 150);
    const QRect plot = chart.plotRect();
    EXPECT_TRUE(isRow(image, plot.bottom(), plot.left(), plot.right() - 1, qRgb(204, 204, 204)));
    EXPECT_NEAR(qRed(image.pixel(plot.right(), plot.top() + 1)), 179, 2);
    EXPECT_NEAR(qRed(image.pixel(plot.right(), plot.bottom() - 1)), 204, 2);
}

TEST(CLabeledBarGraph, HasNoBordersInPrintAndNoneWithoutBackground)
{
    CBorderedChart printed(true);
    const QImage print = printed.getImageForPrinter(200, 150, 1);
    EXPECT_EQ(print.pixel(printed.plotRect().bottomLeft()), kWhitePixel);
    EXPECT_EQ(print.pixel(printed.plotRect().topRight()), kWhitePixel);
    CBorderedChart plain(false);
    const QImage image = plain.getImage(200, 150);
    EXPECT_EQ(image.pixel(plain.plotRect().bottomLeft()), kWhitePixel);
    EXPECT_EQ(image.pixel(plain.plotRect().topRight()), kWhitePixel);
}

TEST(CLabeledBarGraph, HasNoGridLines)
{
    CLyingBars chart(false);
    chart.add(40, "");
    const QImage image = chart.getImage(400, 300);
    const QRect plot = chart.plotRect();
    EXPECT_TRUE(isRow(image, plot.top() + 1, plot.left(), plot.right(), kWhitePixel));
}

} // namespace
} // namespace tovangl
