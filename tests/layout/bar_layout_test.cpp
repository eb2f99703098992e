// SPDX-License-Identifier: MIT
// Whole bar charts of both kinds, laid out.
#include "layout/grid_lines.h"
#include "support/CBarChart.h"
#include "support/CTestMeasurer.h"

#include <gmock/gmock.h>
#include <limits>
#include <set>

namespace tovangl {
namespace {

using ::testing::Each;
using ::testing::Field;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr int kMost = std::numeric_limits<int>::max();
const CRequest kScreen = onScreen(400, 300);
const QColor kPaleBlue(224, 238, 255);

// --- both kinds

class BarLayout : public ::testing::TestWithParam<BarKind>
{
protected:
    CBarChart chart{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Kinds, BarLayout, ::testing::Values(BarKind::Standing, BarKind::Lying),
                         [](const auto& kind) {
                             return kind.param == BarKind::Standing ? "Standing" : "Lying";
                         });

TEST_P(BarLayout, HasOneBarForEveryItemDrawn)
{
    chart.add(100);
    chart.add(1);
    chart.add(99);
    chart.input.settings.threshold = 10;
    const CBarLayout layout = chart.layout(kScreen);
    ASSERT_THAT(layout.bars, SizeIs(2));
    EXPECT_EQ(layout.bars[0].item, 0U);
    EXPECT_EQ(layout.bars[1].item, 2U);
    EXPECT_THAT(layout.categoryAxis->labels, SizeIs(2));
}

TEST_P(BarLayout, ScaleSpansTheValuesDrawn)
{
    chart.input.horizontalAxis.properties = CAxisSettings::ShowLine;
    chart.add(-30);
    chart.add(70);
    chart.add(5);
    const CBarLayout layout = chart.layout(kScreen);
    EXPECT_EQ(layout.scale.min, -40);
    EXPECT_EQ(layout.scale.max, 80);
    EXPECT_FALSE(layout.numberAxis->shape.isEmpty);
}

TEST_P(BarLayout, OfNoItemsHasEmptyAxesAndNoBars)
{
    const CBarLayout layout = chart.layout(kScreen);
    EXPECT_TRUE(layout.fits());
    EXPECT_THAT(layout.bars, IsEmpty());
    EXPECT_TRUE(layout.categoryAxis->shape.isEmpty);
    EXPECT_TRUE(layout.numberAxis->shape.isEmpty);
    EXPECT_EQ(layout.barWidth, 0);
}

TEST_P(BarLayout, TakesLineWidthAndBarWidthTimesTheScale)
{
    chart.addMany(3);
    chart.input.barWidth = 12;
    const CBarLayout layout = chart.layout(inPrint(400, 300, 3));
    EXPECT_EQ(layout.lineWidth, 3);
    EXPECT_EQ(layout.categoryAxis->line->width, 3);
    EXPECT_EQ(layout.numberAxis->line->width, 3);
    EXPECT_EQ(layout.barWidth, 36);
    EXPECT_EQ(layout.spaces.right, 30);
}

TEST_P(BarLayout, AxesAreBlackUnlessATextColourIsSet)
{
    for (const QColor& color : {QColor(), QColor(Qt::red)}) {
        chart.input.settings.colors.text = color;
        const CBarLayout layout = chart.layout(kScreen);
        const QColor expected = color.isValid() ? color : QColor(Qt::black);
        EXPECT_EQ(layout.categoryAxis->line->color, expected);
        EXPECT_EQ(layout.numberAxis->line->color, expected);
    }
}

TEST_P(BarLayout, WithoutRoomForItsAxesHasNothingButItsEdges)
{
    chart.addMany(4, "caption");
    for (const CRequest& tooSmall : {onScreen(20, 300), onScreen(400, 20)}) {
        const CBarLayout layout = chart.layout(tooSmall);
        EXPECT_FALSE(layout.fits());
        EXPECT_FALSE(layout.categoryAxis || layout.numberAxis);
        EXPECT_THAT(layout.bars, IsEmpty());
    }
    EXPECT_TRUE(chart.layout(onScreen(60, 60)).fits());
}

TEST_P(BarLayout, BackgroundIsPaleBlueOnScreenAndWhiteInPrint)
{
    EXPECT_FALSE(chart.layout(kScreen).background);
    chart.input.settings.hasBackground = true;
    const CVerticalFade screen = *chart.layout(kScreen).background;
    EXPECT_EQ(screen.top, kPaleBlue);
    EXPECT_EQ(screen.bottom, QColor(Qt::white));
    const CVerticalFade print = *chart.layout(inPrint(400, 300, 1)).background;
    EXPECT_EQ(print.top, QColor(Qt::white));
    EXPECT_EQ(print.bottom, QColor(Qt::white));
}

TEST_P(BarLayout, FreeAxesGetTheRoomThatTheyAskFor)
{
    chart.addMany(3, "caption");
    chart.input.horizontalAxis.properties |= CAxisSettings::ShowLabels;
    const CBarLayout layout = chart.layout(kScreen);
    for (const CAxisLayout& axis : {*layout.categoryAxis, *layout.numberAxis})
        EXPECT_EQ(axis.shape.frame.orientedSize(axis.rect).height(),
                  axis.shape.getElementHeight(CAxisShape::WholeThickness));
}

TEST_P(BarLayout, HorizontalAxisAsksForTheRoomOfItsLabelsInTheirDirection)
{
    chart.addMany(4, "caption");
    chart.add(5000000, "caption");
    chart.input.horizontalAxis.properties = CAxisSettings::ShowLine | CAxisSettings::ShowLabels;
    std::set<LabelDirection> directions;
    for (int width = 100; width < 500; ++width) {
        const CBarLayout layout = chart.layout(onScreen(width, 400));
        const CAxisLayout& axis =
            GetParam() == BarKind::Standing ? *layout.categoryAxis : *layout.numberAxis;
        ASSERT_EQ(axis.rect.height(), axis.shape.getElementHeight(CAxisShape::WholeThickness))
            << width;
        directions.insert(axis.shape.direction);
    }
    EXPECT_THAT(directions, SizeIs(3));
}

TEST_P(BarLayout, FreeAxisAtTheLeftGetsAQuarterOfThePictureAtMost)
{
    chart.addMany(3, "a caption of some length");
    EXPECT_EQ(chart.layout(onScreen(40, 300)).plotRect.left(), 10 + 10);
}

TEST_P(BarLayout, PositionOutsideThePictureIsThatOfAFreeAxis)
{
    chart.addMany(3);
    const QRect free = chart.layout(kScreen).plotRect;
    for (const QPoint& position : {QPoint(400, 300), QPoint(kMost, kMost), QPoint(-1, -1)}) {
        chart.input.position = position;
        EXPECT_EQ(chart.layout(kScreen).plotRect, free);
    }
}

struct CFixedAxes
{
    BarKind kind;
    QPoint position;
    int factor;
    QPoint plotCorner; // between the axes: bottom left of a standing chart, top left of a lying one
};

class FixedAxes : public ::testing::TestWithParam<CFixedAxes>
{};

TEST_P(FixedAxes, StandBesideThePlot)
{
    CBarChart chart(GetParam().kind);
    chart.addMany(4, "caption");
    chart.input.position = GetParam().position;
    const QRect plot = chart.layout(inPrint(400, 300, GetParam().factor)).plotRect;
    EXPECT_EQ(GetParam().kind == BarKind::Standing ? plot.bottomLeft() : plot.topLeft(),
              GetParam().plotCorner);
}

// No part of a line of one pixel counts below the plot, so the line stands a row under its
// position.
INSTANTIATE_TEST_SUITE_P(Positions, FixedAxes,
                         ::testing::Values(CFixedAxes{BarKind::Standing, {60, 250}, 1, {61, 250}},
                                           CFixedAxes{BarKind::Standing, {10, 289}, 1, {11, 289}},
                                           // Inside the margin an axis has no room but its line's.
                                           CFixedAxes{BarKind::Standing, {4, 296}, 1, {5, 296}},
                                           CFixedAxes{BarKind::Standing, {60, 250}, 2, {122, 500}},
                                           CFixedAxes{BarKind::Lying, {100, 50}, 1, {101, 51}},
                                           CFixedAxes{BarKind::Lying, {4, 3}, 1, {5, 4}},
                                           CFixedAxes{BarKind::Lying, {100, 50}, 2, {202, 102}}));

// --- standing bars

class StandingBars : public ::testing::Test
{
protected:
    CBarChart chart{BarKind::Standing};
};

TEST_F(StandingBars, HaveCategoriesBelowAndNumbersAtTheLeft)
{
    chart.input.horizontalAxis = {CAxisSettings::ShowTitle, QString("categories")};
    chart.input.verticalAxis = {CAxisSettings::ShowTitle, QString("numbers")};
    const CBarLayout layout = chart.layout(kScreen);
    EXPECT_EQ(layout.categoryAxis->shape.frame.orientation(), CAxisFrame::LeftToRight);
    EXPECT_EQ(layout.categoryAxis->shape.frame.legendLocation(), CAxisFrame::Bottom);
    EXPECT_EQ(layout.categoryAxis->title.getText(), QString("categories"));
    EXPECT_EQ(layout.numberAxis->shape.frame.orientation(), CAxisFrame::BottomToTop);
    EXPECT_EQ(layout.numberAxis->shape.frame.legendLocation(), CAxisFrame::Left);
    EXPECT_EQ(layout.numberAxis->title.getText(), QString("numbers"));
}

TEST_F(StandingBars, LeaveHalfAFontAboveThePlotWhereThereAreAny)
{
    EXPECT_EQ(chart.layout(kScreen).plotRect.top(), 10);
    chart.add(5);
    EXPECT_EQ(chart.layout(kScreen).plotRect.top(), 10 + (CTestMeasurer().fontHeight() + 1) / 2);
}

TEST_F(StandingBars, HaveThePlotBetweenTheAxesAndTheMargins)
{
    chart.addMany(4, "caption");
    const CBarLayout layout = chart.layout(kScreen);
    const QRect plot = layout.plotRect;
    EXPECT_EQ(plot.right(), 400 - 1 - 10);
    EXPECT_EQ(layout.categoryAxis->rect,
              QRect(QPoint(plot.left(), plot.bottom() + 1), QPoint(389, 289)));
    EXPECT_EQ(layout.numberAxis->rect,
              QRect(QPoint(10, plot.top()), QPoint(plot.left() - 1, plot.bottom() + 1)));
}

TEST_F(StandingBars, HaveAtMostAQuarterOfThePictureBelowThem)
{
    chart.addMany(3, "caption");
    EXPECT_EQ(chart.layout(onScreen(400, 32)).plotRect.bottom(), 32 - 1 - 10 - 8);
}

TEST_F(StandingBars, FixedBelowTheTopLeaveTheOtherAxisFree)
{
    chart.addMany(3);
    const int left = chart.layout(kScreen).plotRect.left();
    chart.input.position = QPoint(kFreePosition, 120);
    EXPECT_EQ(chart.layout(kScreen).plotRect.bottomLeft(), QPoint(left, 120));
}

TEST_F(StandingBars, HaveNoValuesBesideThem)
{
    chart.addMany(3);
    EXPECT_THAT(chart.layout(kScreen).bars, Each(Field(&CBar::labelRect, QRect())));
}

TEST_F(StandingBars, HaveGridLinesOverThePlotThatNeverReachTheBottomColour)
{
    chart.add(37, "");
    for (const CRequest& request : {kScreen, inPrint(400, 300, 2)}) {
        const CBarLayout layout = chart.layout(request);
        // Labels 0 (hidden) to 40: five labels, four lines, the last one three quarters of the way.
        ASSERT_THAT(layout.gridLines, SizeIs(4));
        EXPECT_EQ(layout.gridLines[0].color, kBorderTop);
        EXPECT_EQ(layout.gridLines[3].color, QColor(197, 200, 204));
        for (const CStraightLine& line : layout.gridLines) {
            EXPECT_EQ(line.from.x(), layout.plotRect.left());
            EXPECT_EQ(line.to.x(), layout.plotRect.right() - request.scale);
        }
    }
}

TEST_F(StandingBars, HaveAGridLineAtEveryTick)
{
    chart.add(37, "");
    const CBarLayout layout = chart.layout(kScreen);
    for (std::size_t i = 0; i < 4; ++i) {
        const int coord = layout.scale.coord(10 * (static_cast<long long>(i) + 1));
        EXPECT_EQ(layout.gridLines.at(i).from.y(), layout.plotRect.bottom() + 1 - coord);
    }
}

TEST_F(StandingBars, HaveARightBorderWithTheBackgroundOnScreenAndInPrint)
{
    EXPECT_FALSE(chart.layout(kScreen).border);
    chart.input.settings.hasBackground = true;
    for (const CRequest& request : {kScreen, inPrint(400, 300, 1)}) {
        const CBarLayout layout = chart.layout(request);
        ASSERT_TRUE(layout.border);
        EXPECT_EQ(layout.border->right.top, QColor(179, 190, 204));
        EXPECT_EQ(layout.border->right.bottom, QColor(204, 204, 204));
        EXPECT_FALSE(layout.border->bottom);
    }
}

TEST_F(StandingBars, HaveStepsOfTheKiloAskedFor)
{
    chart.add(1234567);
    CRequest request = kScreen;
    EXPECT_EQ(chart.layout(request).scale.max, 1310720);
    request.kilo = kKilo1000;
    EXPECT_EQ(chart.layout(request).scale.max, 1500000);
}

// --- lying bars

class LyingBars : public ::testing::Test
{
protected:
    CBarChart chart{BarKind::Lying};
};

TEST_F(LyingBars, HaveNumbersAboveAndCategoriesAtTheLeft)
{
    chart.input.verticalAxis = {CAxisSettings::ShowTitle, QString("categories")};
    const CBarLayout layout = chart.layout(kScreen);
    EXPECT_EQ(layout.numberAxis->shape.frame.orientation(), CAxisFrame::LeftToRight);
    EXPECT_EQ(layout.numberAxis->shape.frame.legendLocation(), CAxisFrame::Top);
    EXPECT_EQ(layout.numberAxis->title.getText(), QString());
    EXPECT_EQ(layout.categoryAxis->shape.frame.orientation(), CAxisFrame::TopToBottom);
    EXPECT_EQ(layout.categoryAxis->shape.frame.legendLocation(), CAxisFrame::Left);
    EXPECT_EQ(layout.categoryAxis->title.getText(), QString("categories"));
}

TEST_F(LyingBars, ReserveTwoMarginsAndTheWidestValueBehindTheScale)
{
    EXPECT_EQ(chart.layout(kScreen).numberAxis->shiftAtEnd, -20);
    chart.add(5);
    chart.add(1234567);
    CTestMeasurer measurer;
    const CTextLabel widest(QString("1,234,567"), CTextStyle(), measurer);
    const QSize size = widest.wholePixelRect().size();
    const CBarLayout layout = chart.layout(kScreen);
    EXPECT_EQ(layout.numberAxis->shiftAtEnd, -(20 + size.width()));
    for (const CBar& bar : layout.bars)
        EXPECT_EQ(bar.labelRect.size(), size);
    const CBarLayout printed = chart.layout(inPrint(400, 300, 2));
    EXPECT_EQ(printed.numberAxis->shiftAtEnd, -(40 + printed.bars[0].labelRect.width()));
}

TEST_F(LyingBars, HaveAtMostAQuarterOfThePictureAboveThem)
{
    chart.addMany(3);
    chart.input.horizontalAxis.properties |= CAxisSettings::ShowLabels;
    EXPECT_EQ(chart.layout(onScreen(400, 32)).plotRect.top(), 10 + 8);
}

TEST_F(LyingBars, HaveThePlotUpToTheMargins)
{
    chart.addMany(4, "caption");
    const CBarLayout layout = chart.layout(kScreen);
    const QRect plot = layout.plotRect;
    EXPECT_EQ(plot.bottomRight(), QPoint(389, 289));
    EXPECT_EQ(plot.top(), 10 + 1);
    EXPECT_EQ(layout.categoryAxis->rect,
              QRect(QPoint(10, plot.top()), QPoint(plot.left() - 1, 289)));
}

TEST_F(LyingBars, HaveTheZeroOfTheirValuesOnTheVerticalLine)
{
    chart.addMany(4, "caption");
    const CBarLayout layout = chart.layout(kScreen);
    const QRect plot = layout.plotRect;
    EXPECT_EQ(layout.numberAxis->rect,
              QRect(QPoint(plot.left() - 1, 10), QPoint(389, plot.top() - 1)));
    EXPECT_EQ(layout.numberAxis->line->from, QPoint(plot.left() - 1, plot.top() - 1));
    EXPECT_EQ(layout.categoryAxis->line->from, QPoint(plot.left() - 1, plot.top()));
}

TEST_F(LyingBars, StartOnTheVerticalLineOneBelowTheOther)
{
    chart.addMany(4, "caption");
    const CBarLayout layout = chart.layout(kScreen);
    int below = layout.plotRect.top();
    for (const CBar& bar : layout.bars) {
        EXPECT_EQ(bar.rect.left(), layout.plotRect.left() - 1);
        EXPECT_GE(bar.rect.top(), below);
        below = bar.rect.bottom() + 1;
    }
}

TEST_F(LyingBars, HaveTheirValueAMarginBeyondTheirEnd)
{
    chart.add(40, "caption");
    const CBarLayout layout = chart.layout(kScreen);
    const CBar& bar = layout.bars[0];
    EXPECT_EQ(bar.labelRect.left(), bar.rect.right() + 1 + 10 + 1);
    EXPECT_LE(bar.labelRect.right(), layout.plotRect.right() - 9);
}

TEST_F(LyingBars, HaveTheirValuesAsPlainNumbersInTheTextColour)
{
    chart.input.horizontalAxis.properties |= CAxisSettings::UnitPrefixes;
    chart.input.settings.colors.text = Qt::blue;
    chart.add(1234567);
    const CPlacedText label = chart.layout(kScreen).bars[0].label;
    EXPECT_EQ(label.text, QString("1,234,567"));
    EXPECT_EQ(label.color, QColor(Qt::blue));
}

TEST_F(LyingBars, HaveBordersAtTheRightAndBelowWithTheBackgroundOnScreen)
{
    chart.input.settings.hasBackground = true;
    const CBarLayout layout = chart.layout(kScreen);
    ASSERT_TRUE(layout.border && layout.border->bottom);
    EXPECT_EQ(layout.border->right.top, kBorderTop);
    EXPECT_EQ(layout.border->right.bottom, kBorderBottom);
    EXPECT_EQ(layout.border->bottom->from, layout.plotRect.bottomLeft());
    EXPECT_EQ(layout.border->bottom->to, layout.plotRect.bottomRight());
    EXPECT_EQ(layout.border->bottom->color, kBorderBottom);
    EXPECT_EQ(layout.border->bottom->width, 1);
}

TEST_F(LyingBars, HaveNoBordersInPrintAndNoneWithoutBackground)
{
    EXPECT_FALSE(chart.layout(kScreen).border);
    chart.input.settings.hasBackground = true;
    EXPECT_FALSE(chart.layout(inPrint(400, 300, 1)).border);
}

TEST_F(LyingBars, HaveNoGridLines)
{
    chart.add(40, "");
    EXPECT_THAT(chart.layout(kScreen).gridLines, IsEmpty());
}

} // namespace
} // namespace tovangl
