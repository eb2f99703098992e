// SPDX-License-Identifier: MIT
// What a laid-out bar chart puts on the picture.
#include "layout/grid_lines.h"
#include "paint/bar_painting.h"
#include "support/CBarChart.h"
#include "support/chart_font.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

const CRequest kScreen = onScreen(200, 150);

QImage paintedBars(const CBarLayout& layout)
{
    return painted(60, 60, [&layout](QPainter& painter) {
        painter.setFont(chartFont("DejaVu Sans", 12));
        paintBars(painter, layout);
    });
}

CBarLayout bareLayout()
{
    return bareBarLayout(QRect(10, 10, 40, 40));
}

CBar barOf(const QRect& rect)
{
    CBar bar;
    bar.rect = rect;
    bar.color = Qt::red;
    bar.outlineColor = Qt::blue;
    return bar;
}

CPlacedText blackText(const QRect& room)
{
    CPlacedText text;
    text.text = QString("Hxg");
    text.room = toRoom(room);
    text.color = Qt::black;
    return text;
}

// --- bars

TEST(BarPainting, ABarIsAFilledRectangleWithAnOutline)
{
    CBarLayout layout = bareLayout();
    layout.bars = {barOf(QRect(5, 4, 8, 9))};
    const QImage image = paintedBars(layout);
    // A pen of one pixel adds a column at the right and a row at the bottom.
    EXPECT_TRUE(isWhiteOutside(image, QRect(5, 4, 9, 10)));
    EXPECT_TRUE(isColumn(image, 5, 4, 13, kBluePixel));
    EXPECT_TRUE(isColumn(image, 13, 4, 13, kBluePixel));
    EXPECT_TRUE(isRow(image, 4, 5, 13, kBluePixel));
    EXPECT_TRUE(isRow(image, 13, 5, 13, kBluePixel));
    EXPECT_TRUE(isFilled(image, QRect(6, 5, 7, 8), kRedPixel));
}

TEST(BarPainting, BarsWithoutExtentLeaveThePicture)
{
    CBarLayout layout = bareLayout();
    layout.bars = {barOf(QRect()), barOf(QRect(QPoint(5, 5), QPoint(4, 10)))};
    EXPECT_TRUE(isWhiteOutside(paintedBars(layout), QRect()));
}

class BarOutline : public ::testing::TestWithParam<int>
{};

TEST_P(BarOutline, IsAsWideAsTheScaleAndTheFillIsKeptInPrint)
{
    const int scale = GetParam();
    CBarChart chart(BarKind::Standing);
    chart.hideAxes();
    chart.add(40, "", Qt::red, Qt::blue);
    const CDrawnBars drawn = chart.drawn(inPrint(200, 150, scale));
    const QRect bar = drawn.layout.bars[0].rect;
    // The pen is centred on the rectangle's edges.
    const int inside = (scale + 1) / 2;
    const int first = bar.left() - scale / 2;
    const int middle = bar.center().y();
    EXPECT_TRUE(isRow(drawn.image, middle, first, first + scale - 1, kBluePixel));
    EXPECT_NE(drawn.image.pixel(first - 1, middle), kBluePixel);
    EXPECT_TRUE(
        isRow(drawn.image, middle, bar.left() + inside, bar.right() - scale / 2, kRedPixel));
}

INSTANTIATE_TEST_SUITE_P(Scales, BarOutline, ::testing::Values(1, 2, 3));

// --- behind the bars

TEST(BarPainting, BackgroundFadesOverThePlotFromTopToBottom)
{
    CBarLayout layout = bareLayout();
    layout.background = CVerticalFade{QColor(200, 100, 0), QColor(255, 255, 0)};
    const QImage image = paintedBars(layout);
    EXPECT_EQ(inkOf(image), layout.plotRect);
    EXPECT_NEAR(qRed(image.pixel(30, 10)), 200, 2);
    EXPECT_NEAR(qGreen(image.pixel(30, 10)), 100, 3);
    EXPECT_NEAR(qRed(image.pixel(30, 30)), 228, 2);
    EXPECT_NEAR(qGreen(image.pixel(30, 49)), 255, 3);
}

