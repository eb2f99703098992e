// SPDX-License-Identifier: MIT
#include "bar/bar_chart_support.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr QRgb kGreenPixel = 0xff00ff00;

// A chart with one red bar with a blue outline, and no axes to be seen.
struct CBareChart : CUprightBars
{
    explicit CBareChart(bool background = false)
        : CUprightBars(background)
    {
        setHorizontalAxis(CAxis::Properties(), QString());
        setVerticalAxis(CAxis::Properties(), QString());
        add(40, "", Qt::red, Qt::blue);
    }
};

TEST(BarPainter, HasNoSmoothing)
{
    QImage image(10, 10, QImage::Format_ARGB32);
    QPainter painter(&image);
    const CUprightBars chart;
    chart.initPainter(painter);
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
    EXPECT_FALSE(painter.testRenderHint(QPainter::TextAntialiasing));
    EXPECT_FALSE(painter.testRenderHint(QPainter::SmoothPixmapTransform));
    EXPECT_EQ(painter.font().pixelSize(), 11);
}

class BarOutline : public ::testing::TestWithParam<int>
{};

TEST_P(BarOutline, IsAsWideAsTheScale)
{
    const int scale = GetParam();
    CBareChart chart;
    const QImage image = chart.getImageForPrinter(200, 150, scale);
    const QRect bar = chart.bar(0);
    // The pen is centred on the rectangle's edges.
    const int inside = (scale + 1) / 2;
    const int outside = scale / 2;
    const int middle = bar.center().y();
    EXPECT_TRUE(
        isRow(image, middle, bar.left() - outside, bar.left() - outside + scale - 1, kBluePixel));
    EXPECT_NE(image.pixel(bar.left() - outside - 1, middle), kBluePixel);
    EXPECT_TRUE(
        isRow(image, middle, bar.left() + inside, bar.right() + 1 - outside - 1, kRedPixel));
}

INSTANTIATE_TEST_SUITE_P(Scales, BarOutline, ::testing::Values(1, 2, 3));

TEST(BarDrawing, KeepsItsFillInPrint)
{
    CBareChart chart;
    const QImage image = chart.getImageForPrinter(200, 150, 1);
    EXPECT_EQ(image.pixel(chart.bar(0).center()), kRedPixel);
}

TEST(BarDrawing, OfNoItemOrOfNoRectangleLeavesThePicture)
{
    QImage image(20, 20, QImage::Format_ARGB32);
    image.fill(kWhitePixel);
    QPainter painter(&image);
    CUprightBars chart;
    CBarGraphItem item(1, "a", Qt::red);
    chart.drawBar(painter, nullptr);
    chart.drawBar(painter, &item);
    item.setBarRect(QRect(QPoint(5, 5), QPoint(4, 10)));
    chart.drawBar(painter, &item);
    painter.end();
    EXPECT_TRUE(isWhiteOutside(image, QRect()));
}

TEST(BarDrawing, OneBarIsAFilledRectangleWithAnOutline)
{
    QImage image(20, 20, QImage::Format_ARGB32);
    image.fill(kWhitePixel);
    QPainter painter(&image);
    CUprightBars chart;
    CBarGraphItem item(1, "a", Qt::red, Qt::blue);
    item.setBarRect(QRect(5, 4, 8, 9));
    chart.drawBar(painter, &item);
    painter.end();
    // A pen of one pixel adds a column at the right and a row at the bottom.
    EXPECT_TRUE(isWhiteOutside(image, QRect(5, 4, 9, 10)));
    EXPECT_TRUE(isColumn(image, 5, 4, 13, kBluePixel));
    EXPECT_TRUE(isColumn(image, 13, 4, 13, kBluePixel));
    EXPECT_TRUE(isRow(image, 4, 5, 13, kBluePixel));
    EXPECT_TRUE(isRow(image, 13, 5, 13, kBluePixel));
    EXPECT_TRUE(isRow(image, 8, 6, 12, kRedPixel));
}

TEST(PlotBackground, FadesFromPaleBlueToWhite)
{
    CBareChart chart(true);
    const QImage image = chart.getImage(200, 150);
    const QRect plot = chart.plotRect();
    const QRgb top = image.pixel(plot.left() + 2, plot.top());
    const QRgb bottom = image.pixel(plot.left() + 2, plot.bottom());
    EXPECT_NEAR(qRed(top), 224, 1);
    EXPECT_NEAR(qGreen(top), 238, 1);
    EXPECT_EQ(qBlue(top), 255);
    EXPECT_NEAR(qRed(bottom), 255, 1);
    EXPECT_NEAR(qGreen(bottom), 255, 1);
}

TEST(PlotBackground, IsWhiteInPrint)
{
    CBareChart chart(true);
    const QImage image = chart.getImageForPrinter(200, 150, 1);
    EXPECT_EQ(image.pixel(chart.plotRect().topLeft() + QPoint(2, 2)), kWhitePixel);
}

TEST(PlotBackground, IsNotThereWithoutTheFlag)
{
    CBareChart chart(false);
    const QImage image = chart.getImage(200, 150);
    EXPECT_EQ(image.pixel(chart.plotRect().topLeft() + QPoint(2, 2)), kWhitePixel);
}

