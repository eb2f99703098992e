// SPDX-License-Identifier: MIT
#include "bar/bar_chart_support.h"
#include "core/qt_versions.h"
#include "labels/CBarTextLabel.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

TEST(CBarGraph, HasItsDefaultProperties)
{
    const CBarGraph chart(false);
    EXPECT_EQ(int(chart.horizontalAxisProperties()), 131);
    EXPECT_EQ(int(chart.verticalAxisProperties()), 163);
    EXPECT_FALSE(chart.isBarLabel());
    EXPECT_FALSE(chart.hasBackground());
}

TEST(CBarGraph, HasCategoriesAtTheBottomAndNumbersAtTheLeft)
{
    CUprightBars chart;
    chart.setHorizontalAxis(CAxis::ShowTitle, "categories");
    chart.setVerticalAxis(CAxis::ShowLine, "numbers");
    chart.getImage(400, 300);
    EXPECT_EQ(chart.categoryAxis()->orientation(), CAxis::LeftToRight);
    EXPECT_EQ(chart.categoryAxis()->legendLocation(), CAxis::Bottom);
    EXPECT_EQ(chart.categoryAxis()->titleLabel().getText(), QString("categories"));
    EXPECT_EQ(chart.categoryAxis()->properties(), CAxis::Properties(CAxis::ShowTitle));
    EXPECT_EQ(chart.numberAxis()->orientation(), CAxis::BottomToTop);
    EXPECT_EQ(chart.numberAxis()->legendLocation(), CAxis::Left);
    EXPECT_EQ(chart.numberAxis()->titleLabel().getText(), QString("numbers"));
    EXPECT_EQ(chart.numberAxis()->endShift(), 0);
}

TEST(CBarGraph, MakesTheCategoryAxisFirst)
{
    struct COrderedChart : CUprightBars
    {
        void initCategoryAxis() override
        {
            order += 'c';
            CUprightBars::initCategoryAxis();
        }
        void initNumberAxis(int extra) override
        {
            order += 'n';
            CUprightBars::initNumberAxis(extra);
        }
        std::string order;
    };
    COrderedChart chart;
    chart.getImage(400, 300);
    EXPECT_EQ(chart.order, "cn");
}

// The font height of the charts' default font.
int defaultFontHeight()
{
    QImage image(1, 1, QImage::Format_ARGB32);
    QPainter painter(&image);
    CUprightBars().initPainter(painter);
    return qt::fontHeight(painter);
}

TEST(CBarGraph, LeavesHalfAFontAboveThePlot)
{
    CUprightBars chart;
    chart.add(5);
    chart.getImage(400, 300);
    EXPECT_EQ(chart.plotRect().top(), 10 + (defaultFontHeight() + 1) / 2);
}

TEST(CBarGraph, WithoutItemsLeavesNoGapAboveThePlot)
{
    CUprightBars chart;
    chart.getImage(400, 300);
    EXPECT_EQ(chart.plotRect().top(), 10);
}

TEST(CBarGraph, PlotLiesBetweenTheAxesAndTheMargins)
{
    CUprightBars chart;
    chart.addMany(4, "caption");
    chart.getImage(400, 300);
    const QRect plot = chart.plotRect();
    const QRect categories = chart.categoryAxis()->axisRect();
    const QRect numbers = chart.numberAxis()->axisRect();
    EXPECT_EQ(plot.right(), 400 - 1 - 10);
    EXPECT_EQ(categories, QRect(QPoint(plot.left(), plot.bottom() + 1), QPoint(389, 289)));
    EXPECT_EQ(numbers, QRect(QPoint(10, plot.top()), QPoint(plot.left() - 1, plot.bottom() + 1)));
}

TEST(CBarGraph, FixedPositionIsTheColumnOfTheLineAndTheLastRowAboveTheOther)
{
    CUprightBars chart;
    chart.setPosition(100, 200);
    chart.addMany(4, "caption");
    const QImage image = chart.getImage(400, 300);
    // No part of a line of one pixel counts below the plot, so it stands a row under its position.
    EXPECT_EQ(chart.plotRect().left(), 101);
    EXPECT_EQ(chart.plotRect().bottom(), 200);
    EXPECT_TRUE(isColumn(image, 100, 20, 201, kBlackPixel));
    EXPECT_TRUE(isRow(image, 201, 100, 389, kBlackPixel));
}