TEST(BarPainting, BackgroundOfOneColourIsFlat)
{
    CBarLayout layout = bareLayout();
    layout.background = CVerticalFade{Qt::red, Qt::red};
    const QImage image = paintedBars(layout);
    EXPECT_TRUE(isFilled(image, layout.plotRect, kRedPixel));
    EXPECT_TRUE(isWhiteOutside(image, layout.plotRect));
}

TEST(BarPainting, GridLinesLieOnTheBackgroundAndUnderTheBars)
{
    CBarLayout layout = bareLayout();
    layout.background = CVerticalFade{Qt::white, Qt::white};
    layout.gridLines = {{QPoint(10, 30), QPoint(49, 30), Qt::black, 1}};
    layout.bars = {barOf(QRect(20, 20, 10, 20))};
    const QImage image = paintedBars(layout);
    EXPECT_TRUE(isRow(image, 30, 10, 19, kBlackPixel));
    EXPECT_TRUE(isRow(image, 30, 21, 29, kRedPixel));
    EXPECT_TRUE(isRow(image, 30, 31, 49, kBlackPixel));
}

TEST(BarPainting, RightBorderFadesFromTopToBottom)
{
    CBarLayout layout = bareLayout();
    layout.border = CPlotBorder{{kBorderTop, kBorderBottom}, std::nullopt};
    const QImage image = paintedBars(layout);
    EXPECT_NEAR(qRed(image.pixel(49, 11)), 179, 2);
    EXPECT_NEAR(qRed(image.pixel(49, 48)), 204, 2);
    EXPECT_EQ(inkOf(image).width(), 1);
}

TEST(BarPainting, RightBorderIsAsWideAsTheScale)
{
    CBarLayout layout = bareLayout();
    layout.lineWidth = 3;
    layout.border = CPlotBorder{{kBorderTop, kBorderBottom}, std::nullopt};
    EXPECT_EQ(inkOf(paintedBars(layout)).width(), 3);
}

TEST(BarPainting, BorderBelowLiesOverTheRightOne)
{
    CBarLayout layout = bareLayout();
    layout.border = CPlotBorder{
        {Qt::red, Qt::red},
        CStraightLine{layout.plotRect.bottomLeft(), layout.plotRect.bottomRight(), Qt::black, 1}};
    const QImage image = paintedBars(layout);
    EXPECT_TRUE(isRow(image, 49, 10, 49, kBlackPixel));
    EXPECT_EQ(image.pixel(49, 40), kRedPixel);
}

// --- axes

TEST(BarPainting, AxisLinesHaveTheirColourAndSquareEnds)
{
    CBarLayout layout = bareLayout();
    layout.categoryAxis->line = CStraightLine{QPoint(10, 50), QPoint(49, 50), Qt::red, 3};
    layout.numberAxis->line = CStraightLine{QPoint(9, 49), QPoint(9, 10), Qt::blue, 1};
    const QImage image = paintedBars(layout);
    EXPECT_EQ(extentOf(image, kRedPixel), QRect(9, 49, 42, 3));
    EXPECT_EQ(extentOf(image, kBluePixel), QRect(9, 10, 1, 40));
}

TEST(BarPainting, AxesPaintTheirTextsInTheirRooms)
{
    CBarLayout layout = bareLayout();
    layout.categoryAxis->texts = {blackText(QRect(10, 5, 30, 16))};
    layout.numberAxis->texts = {blackText(QRect(10, 35, 30, 16))};
    const QImage image = paintedBars(layout);
    const QRect upper = inkOf(image.copy(0, 0, 60, 30));
    EXPECT_TRUE(QRect(10, 5, 30, 16).contains(upper));
    EXPECT_EQ(inkOf(image.copy(0, 30, 60, 30)), upper);
}

