// SPDX-License-Identifier: MIT
// How far the parts of an axis reach across it.
#include "layout/axis_support.h"

#include <limits>

namespace tovangl {
namespace {

constexpr int kMost = std::numeric_limits<int>::max();
const CAxisSettings::Properties kAll = kLineAndLabels | CAxisSettings::ShowTitle;

// Labels of 50 by 12 pixels in one row, and a title 14 pixels high.
CAxisShape shapeOf(const CAxisFrame& frame, CAxisSettings::Properties properties, int lineWidth = 1)
{
    return {frame,         properties,          lineWidth, false, LabelDirection::Along,
            QSize(50, 12), QRect(0, -9, 40, 14)};
}

TEST(CAxisShape, LineOfOnePixelCountsAtTopAndLeftOnly)
{
    const auto lineOf = [](CAxisFrame::Orientation orientation,
                           CAxisFrame::LegendLocation location) {
        return shapeOf({orientation, location}, CAxisSettings::ShowLine)
            .getElementHeight(CAxisShape::Line);
    };
    EXPECT_EQ(lineOf(CAxisFrame::LeftToRight, CAxisFrame::Top), 1);
    EXPECT_EQ(lineOf(CAxisFrame::BottomToTop, CAxisFrame::Left), 1);
    EXPECT_EQ(lineOf(CAxisFrame::LeftToRight, CAxisFrame::Bottom), 0);
    EXPECT_EQ(lineOf(CAxisFrame::BottomToTop, CAxisFrame::Right), 0);
}

TEST(CAxisShape, LineThatIsNotShownHasNoExtent)
{
    const CAxisShape shape = shapeOf(kRightAtTheTop, CAxisSettings::ShowLabels);
    EXPECT_EQ(shape.getElementHeight(CAxisShape::LineAndTicks), 0);
}

TEST(CAxisShape, WithoutLabelsAndTitleIsAsThickAsItsLineShare)
{
    const CAxisShape shape = shapeOf(kRightAtTheTop, CAxisSettings::ShowLine, 4);
    EXPECT_EQ(shape.getElementHeight(CAxisShape::WholeThickness), 3);
}

TEST(CAxisShape, WithNothingToLabelHasNoRoomForLabels)
{
    CAxisShape shape = shapeOf(kRightAtTheTop, kLineAndLabels);
    shape.isEmpty = true;
    EXPECT_EQ(shape.getElementHeight(CAxisShape::WholeThickness), 1);
}

TEST(CAxisShape, TickGapIsFiveLinesWide)
{
    EXPECT_EQ(shapeOf(kRightAtTheBottom, kLineAndLabels, 1).getElementHeight(CAxisShape::Ticks), 5);
    EXPECT_EQ(shapeOf(kRightAtTheBottom, kLineAndLabels, 3).getElementHeight(CAxisShape::Ticks),
              15);
}

TEST(CAxisShape, TickGapIsThereForATitleAlone)
{
    const CAxisShape shape =
        shapeOf(kRightAtTheBottom, CAxisSettings::ShowLine | CAxisSettings::ShowTitle);
    EXPECT_EQ(shape.getElementHeight(CAxisShape::Ticks), 5);
    EXPECT_EQ(shape.getElementHeight(CAxisShape::LabelTitleGap), 0);
}

TEST(CAxisShape, WholeThicknessIsTheSumOfItsParts)
{
    const CAxisShape shape = shapeOf(kRightAtTheTop, kAll);
    EXPECT_EQ(shape.getElementHeight(CAxisShape::UpToTitle), 1 + 5 + 12 + 5);
    EXPECT_EQ(shape.getElementHeight(CAxisShape::WholeThickness), 1 + 5 + 12 + 5 + 14);
}

TEST(CAxisShape, ThicknessStopsAtTheEndOfTheRange)
{
    const CAxisShape shape = shapeOf(kRightAtTheTop, kAll, kMost);
    EXPECT_EQ(shape.getElementHeight(CAxisShape::WholeThickness), kMost);
}

struct CBand
{
    LabelDirection direction;
    int row;
    int band;
    int along;
};

class LabelBandTable : public ::testing::TestWithParam<CBand>
{};

TEST_P(LabelBandTable, HasTheLabelsExtents)
{
    CAxisShape shape = shapeOf(kRightAtTheBottom, kLineAndLabels);
    shape.direction = GetParam().direction;
    EXPECT_EQ(shape.getElementHeight(CAxisShape::Label), GetParam().row);
    EXPECT_EQ(shape.getElementHeight(CAxisShape::SecondRowOffset), GetParam().row);
    EXPECT_EQ(shape.getElementHeight(CAxisShape::Labels), GetParam().band);
    EXPECT_EQ(shape.labelExtentAlong(), GetParam().along);
}

INSTANTIATE_TEST_SUITE_P(All, LabelBandTable,
                         ::testing::Values(CBand{LabelDirection::Along, 12, 12, 50},
                                           CBand{LabelDirection::AlongTwoRows, 12, 24, 50},
                                           CBand{LabelDirection::Across, 50, 50, 12}));

struct CDistances
{
    CAxisFrame frame;
    LabelDirection direction;
    int toLabels;
    int toTitle;
};

void PrintTo(const CDistances& distances, std::ostream* stream)
{
    *stream << nameOf(distances.frame)
            << (distances.direction == LabelDirection::Across ? "" : "1");
}

class DistanceTable : public ::testing::TestWithParam<CDistances>
{};

TEST_P(DistanceTable, PutsLabelsAndTitleOnTheirSideOfTheLine)
{
    // 2 pixels of the line are on the side of top and left labels, and 1 on the other.
    CAxisShape shape = shapeOf(GetParam().frame, kAll, 3);
    shape.direction = GetParam().direction;
    EXPECT_EQ(shape.getAxisToLabelShift(), GetParam().toLabels);
    EXPECT_EQ(shape.getAxisToTitleShift(), GetParam().toTitle);
}

INSTANTIATE_TEST_SUITE_P(
    All, DistanceTable,
    ::testing::Values(
        // Along: line 2, ticks 15, one row of 12, and 3 pixels of line off.
        CDistances{kRightAtTheTop, LabelDirection::Along, 2 + 15 + 12 - 3,
                   2 + 15 + 12 + 15 + 14 - 3},
        CDistances{kRightAtTheBottom, LabelDirection::Along, -(1 + 15), -(1 + 15 + 12 + 15)},
        CDistances{kUpAtTheLeft, LabelDirection::Along, -(2 + 15 + 12 - 3),
                   -(2 + 15 + 12 + 15 + 14 - 3)},
        CDistances{kUpAtTheRight, LabelDirection::Along, 1 + 15, 1 + 15 + 12 + 15},
        // Across: a row of 50.
        CDistances{kRightAtTheTop, LabelDirection::Across, 2 + 15, 2 + 15 + 50 + 15 + 14 - 3},
        CDistances{kRightAtTheBottom, LabelDirection::Across, -(1 + 15 + 50 - 3),
                   -(1 + 15 + 50 + 15)},
        CDistances{kUpAtTheLeft, LabelDirection::Across, -(2 + 15 + 50 - 3),
                   -(2 + 15 + 50 + 15 + 14 - 3)},
        CDistances{kUpAtTheRight, LabelDirection::Across, 1 + 15, 1 + 15 + 50 + 15}));

} // namespace
} // namespace tovangl