TEST(PlotBackground, ColoursAreAskedForThroughTheChart)
{
    struct CGreenChart : CBareChart
    {
        CGreenChart()
            : CBareChart(true)
        {}
        QColor getBackgroundTopColor() const override { return QColor(0, 255, 0); }
        QColor getBackgroundBottomColor() const override { return QColor(0, 255, 0); }
    };
    CGreenChart chart;
    const QImage image = chart.getImage(200, 150);
    EXPECT_EQ(image.pixel(chart.plotRect().topLeft() + QPoint(2, 2)), kGreenPixel);
}

TEST(PlotBackground, HasFixedColours)
{
    const CUprightBars chart;
    EXPECT_EQ(chart.getBackgroundTopColor(), QColor(224, 238, 255));
    EXPECT_EQ(chart.getBackgroundBottomColor(), QColor(255, 255, 255));
    EXPECT_EQ(chart.getBackgroundLineTopColor(), QColor(179, 190, 204));
    EXPECT_EQ(chart.getBackgroundLineBottomColor(), QColor(204, 204, 204));
}

TEST(BarChart, ThatDoesNotFitIsWhite)
{
    CUprightBars upright(true);
    upright.add(5);
    EXPECT_TRUE(isWhiteOutside(upright.getImage(18, 18), QRect()));
    CLyingBars lying(true);
    lying.add(5);
    EXPECT_TRUE(isWhiteOutside(lying.getImage(18, 18), QRect()));
}

TEST(BarChart, DrawsItsStepsInOrder)
{
    struct CListedChart : CUprightBars
    {
        using CUprightBars::CUprightBars;
        void createAxes(QPainter& p) override
        {
            steps += "axes ";
            CUprightBars::createAxes(p);
        }
        bool computeLayout(QPainter& p) override
        {
            steps += "layout ";
            return CUprightBars::computeLayout(p) && fits;
        }
        void drawBackground(QPainter&) override { steps += "background "; }
        void drawOnBackground(QPainter&) override { steps += "grid "; }
        void drawBars(QPainter&) override { steps += "bars "; }
        void drawAxes(QPainter&) override { steps += "over"; }
        std::string steps;
        bool fits = true;
    };
    CListedChart chart(true);
    chart.getImage(200, 150);
    EXPECT_EQ(chart.steps, "axes layout background grid bars over");
    CListedChart plain(false);
    plain.getImage(200, 150);
    EXPECT_EQ(plain.steps, "axes layout grid bars over");
    CListedChart narrow(true);
    narrow.fits = false;
    narrow.getImage(200, 150);
    EXPECT_EQ(narrow.steps, "axes layout ");
}

TEST(BarChart, PaintsItsAxesOverTheBars)
{
    CUprightBars chart;
    chart.add(40, "", Qt::red, Qt::red);
    const QImage image = chart.getImage(200, 150);
    const QRect plot = chart.plotRect();
    EXPECT_TRUE(isRow(image, plot.bottom() + 1, plot.left(), plot.right(), kBlackPixel));
}

TEST(ValueLabels, TakeTheTextColour)
{
    CLyingBars chart;
    chart.setHorizontalAxis(CAxis::Properties(), QString());
    chart.add(40, "a", Qt::white, Qt::white);
    chart.setTextColor(Qt::blue);
    const QImage image = chart.getImage(200, 100);
    const QRect label = chart.item(0)->barLabelRect();
    int blue = 0;
    for (int y = label.top(); y <= label.bottom(); ++y) {
        for (int x = label.left(); x <= label.right(); ++x)
            blue += image.pixel(x, y) == kBluePixel;
    }
    EXPECT_GT(blue, 10);
}

TEST(ValueLabels, AreThereForBarsWithoutExtent)
{
    CLyingBars chart;
    chart.add(0);
    chart.add(40);
    chart.getImage(200, 100);
    EXPECT_FALSE(chart.bar(0).isValid());
    EXPECT_TRUE(chart.item(0)->barLabelRect().isValid());
}

// Two lying bars that are wider than their pitch, the first one's value in the second one's place.
struct COverlappingBars : CLyingBars
{
    COverlappingBars(long long first, long long second)
    {
        setHorizontalAxis(CAxis::Properties(), QString());
        add(first, "a", Qt::red, Qt::red);
        add(second, "b", Qt::red, Qt::red);
        setBarWidth(90);
    }
    // Whether a value label can be seen on the bar of the other item.
    [[nodiscard]] bool isLabelSeen(const QImage& image, int labelled, int other) const
    {
        const QRect common = item(labelled)->barLabelRect() & bar(other);
        EXPECT_EQ(common.size(), item(labelled)->barLabelRect().size());
        for (int y = common.top(); y <= common.bottom(); ++y) {
            if (!isRow(image, y, common.left(), common.right(), kRedPixel))
                return true;
        }
        return false;
    }
};

TEST(ValueLabels, AreCoveredByALaterBarThatIsWiderThanItsPitch)
{
    COverlappingBars chart(10, 1000);
    const QImage image = chart.getImage(300, 150);
    EXPECT_FALSE(chart.isLabelSeen(image, 0, 1));
}

TEST(ValueLabels, CoverAnEarlierBarThatIsWiderThanItsPitch)
{
    COverlappingBars chart(1000, 10);
    const QImage image = chart.getImage(300, 150);
    EXPECT_TRUE(chart.isLabelSeen(image, 1, 0));
}

TEST(ValueLabels, AreNotThereInAnUprightChart)
{
    CUprightBars chart;
    chart.add(40);
    chart.getImage(200, 100);
    EXPECT_EQ(chart.item(0)->barLabelRect(), QRect());
}

} // namespace
} // namespace tovangl
