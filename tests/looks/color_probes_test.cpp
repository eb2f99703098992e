// SPDX-License-Identifier: MIT
// Looks at the pixels where each colour that can be set is painted.
#include "input/setting_rules.h"
#include "layout/captions.h"
#include "support/CBarChart.h"
#include "support/CTestPie.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr QRgb kTealPixel = 0xff127886;
constexpr const char* kTeal = "#127886";

// Three bars that reach half of the plot's extent, on a background.
CDrawnBars drawnBars(BarKind kind, const char* setting)
{
    CBarChart chart(kind, true);
    for (const char* caption : {"one", "two", "three"})
        chart.add(700, caption);
    chart.input.setBarWidth(20);
    const CSettingTarget target(chart.input);
    EXPECT_EQ(applySetting(target, "category_title", "Title"), "");
    EXPECT_EQ(applySetting(target, setting, kTeal), "") << setting;
    return chart.drawn(onScreen(320, 240));
}

bool isTeal(const QImage& image, const QPoint& place)
{
    return image.pixel(place) == kTealPixel;
}

bool hasTeal(const QImage& image, const QRect& rect)
{
    return !extentOf(image.copy(rect), kTealPixel).isNull();
}

class BarColor : public ::testing::TestWithParam<BarKind>
{};

TEST_P(BarColor, OfThePictureFillsItUpToItsCorners)
{
    const QImage image = drawnBars(GetParam(), "picture_color").image;
    EXPECT_TRUE(isTeal(image, image.rect().topLeft()));
    EXPECT_TRUE(isTeal(image, image.rect().bottomRight()));
}

TEST_P(BarColor, OfTextsIsThatOfEveryCaption)
{
    const CDrawnBars drawn = drawnBars(GetParam(), "text_color");
    for (const QRect& caption : captionRects(drawn.layout))
        EXPECT_TRUE(hasTeal(drawn.image, caption));
}

TEST_P(BarColor, OfTextsIsThatOfAxisLinesWithoutAColourOfTheirOwn)
{
    const CDrawnBars drawn = drawnBars(GetParam(), "text_color");
    EXPECT_TRUE(isTeal(drawn.image, drawn.layout.categoryAxis->line->from));
}

TEST_P(BarColor, OfThePlotFillsItBetweenTheBars)
{
    const CDrawnBars drawn = drawnBars(GetParam(), "plot_color");
    const QRect& first = drawn.layout.bars[0].rect;
    const QRect& second = drawn.layout.bars[1].rect;
    const QPoint between = (first.center() + second.center()) / 2;
    EXPECT_TRUE(isTeal(drawn.image, between));
    EXPECT_TRUE(isTeal(drawn.image, drawn.layout.plotRect.topRight() + QPoint(-3, 3)));
}

TEST_P(BarColor, OfTheBorderRunsDownTheRightEdgeOfThePlot)
{
    const CDrawnBars drawn = drawnBars(GetParam(), "border_color");
    const QRect& plot = drawn.layout.plotRect;
    EXPECT_TRUE(isColumn(drawn.image, plot.right(), plot.top() + 1, plot.bottom() - 1, kTealPixel));
}

TEST_P(BarColor, OfOutlinesBeginsEveryBar)
{
    const CDrawnBars drawn = drawnBars(GetParam(), "outline_color");
    for (const CBar& bar : drawn.layout.bars) {
        EXPECT_TRUE(
            isRow(drawn.image, bar.rect.top(), bar.rect.left() + 1, bar.rect.right(), kTealPixel));
        EXPECT_NE(drawn.image.pixel(bar.rect.center()), kTealPixel);
    }
}

TEST_P(BarColor, OfAxisLinesIsThatOfBoth)
{
    const CDrawnBars drawn = drawnBars(GetParam(), "axis_color");
    EXPECT_TRUE(isTeal(drawn.image, drawn.layout.categoryAxis->line->to));
    EXPECT_TRUE(isTeal(drawn.image, drawn.layout.numberAxis->line->to));
    for (const QRect& caption : captionRects(drawn.layout))
        EXPECT_FALSE(hasTeal(drawn.image, caption));
}

TEST_P(BarColor, OfAxisTitlesIsThatOfNothingElse)
{
    const CDrawnBars drawn = drawnBars(GetParam(), "axis_title_color");
    const QRect teal = extentOf(drawn.image, kTealPixel);
    EXPECT_TRUE(teal.isValid());
    EXPECT_FALSE(teal.intersects(drawn.layout.plotRect));
    for (const QRect& caption : captionRects(drawn.layout))
        EXPECT_FALSE(teal.intersects(caption));
}

