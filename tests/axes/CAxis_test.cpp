// SPDX-License-Identifier: MIT
#include "axes/CTestAxis.h"

#include <QTextOption>

#include <limits>

namespace tovangl {
namespace {

constexpr int kMost = std::numeric_limits<int>::max();
const QSize kLabelSize(50, 12);

using CAxisTest = CAxisPicture;

struct CGeometry
{
    CAxis::Orientation orientation;
    bool isHorizontal;
    int alongSign;
    int acrossSign;
    CAxis::LegendLocation defaultLocation;
};

void PrintTo(const CGeometry& geometry, std::ostream* stream)
{
    *stream << nameOf(geometry.orientation);
}

class OrientationTable : public ::testing::TestWithParam<CGeometry>
{};

TEST_P(OrientationTable, SetsDirectionAndSigns)
{
    const CTestAxis axis(GetParam().orientation);
    EXPECT_EQ(axis.isHorizontal(), GetParam().isHorizontal);
    EXPECT_EQ(axis.alongSign(), GetParam().alongSign);
    EXPECT_EQ(axis.acrossSign(), GetParam().acrossSign);
    EXPECT_EQ(axis.labelDirection(), CAxis::Across);
}

TEST_P(OrientationTable, CorrectsALocationThatDoesNotSuit)
{
    const bool isHorizontal = GetParam().isHorizontal;
    for (const CAxis::LegendLocation location : {CAxis::Top, CAxis::Bottom}) {
        EXPECT_EQ(CTestAxis(GetParam().orientation, location).legendLocation(),
                  isHorizontal ? location : GetParam().defaultLocation);
    }
    for (const CAxis::LegendLocation location : {CAxis::Left, CAxis::Right}) {
        EXPECT_EQ(CTestAxis(GetParam().orientation, location).legendLocation(),
                  isHorizontal ? GetParam().defaultLocation : location);
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, OrientationTable,
    ::testing::Values(CGeometry{CAxis::LeftToRight, true, 1, -1, CAxis::Bottom},
                      CGeometry{CAxis::RightToLeft, true, -1, -1, CAxis::Bottom},
                      CGeometry{CAxis::BottomToTop, false, -1, 1, CAxis::Left},
                      CGeometry{CAxis::TopToBottom, false, 1, 1, CAxis::Left}));

TEST_F(CAxisTest, StartsWithoutLabelsAndWithABlackLineOfOnePixel)
{
    const CTestAxis axis;
    EXPECT_TRUE(axis.labels().empty());
    EXPECT_TRUE(axis.isGraphEmpty());
    EXPECT_EQ(axis.lineWidth(), 1);
    EXPECT_EQ(axis.lineColor(), QColor(Qt::black));
    EXPECT_EQ(axis.labelRect(), QRect());
    EXPECT_EQ(axis.axisRect(), QRect());
    EXPECT_FALSE(axis.isLineHidden() || axis.areLabelsHidden() || axis.isTitleHidden());
}

TEST_F(CAxisTest, WhatOneFitHasHiddenStaysHiddenInALaterOne)
{
    CTestAxis axis(CAxis::LeftToRight, CAxis::Top, CAxis::ShowLine | CAxis::ShowTitle, "title");
    axis.setLineWidth(3);
    axis.fitToRect(painter, QRect(0, 0, 200, 1));
    ASSERT_TRUE(axis.isLineHidden() && axis.isTitleHidden());
    axis.fitToRect(painter, QRect(0, 0, 200, 100));
    EXPECT_TRUE(axis.isLineHidden());
    EXPECT_TRUE(axis.isTitleHidden());
}

TEST_F(CAxisTest, WhatHasRoomInTheFirstFitIsShown)
{
    CTestAxis axis(CAxis::LeftToRight, CAxis::Top, CAxis::ShowLine | CAxis::ShowTitle, "title");
    axis.setLineWidth(3);
    axis.fitToRect(painter, QRect(0, 0, 200, 100));
    EXPECT_FALSE(axis.isLineHidden());
    EXPECT_FALSE(axis.isTitleHidden());
}

TEST_F(CAxisTest, TitleIsBoldOnDemand)
{
    const CTestAxis plain(CAxis::LeftToRight, CAxis::Bottom, CAxis::ShowTitle, "title");
    const CTestAxis bold(CAxis::LeftToRight, CAxis::Bottom, CAxis::BoldTitle, "title");
    EXPECT_EQ(plain.titleLabel().getText(), QString("title"));
    EXPECT_FALSE(plain.titleLabel().isBold());
    EXPECT_TRUE(bold.titleLabel().isBold());
}

TEST_F(CAxisTest, LineOfOnePixelCountsAtTopAndLeftOnly)
{
    EXPECT_EQ(CTestAxis(CAxis::LeftToRight, CAxis::Top).getElementHeight(CAxis::Line), 1);
    EXPECT_EQ(CTestAxis(CAxis::BottomToTop, CAxis::Left).getElementHeight(CAxis::Line), 1);
    EXPECT_EQ(CTestAxis(CAxis::LeftToRight, CAxis::Bottom).getElementHeight(CAxis::Line), 0);
    EXPECT_EQ(CTestAxis(CAxis::BottomToTop, CAxis::Right).getElementHeight(CAxis::Line), 0);
}

TEST_F(CAxisTest, LineThatIsNotShownHasNoExtent)
{
    const CTestAxis axis(CAxis::LeftToRight, CAxis::Top, CAxis::ShowLabels);
    EXPECT_EQ(axis.getElementHeight(CAxis::LineAndTicks), 0);
}

TEST_F(CAxisTest, WithoutLabelsAndTitleIsAsThickAsItsLineShare)
{
    CTestAxis axis(CAxis::LeftToRight, CAxis::Top);
    axis.setLineWidth(4);
    EXPECT_EQ(axis.getElementHeight(CAxis::WholeThickness), 3);
}

TEST_F(CAxisTest, TickGapIsFiveLinesWide)
{
    CTestAxis axis(CAxis::LeftToRight, CAxis::Bottom);
    axis.addLabel(kLabelSize);
    EXPECT_EQ(axis.getElementHeight(CAxis::Ticks), 5);
    axis.setLineWidth(3);
    EXPECT_EQ(axis.getElementHeight(CAxis::Ticks), 15);
}

TEST_F(CAxisTest, TickGapIsThereForATitleAlone)
{
    const CTestAxis axis(CAxis::LeftToRight, CAxis::Bottom, CAxis::ShowLine | CAxis::ShowTitle);
    EXPECT_EQ(axis.getElementHeight(CAxis::Ticks), 5);
    EXPECT_EQ(axis.getElementHeight(CAxis::LabelTitleGap), 0);
}

TEST_F(CAxisTest, LabelBandHasTheLabelsExtentAcrossTheAxis)
{
    CTestAxis axis;
    axis.addLabels(4, kLabelSize);
    axis.initAxis(painter, 400);
    EXPECT_EQ(axis.labelDirection(), CAxis::Along);
    EXPECT_EQ(axis.getElementHeight(CAxis::Label), 12);
    EXPECT_EQ(axis.getElementHeight(CAxis::Labels), 12);
    EXPECT_EQ(axis.getElementHeight(CAxis::SecondRowOffset), 12);
}

TEST_F(CAxisTest, LabelBandOfTwoRowsIsTwiceAsHigh)
{
    CTestAxis axis;
    axis.addLabels(9, kLabelSize);
    axis.initAxis(painter, 400);
    EXPECT_EQ(axis.getElementHeight(CAxis::Label), 12);
    EXPECT_EQ(axis.getElementHeight(CAxis::Labels), 24);
}

TEST_F(CAxisTest, LabelBandOfTurnedLabelsIsAsHighAsTheyAreWide)
{
    CTestAxis axis;
    axis.addLabels(17, kLabelSize);
    axis.initAxis(painter, 400);
    EXPECT_EQ(axis.getElementHeight(CAxis::Label), 50);
    EXPECT_EQ(axis.getElementHeight(CAxis::Labels), 50);
}

TEST_F(CAxisTest, WholeThicknessIsTheSumOfItsParts)
{
    CTestAxis axis(CAxis::LeftToRight, CAxis::Top,
                   CAxis::ShowLine | CAxis::ShowLabels | CAxis::ShowTitle, "title");
    axis.addLabel(kLabelSize);
    const int thickness = axis.getHeightForWidth(painter, 400);
    EXPECT_EQ(thickness, 1 + 5 + 12 + 5 + axis.titleRect().height());
    EXPECT_EQ(axis.getElementHeight(CAxis::UpToTitle), 1 + 5 + 12 + 5);
}

TEST_F(CAxisTest, ThicknessStopsAtTheEndOfTheRange)
{
    CTestAxis axis(CAxis::LeftToRight, CAxis::Top,
                   CAxis::ShowLine | CAxis::ShowLabels | CAxis::ShowTitle, "title");
    axis.addLabel(kLabelSize);
    axis.setLineWidth(kMost);
    EXPECT_EQ(axis.getElementHeight(CAxis::WholeThickness), kMost);
}

TEST_F(CAxisTest, EightLabelsStandInOneRowNineInTwoSeventeenAreTurned)
{
    const auto directionOf = [this](int count) {
        CTestAxis axis;
        axis.addLabels(count, kLabelSize);
        axis.initAxis(painter, 400);
        return axis.labelDirection();
    };
    EXPECT_EQ(directionOf(8), CAxis::Along);
    EXPECT_EQ(directionOf(9), CAxis::AlongTwoRows);
    EXPECT_EQ(directionOf(16), CAxis::AlongTwoRows);
    EXPECT_EQ(directionOf(17), CAxis::Across);
}

TEST_F(CAxisTest, ShiftsAreAskedForInTheDirectionThatTheyAreFor)
{
    CTestAxis axis;
    axis.addLabels(4, kLabelSize);
    // One row has no room at all, two rows have plenty.
    axis.shiftAtBegin = [](LabelDirection direction) {
        return direction == LabelDirection::Along ? 1000 : 0;
    };
    axis.initAxis(painter, 400);
    EXPECT_EQ(axis.labelDirection(), CAxis::AlongTwoRows);
    axis.shiftAtEnd = [](LabelDirection direction) {
        return direction == LabelDirection::AlongTwoRows ? -1000 : 0;
    };
    axis.initAxis(painter, 400);
    EXPECT_EQ(axis.labelDirection(), CAxis::Across);
}

TEST_F(CAxisTest, VerticalAxisNeverWritesAlong)
{
    CTestAxis axis(CAxis::BottomToTop, CAxis::Left);
    axis.addLabel(QSize(1, 1));
    axis.initAxis(painter, 400);
    EXPECT_EQ(axis.labelDirection(), CAxis::Across);
}

TEST_F(CAxisTest, TitleIsTurnedOnVerticalAxesOnly)
{
    CTestAxis horizontal;
    CTestAxis vertical(CAxis::TopToBottom, CAxis::Left);
    horizontal.initAxis(painter, 100);
    vertical.initAxis(painter, 100);
    EXPECT_FALSE(horizontal.titleLabel().isRotated());
    EXPECT_TRUE(vertical.titleLabel().isRotated());
}

TEST_F(CAxisTest, MeasuringTakesTheLineOffTheLength)
{
    CTestAxis axis;
    axis.setLineWidth(3);
    axis.initAxis(painter, 100);
    EXPECT_EQ(axis.axisLength(), 97);
    EXPECT_EQ(axis.axisStart(), 0);
    EXPECT_EQ(axis.lengthsSet, 1);
}

TEST_F(CAxisTest, HasAHeightOrAWidthButNotBoth)
{
    CTestAxis horizontal;
    horizontal.addLabel(kLabelSize);
    EXPECT_EQ(horizontal.getHeightForWidth(painter, 100), 5 + 12);
    EXPECT_EQ(horizontal.getWidthForHeight(painter, 100), 0);
    CTestAxis vertical(CAxis::BottomToTop, CAxis::Left);
    vertical.addLabel(kLabelSize);
    EXPECT_EQ(vertical.getHeightForWidth(painter, 100), 0);
    EXPECT_EQ(vertical.getWidthForHeight(painter, 100), 1 + 5 + 50);
}

struct CStart
{
    CAxis::Orientation orientation;
    CAxis::LegendLocation location;
    QPoint start; // in the rectangle from (10, 20) to (109, 219)
};

void PrintTo(const CStart& start, std::ostream* stream)
{
    *stream << nameOf(start.orientation) << ' ' << nameOf(start.location);
}

class StartTable : public ::testing::TestWithParam<CStart>
{};

TEST_P(StartTable, PutsLineAndStartAtTheirEdges)
{
    CTestAxis axis(GetParam().orientation, GetParam().location);
    axis.initCoordinates(QRect(10, 20, 100, 200));
    const COrientedCoord origin = axis.origin();
    EXPECT_EQ(axis.resolveOrientedCoordSigned(origin), GetParam().start);
    EXPECT_EQ(axis.resolveOrientedCoordSigned(origin.along(), origin.across()), GetParam().start);
    EXPECT_EQ(axis.axisLength(), axis.isHorizontal() ? 99 : 199);
}

INSTANTIATE_TEST_SUITE_P(
    All, StartTable,
    ::testing::Values(CStart{CAxis::LeftToRight, CAxis::Bottom, QPoint(10, 20)},
                      CStart{CAxis::LeftToRight, CAxis::Top, QPoint(10, 219)},
                      CStart{CAxis::RightToLeft, CAxis::Bottom, QPoint(109, 20)},
                      CStart{CAxis::RightToLeft, CAxis::Top, QPoint(109, 219)},
                      CStart{CAxis::BottomToTop, CAxis::Left, QPoint(109, 219)},
                      CStart{CAxis::BottomToTop, CAxis::Right, QPoint(10, 219)},
                      CStart{CAxis::TopToBottom, CAxis::Left, QPoint(109, 20)},
                      CStart{CAxis::TopToBottom, CAxis::Right, QPoint(10, 20)}));

TEST_F(CAxisTest, LineHidesInARectangleThinnerThanItsShare)
{
    CTestAxis axis(CAxis::LeftToRight, CAxis::Top);
    axis.setLineWidth(6);
    axis.initCoordinates(QRect(0, 0, 100, 4));
    EXPECT_FALSE(axis.isLineHidden());
    axis.initCoordinates(QRect(0, 0, 100, 3));
    EXPECT_TRUE(axis.isLineHidden());
}

TEST_F(CAxisTest, SignsRunUpwardAcrossAHorizontalAxisAndRightwardAcrossAVerticalOne)
{
    EXPECT_EQ(CTestAxis(CAxis::LeftToRight).resolveOrientedCoordSigned(3, 7), QPoint(3, -7));
    EXPECT_EQ(CTestAxis(CAxis::RightToLeft).resolveOrientedCoordSigned(3, 7), QPoint(-3, -7));
    EXPECT_EQ(CTestAxis(CAxis::BottomToTop).resolveOrientedCoordSigned(3, 7), QPoint(7, -3));
    EXPECT_EQ(CTestAxis(CAxis::TopToBottom).resolveOrientedCoordSigned(3, 7), QPoint(7, 3));
}

TEST_F(CAxisTest, SpacesAreTheRectanglesSizeAlongAndAcross)
{
    const QRect rect(10, 20, 100, 30);
    EXPECT_EQ(CTestAxis(CAxis::LeftToRight).getSpaceForLabels(rect), QSize(100, 30));
    EXPECT_EQ(CTestAxis(CAxis::LeftToRight).getSpaceForTitle(rect), QSize(100, 30));
    EXPECT_EQ(CTestAxis(CAxis::BottomToTop).getSpaceForLabels(rect), QSize(30, 100));
    EXPECT_EQ(CTestAxis(CAxis::BottomToTop).getSpaceForTitle(rect), QSize(30, 100));
}

struct CShifts
{
    CAxis::Orientation orientation;
    CAxis::LegendLocation location;
    int labels; // how many, 50 x 12 pixels, on an axis of 400
    int toLabels;
    int toTitle; // title 14 pixels high
};

void PrintTo(const CShifts& shifts, std::ostream* stream)
{
    *stream << nameOf(shifts.orientation) << ' ' << nameOf(shifts.location) << ' ' << shifts.labels
            << " labels";
}

class ShiftTable : public CAxisPicture, public ::testing::WithParamInterface<CShifts>
{};

TEST_P(ShiftTable, PutsLabelsAndTitleOnTheirSideOfTheLine)
{
    CTestAxis axis(GetParam().orientation, GetParam().location,
                   CAxis::ShowLine | CAxis::ShowLabels | CAxis::ShowTitle, "title");
    axis.addLabels(GetParam().labels, kLabelSize);
    axis.setLineWidth(3); // 2 pixels on the side of top and left labels, and 1 on the other
    axis.initAxis(painter, 400);
    const int title = axis.titleRect().height();
    const bool isTopOrLeft =
        axis.legendLocation() == CAxis::Top || axis.legendLocation() == CAxis::Left;
    EXPECT_EQ(axis.getAxisToLabelShift(), GetParam().toLabels);
    const int sign = GetParam().toTitle < 0 ? -1 : 1;
    EXPECT_EQ(axis.getAxisToTitleShift(), GetParam().toTitle + (isTopOrLeft ? sign * title : 0));
}

INSTANTIATE_TEST_SUITE_P(
    All, ShiftTable,
    ::testing::Values(
        // Along: line 2, ticks 15, one row of 12, and 3 pixels of line off.
        CShifts{CAxis::LeftToRight, CAxis::Top, 4, 2 + 15 + 12 - 3, 2 + 15 + 12 + 15 - 3},
        CShifts{CAxis::LeftToRight, CAxis::Bottom, 4, -(1 + 15), -(1 + 15 + 12 + 15)},
        // Turned: a row of 50.
        CShifts{CAxis::LeftToRight, CAxis::Top, 30, 2 + 15, 2 + 15 + 50 + 15 - 3},
        CShifts{CAxis::LeftToRight, CAxis::Bottom, 30, -(1 + 15 + 50 - 3), -(1 + 15 + 50 + 15)},
        CShifts{CAxis::BottomToTop, CAxis::Left, 4, -(2 + 15 + 50 - 3), -(2 + 15 + 50 + 15 - 3)},
        CShifts{CAxis::BottomToTop, CAxis::Right, 4, 1 + 15, 1 + 15 + 50 + 15}));

TEST_F(CAxisTest, TextsAlongAreCentred)
{
    CTestAxis axis;
    axis.addLabel(kLabelSize);
    axis.initAxis(painter, 400);
    EXPECT_EQ(axis.getTextOption().alignment(), Qt::AlignHCenter);
}

TEST_F(CAxisTest, TextsAcrossStartAtTheLine)
{
    const auto alignmentOf = [](CAxis::Orientation orientation, CAxis::LegendLocation location) {
        return CTestAxis(orientation, location).getTextOption().alignment();
    };
    EXPECT_EQ(alignmentOf(CAxis::LeftToRight, CAxis::Top), Qt::AlignLeft | Qt::AlignVCenter);
    EXPECT_EQ(alignmentOf(CAxis::BottomToTop, CAxis::Right), Qt::AlignLeft | Qt::AlignVCenter);
    EXPECT_EQ(alignmentOf(CAxis::LeftToRight, CAxis::Bottom), Qt::AlignRight | Qt::AlignVCenter);
    EXPECT_EQ(alignmentOf(CAxis::BottomToTop, CAxis::Left), Qt::AlignRight | Qt::AlignVCenter);
}

TEST_F(CAxisTest, TextsKeepTheDefaultWrappingAndTheirOwnReadingDirection)
{
    const QTextOption option = CTestAxis().getTextOption();
    EXPECT_EQ(option.wrapMode(), QTextOption::WordWrap);
    EXPECT_EQ(option.textDirection(), Qt::LayoutDirectionAuto);
}

TEST_F(CAxisTest, FittingSetsLengthToTheDistanceOfTheEdges)
{
    CTestAxis axis;
    axis.setLineWidth(3);
    axis.fitToRect(painter, QRect(10, 20, 100, 30));
    EXPECT_EQ(axis.axisLength(), 99);
    EXPECT_EQ(axis.lengthsSet, 2);
    EXPECT_EQ(axis.axisRect(), QRect(10, 20, 100, 30));
}

TEST_F(CAxisTest, FittingSurvivesExtremeRectangles)
{
    const QRect widest(QPoint(-kMost, -kMost), QPoint(kMost, kMost));
    for (int orientation = 0; orientation < 4; ++orientation) {
        CTestAxis axis(static_cast<CAxis::Orientation>(orientation));
        axis.addLabels(3, kLabelSize);
        axis.setLineWidth(kMost);
        axis.fitToRect(painter, widest);
        EXPECT_EQ(axis.axisLength(), kMost);
    }
}

} // namespace
} // namespace tovangl