TEST(CBarGraph, TooSmallForItsAxesFitsNothing)
{
    CUprightBars chart;
    chart.addMany(4, "caption");
    chart.getImage(20, 300);
    EXPECT_FALSE(chart.plotRect().isValid());
    chart.getImage(400, 20);
    EXPECT_FALSE(chart.plotRect().isValid());
    chart.getImage(60, 60);
    EXPECT_TRUE(chart.plotRect().isValid());
}

TEST(CBarGraph, BarsStandOnTheCategoryLineInTheirOrder)
{
    CUprightBars chart;
    chart.addMany(4);
    chart.getImage(400, 300);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(chart.bar(i).bottom(), chart.plotRect().bottom());
        if (i > 0) {
            EXPECT_GT(chart.bar(i).left(), chart.bar(i - 1).right());
        }
    }
}

TEST(CBarGraph, GridLinesRunOverThePlotAndNeverReachTheBottomColour)
{
    CUprightBars chart;
    chart.add(37, "");
    chart.setBarWidth(1);
    const QImage image = chart.getImage(400, 300);
    const QRect plot = chart.plotRect();
    // Labels 0 (hidden) to 40: five labels, four lines, the last one at three quarters of the way.
    const auto line = [&](int index) {
        return chart.numberAxis()->labels()[static_cast<std::size_t>(index)]->tickCoord();
    };
    const int axis = plot.bottom() + 1;
    EXPECT_TRUE(isRow(image, axis - line(1), plot.left(), plot.left() + 50, qRgb(179, 190, 204)));
    EXPECT_TRUE(isRow(image, axis - line(4), plot.left(), plot.right() - 1, qRgb(197, 200, 204)));
    EXPECT_EQ(image.pixel(plot.right(), axis - line(4)), kWhitePixel);
}

TEST(CBarGraph, GridLinesAreDrawnInPrintAsWell)
{
    CUprightBars chart;
    chart.add(37, "");
    chart.setBarWidth(1);
    const QImage image = chart.getImageForPrinter(400, 300, 2);
    const int row = chart.plotRect().bottom() + 1 - chart.numberAxis()->getNumberCoord(10);
    EXPECT_EQ(image.pixel(chart.plotRect().left() + 50, row), qRgb(179, 190, 204));
}

TEST(CBarGraph, RightBorderFadesFromTopToBottomOnScreenAndInPrint)
{
    for (const bool isPrinted : {false, true}) {
        CUprightBars chart(true);
        chart.add(37, "");
        const QImage image =
            isPrinted ? chart.getImageForPrinter(400, 300, 1) : chart.getImage(400, 300);
        const QRect plot = chart.plotRect();
        EXPECT_NEAR(qRed(image.pixel(plot.right(), plot.top() + 1)), 179, 2);
        EXPECT_NEAR(qRed(image.pixel(plot.right(), plot.bottom() - 1)), 204, 2);
    }
}

TEST(CBarGraph, WithoutBackgroundHasNoRightBorder)
{
    CUprightBars chart(false);
    chart.add(37, "");
    const QImage image = chart.getImage(400, 300);
    const QRect plot = chart.plotRect();
    EXPECT_TRUE(isColumn(image, plot.right(), plot.top(), plot.bottom(), kWhitePixel));
}

TEST(CBarGraph, RightBorderIsAsWideAsTheScale)
{
    CUprightBars chart(true);
    chart.add(37, "");
    chart.setVerticalAxis(CAxis::Properties(), QString());
    const QImage image = chart.getImageForPrinter(400, 300, 3);
    const QRect plot = chart.plotRect();
    const int row = plot.top() + plot.height() / 3;
    int width = 0;
    for (int x = plot.right() - 5; x <= plot.right() + 5; ++x)
        width += image.pixel(x, row) != kWhitePixel;
    EXPECT_EQ(width, 3);
}

} // namespace
} // namespace tovangl
