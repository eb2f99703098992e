// SPDX-License-Identifier: MIT
// The grid lines of a value axis.
#include "layout/axis_support.h"
#include "layout/grid_lines.h"

#include <gmock/gmock.h>

namespace tovangl {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

const CVerticalFade kColors{QColor(100, 0, 0), QColor(200, 0, 0)};

// An axis with five ticks, 50 pixels apart, the first of them hidden; its line is 201 pixels long
// and starts at the far end of the rectangle.
CAxisLayout axisOf(const CAxisFrame& frame, const QRect& rect)
{
    CAxisLayout axis{{frame, kLineAndLabels, 1, false, LabelDirection::Across, QSize(), QRect()},
                     rect,
                     frame.originIn(rect)};
    axis.labels.resize(5);
    for (int i = 0; i < 5; ++i)
        axis.labels[static_cast<std::size_t>(i)].orientedPos = COrientedCoord(50 * i, 0);
    axis.labels[0].isHidden = true;
    return axis;
}

CAxisLayout verticalAxis()
{
    return axisOf(kUpAtTheLeft, QRect(10, 0, 50, 201));
}

TEST(GridLines, StandAtTheVisibleTicksAndNeverReachTheLastColour)
{
    const std::vector<CStraightLine> lines = drawLabelLines(verticalAxis(), 100, kColors);
    ASSERT_THAT(lines, SizeIs(4));
    // From the bottom, at quarters of the colours' way.
    for (int i = 0; i < 4; ++i) {
        const CStraightLine& line = lines[static_cast<std::size_t>(i)];
        EXPECT_EQ(line.from.y(), 150 - 50 * i);
        EXPECT_EQ(line.to.y(), 150 - 50 * i);
        EXPECT_EQ(line.color, QColor(100 + 25 * i, 0, 0));
    }
}

TEST(GridLines, OfAnAxisWithoutHiddenTicksReachTheLastColour)
{
    CAxisLayout axis = verticalAxis();
    axis.labels[0].isHidden = false;
    const std::vector<CStraightLine> lines = drawLabelLines(axis, 100, kColors);
    ASSERT_THAT(lines, SizeIs(5));
    EXPECT_EQ(lines.front().color, kColors.top);
    EXPECT_EQ(lines.back().color, kColors.bottom);
}

TEST(GridLines, StartOnePixelOffTheAxis)
{
    const CStraightLine line = drawLabelLines(verticalAxis(), 100, kColors).at(0);
    // The axis line stands at 59.
    EXPECT_EQ(line.from.x(), 60);
    EXPECT_EQ(line.to.x(), 159);
}

TEST(GridLines, OfAHorizontalAxisRunDownFromIt)
{
    const CAxisLayout axis = axisOf(kRightAtTheTop, QRect(10, 0, 201, 40));
    const std::vector<CStraightLine> lines = drawLabelLines(axis, 100, kColors);
    EXPECT_EQ(lines.front().from, QPoint(60, 40));
    EXPECT_EQ(lines.back().to, QPoint(210, 139));
}

TEST(GridLines, AreShiftedWithTheFirstTickAndAsWideAsTheAxisLine)
{
    CAxisLayout axis = verticalAxis();
    axis.shiftAtBegin = 7;
    axis.shape.lineWidth = 3;
    const CStraightLine line = drawLabelLines(axis, 100, kColors).at(0);
    EXPECT_EQ(line.from.y(), 143);
    EXPECT_EQ(line.width, 3);
}

TEST(GridLines, AreNotThereWithoutLengthOrWithOneLabel)
{
    EXPECT_THAT(drawLabelLines(verticalAxis(), -1, kColors), IsEmpty());
    CAxisLayout alone = verticalAxis();
    alone.labels.resize(1);
    alone.labels[0].isHidden = false;
    EXPECT_THAT(drawLabelLines(alone, 100, kColors), IsEmpty());
}

} // namespace
} // namespace tovangl