std::string nameOf(const ::testing::TestParamInfo<BarKind>& info)
{
    return info.param == BarKind::Standing ? "Standing" : "Lying";
}

INSTANTIATE_TEST_SUITE_P(Bars, BarColor, ::testing::Values(BarKind::Standing, BarKind::Lying),
                         nameOf);

TEST(BarColor, OfTheGridIsThatOfEveryLine)
{
    const CDrawnBars drawn = drawnBars(BarKind::Standing, "grid_color");
    ASSERT_GT(drawn.layout.gridLines.size(), 2u);
    for (const CStraightLine& line : drawn.layout.gridLines)
        EXPECT_TRUE(isTeal(drawn.image, line.to - QPoint(1, 0)));
}

TEST(BarColor, OfTheBorderRunsBelowLyingBarsToo)
{
    const CDrawnBars drawn = drawnBars(BarKind::Lying, "border_color");
    const QRect& plot = drawn.layout.plotRect;
    EXPECT_TRUE(isRow(drawn.image, plot.bottom(), plot.left() + 1, plot.right() - 1, kTealPixel));
}

TEST(BarColor, OfValuesIsThatOfNothingElse)
{
    const CDrawnBars drawn = drawnBars(BarKind::Lying, "value_color");
    for (const CBar& bar : drawn.layout.bars)
        EXPECT_TRUE(hasTeal(drawn.image, bar.labelRect));
    EXPECT_FALSE(hasTeal(drawn.image, drawn.layout.categoryAxis->rect));
}

// Four quarters of a pie, so large that lines are several pixels wide.
CDrawnPie drawnPie(const char* setting)
{
    constexpr int kScale = 10;
    CTestPie pie(true);
    pie.addEqual(4, "caption");
    EXPECT_EQ(applySetting(CSettingTarget(pie), setting, kTeal), "") << setting;
    return drawn(pie, {3200, 2000, kScale});
}

QPoint onPicture(const CPieLayout& layout, const QPointF& fromCenter)
{
    return (layout.shift + layout.center() + fromCenter).toPoint();
}

TEST(PieColor, OfThePictureIsSeenOutsideTheRoundCorners)
{
    const CDrawnPie drawn = drawnPie("picture_color");
    EXPECT_TRUE(isTeal(drawn.image, QPoint(0, 0)));
    EXPECT_FALSE(isTeal(drawn.image, drawn.image.rect().center()));
}

TEST(PieColor, OfThePlotFillsTheBackground)
{
    const CDrawnPie drawn = drawnPie("plot_color");
    EXPECT_TRUE(isTeal(drawn.image, QPoint(200, 1000)));
    EXPECT_TRUE(isTeal(drawn.image, QPoint(3000, 1000)));
}

TEST(PieColor, OfTheBorderFramesTheBackground)
{
    const CDrawnPie drawn = drawnPie("border_color");
    EXPECT_TRUE(isTeal(drawn.image, QPoint(1600, 4)));
    EXPECT_TRUE(isTeal(drawn.image, QPoint(4, 1000)));
    EXPECT_FALSE(isTeal(drawn.image, QPoint(100, 1000)));
}

TEST(PieColor, OfOutlinesPartsTheSlices)
{
    const CDrawnPie drawn = drawnPie("outline_color");
    const double half = drawn.layout.pieRect.width() / 4;
    EXPECT_TRUE(isTeal(drawn.image, onPicture(drawn.layout, QPointF(-half, 0))));
    EXPECT_TRUE(isTeal(drawn.image, onPicture(drawn.layout, QPointF(0, half))));
    EXPECT_FALSE(isTeal(drawn.image, onPicture(drawn.layout, QPointF(half, half))));
}

TEST(PieColor, OfTextsIsThatOfEveryCaption)
{
    const CDrawnPie drawn = drawnPie("text_color");
    for (const CPlacedPieLabel& label : drawn.layout.labels)
        EXPECT_TRUE(hasTeal(drawn.image, label.itemRect));
}

TEST(PieColor, OfLinesLeadsToEveryCaption)
{
    const CDrawnPie drawn = drawnPie("line_color");
    for (const CPlacedPieLabel& label : drawn.layout.labels)
        EXPECT_TRUE(
            isTeal(drawn.image, onPicture(drawn.layout, (label.elbow + label.lineEnd) / 2)));
}

} // namespace
} // namespace tovangl