TEST(BarPainting, AxesLieOverTheBars)
{
    CBarLayout layout = bareLayout();
    layout.bars = {barOf(QRect(20, 40, 10, 10))};
    layout.categoryAxis->line = CStraightLine{QPoint(10, 50), QPoint(49, 50), Qt::black, 1};
    EXPECT_TRUE(isRow(paintedBars(layout), 50, 10, 49, kBlackPixel));
}

// --- values beside the bars

TEST(BarPainting, ValuesArePaintedWhereTheyHaveARectangle)
{
    CBarLayout layout = bareLayout();
    CBar bar = barOf(QRect());
    bar.label = blackText(QRect(10, 20, 40, 16));
    layout.bars = {bar};
    EXPECT_FALSE(inkOf(paintedBars(layout)).isValid());
    layout.bars[0].labelRect = QRect(10, 20, 40, 16);
    EXPECT_TRUE(inkOf(paintedBars(layout)).isValid());
}

// Two bars over one another, the value of the one in the place of the other.
bool isValueSeen(std::size_t labelled)
{
    CBarLayout layout = bareLayout();
    layout.bars.assign(2, barOf(QRect(5, 5, 50, 50)));
    layout.bars[labelled].labelRect = QRect(10, 20, 40, 16);
    layout.bars[labelled].label = blackText(layout.bars[labelled].labelRect);
    return extentOf(paintedBars(layout), kBlackPixel).isValid();
}

TEST(BarPainting, ValuesAreCoveredByLaterBarsAndCoverEarlierOnes)
{
    EXPECT_FALSE(isValueSeen(0));
    EXPECT_TRUE(isValueSeen(1));
}

// --- the whole

TEST(BarPainting, AChartThatDoesNotFitIsWhite)
{
    for (const BarKind kind : {BarKind::Standing, BarKind::Lying}) {
        CBarChart chart(kind, true);
        chart.add(5);
        const CDrawnBars drawn = chart.drawn(onScreen(18, 18));
        EXPECT_FALSE(drawn.layout.fits());
        EXPECT_TRUE(isWhiteOutside(drawn.image, QRect()));
    }
}

TEST(BarPainting, AxesOfAChartMeetAtTheCornerOfItsPlot)
{
    CBarChart chart(BarKind::Standing);
    chart.add(40, "", Qt::red, Qt::red);
    chart.input.position = QPoint(50, 100);
    const QImage image = chart.drawn(kScreen).image;
    EXPECT_TRUE(isColumn(image, 50, 20, 101, kBlackPixel));
    EXPECT_TRUE(isRow(image, 101, 50, 189, kBlackPixel));
}

TEST(BarPainting, NothingIsSmoothed)
{
    CBarLayout layout = bareLayout();
    layout.bars = {barOf(QRect(5, 4, 8, 9))};
    const QImage smooth = painted(60, 60, [&layout](QPainter& painter) {
        painter.setRenderHint(QPainter::Antialiasing, true);
        paintBars(painter, layout);
    });
    EXPECT_EQ(smooth, paintedBars(layout));
}

TEST(BarPainting, LeavesThePainterAsItWas)
{
    CBarLayout layout = bareLayout();
    layout.bars = {barOf(QRect(5, 4, 8, 9))};
    layout.numberAxis->texts = {blackText(QRect(10, 35, 30, 16))};
    (void)painted(60, 60, [&layout](QPainter& painter) {
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setPen(Qt::green);
        paintBars(painter, layout);
        EXPECT_TRUE(painter.testRenderHint(QPainter::Antialiasing));
        EXPECT_EQ(painter.pen().color(), QColor(Qt::green));
        EXPECT_TRUE(painter.worldTransform().isIdentity());
    });
}

} // namespace
} // namespace tovangl
