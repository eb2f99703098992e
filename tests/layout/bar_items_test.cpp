// SPDX-License-Identifier: MIT
// Where bars and their values stand between two axes.
#include "layout/CCategoryAxis.h"
#include "layout/CNumberAxis.h"
#include "layout/axis_support.h"
#include "layout/bar_items.h"

#include <limits>

namespace tovangl {
namespace {

constexpr int kMost = std::numeric_limits<int>::max();
const CValueLabelLook kValueLabels{QSize(30, 14), 10, Qt::red};
const CAxisFrame kLeftAtTheTop(CAxisFrame::RightToLeft, CAxisFrame::Top);

// A chart with one bar, 21 pixels wide, in the middle of a plot of 200 pixels a side.
class CBarItems : public ::testing::Test
{
protected:
    CBarLayout axes(const CNumberAxis& numbers, const QRect& numberRect, const CAxisFrame& frame,
                    const QRect& categoryRect)
    {
        const std::vector<QString> captions(values.size(), QString("i"));
        const CCategoryAxis categories(frame, {kLineAndLabels, QString()}, CAxisLook(), captions,
                                       barWidth, measurer);
        CBarLayout layout;
        layout.lineWidth = lineWidth;
        layout.categoryAxis = categories.fitToRect(categoryRect, measurer);
        layout.barWidth = categories.drawBarWidth(layout.categoryAxis->length);
        layout.numberAxis = numbers.fitToRect(numberRect, measurer);
        layout.scale = numbers.valueScale(*layout.numberAxis);
        return layout;
    }
    CNumberAxis numberAxis(const CAxisFrame& frame, CAxisSettings::Properties properties)
    {
        return {frame,   {properties, QString()}, CAxisLook(), numbers, kEnglish, kKilo1024,
                measurer};
    }
    void place(CBarLayout& layout)
    {
        CBarInput input(BarKind::Lying, false);
        std::vector<std::size_t> drawn;
        for (const long long value : values) {
            drawn.push_back(input.items.size());
            input.addItem(value, QString("i"), Qt::red, Qt::blue);
        }
        layout.bars = setItemBars(layout, input, drawn);
    }
    // The plot lies from (50, 20) to (250, 220).
    CBarLayout standing()
    {
        CBarLayout layout =
            axes(numberAxis(kUpAtTheLeft, kLineAndLabels), QRect(QPoint(0, 21), QPoint(49, 221)),
                 kRightAtTheBottom, QRect(QPoint(50, 221), QPoint(250, 299)));
        place(layout);
        return layout;
    }
    CBarLayout lying(const CAxisFrame& frame = kRightAtTheTop)
    {
        CBarLayout layout =
            axes(numberAxis(frame, CAxisSettings::ShowLine | CAxisSettings::ShiftLastLabel),
                 QRect(QPoint(49, 0), QPoint(249, 19)), kDownAtTheLeft,
                 QRect(QPoint(0, 20), QPoint(49, 220)));
        place(layout);
        return layout;
    }
    CBarLayout labelled(CBarLayout layout)
    {
        std::vector<CTextLabel> labels;
        for (const long long value : values)
            labels.emplace_back(QString::number(value), CTextStyle(), measurer);
        setItemLabels(layout, labels, kValueLabels, measurer);
        return layout;
    }
    // Where a value label stands whose bar ends so far right of the axis line.
    static QRect labelBehind(int coord, const CBarLayout& layout)
    {
        const int top = 120 - layout.categoryAxis->shape.labelSize.height() / 2;
        return QRect(49 + coord + 10 + 1, top, 30, 14);
    }

    std::vector<long long> values{20};
    CNumbers numbers{{0, 40}};
    int barWidth = 21;
    int lineWidth = 1;
    CTestMeasurer measurer;
};

TEST_F(CBarItems, StandingBarStandsOnTheAxisLine)
{
    numbers.data = {0, 37};
    // The scale runs to 40 over 200 pixels; the bar is 20 pixels wide and centred at 150.
    EXPECT_EQ(standing().bars[0].rect, QRect(140, 121, 20, 100));
}

TEST_F(CBarItems, BarIsNarrowerByTheLine)
{
    numbers.data = {0, 37};
    lineWidth = 3;
    EXPECT_EQ(standing().bars[0].rect, QRect(141, 121, 18, 100));
}

TEST_F(CBarItems, BarHasTheColoursAndThePositionOfItsItem)
{
    const CBar bar = standing().bars[0];
    EXPECT_EQ(bar.item, 0U);
    EXPECT_EQ(bar.color, QColor(Qt::red));
    EXPECT_EQ(bar.outlineColor, QColor(Qt::blue));
    EXPECT_EQ(bar.labelRect, QRect());
}

TEST_F(CBarItems, BarOfZeroIsFlat)
{
    values = {0};
    EXPECT_FALSE(standing().bars[0].rect.isValid());
}

TEST_F(CBarItems, NegativeBarHangsFromTheZero)
{
    values = {-20};
    numbers.data = {-35, 37};
    const CBarLayout layout = standing();
    ASSERT_EQ(layout.scale.coord(0), 100);
    EXPECT_EQ(layout.bars[0].rect.top(), 221 - 100);
    EXPECT_EQ(layout.bars[0].rect.bottom(), 221 - layout.scale.coord(-20) - 1);
}

TEST_F(CBarItems, BarBelowTheScaleIsNull)
{
    values = {-20, 20};
    const CBarLayout layout = standing();
    EXPECT_EQ(layout.bars[0].rect, QRect());
    EXPECT_TRUE(layout.bars[1].rect.isValid());
}

TEST_F(CBarItems, LyingBarStartsOnTheAxisLine)
{
    values = {30};
    // 40 is 200 pixels long; the category line stands at 49, and the bar covers 49 to 198.
    EXPECT_EQ(lying().bars[0].rect, QRect(49, 110, 150, 20));
}

TEST_F(CBarItems, WidestBarsStayInTheRangeOfPixels)
{
    values.assign(100, 5);
    barWidth = kMost;
    const CBarLayout layout = standing();
    EXPECT_EQ(layout.categoryAxis->shiftAtBegin, kMost / 2);
    EXPECT_EQ(layout.bars[0].rect.left(), 50);
}

// --- values beside the bars

TEST_F(CBarItems, ValueLabelStandsAGapBeyondTheEndOfTheBar)
{
    values = {30};
    const CBarLayout layout = labelled(lying());
    EXPECT_EQ(layout.bars[0].labelRect, labelBehind(150, layout));
    EXPECT_EQ(layout.bars[0].label.room, toRoom(layout.bars[0].labelRect));
}

TEST_F(CBarItems, ValueLabelIsItsNumberInTheChartsColour)
{
    values = {30};
    const CPlacedText label = labelled(lying()).bars[0].label;
    EXPECT_EQ(label.text, QString("30"));
    EXPECT_EQ(label.color, QColor(Qt::red));
    EXPECT_EQ(label.alignment, Qt::AlignLeft);
    EXPECT_FALSE(label.isBold || label.isTurned);
}

TEST_F(CBarItems, ValueLabelLeftOfABarStandsAGapAndItsWidthBeyond)
{
    values = {30};
    const CBar bar = labelled(lying(kLeftAtTheTop)).bars[0];
    // The axis line of the values starts at 249, but bars start at that of the categories.
    EXPECT_EQ(bar.labelRect.left(), 49 - (150 + 10 + 30));
    EXPECT_EQ(bar.label.alignment, Qt::AlignRight);
}

TEST_F(CBarItems, ValueLabelOfAHiddenCaptionIsNull)
{
    values = {30, 20};
    CBarLayout layout = lying();
    layout.categoryAxis->labels[0].isHidden = true;
    layout = labelled(layout);
    EXPECT_EQ(layout.bars[0].labelRect, QRect());
    EXPECT_TRUE(layout.bars[0].rect.isValid());
    EXPECT_TRUE(layout.bars[1].labelRect.isValid());
}

TEST_F(CBarItems, ValueLabelOfABarWithoutExtentIsThere)
{
    values = {0};
    const CBarLayout layout = labelled(lying());
    EXPECT_FALSE(layout.bars[0].rect.isValid());
    EXPECT_EQ(layout.bars[0].labelRect, labelBehind(0, layout));
}

TEST_F(CBarItems, ValueLabelsAreNullWithoutASpan)
{
    values = {30};
    numbers.endShift = 200;
    EXPECT_EQ(labelled(lying()).bars[0].labelRect, QRect());
}

TEST_F(CBarItems, BarOfANegativeCoordinateWithoutASpanHasNeitherRectangle)
{
    values = {30};
    numbers.endShift = 300;
    const CBarLayout layout = labelled(lying());
    EXPECT_LT(layout.bars[0].valueCoord, 0);
    EXPECT_EQ(layout.bars[0].rect, QRect());
    EXPECT_EQ(layout.bars[0].labelRect, QRect());
}

TEST_F(CBarItems, BarOfANegativeCoordinateIsNullAndItsValueLabelStandsWhereItWouldEnd)
{
    values = {-30};
    const CBarLayout layout = labelled(lying());
    // 40 is 200 pixels long, so -30 ends 150 pixels left of the axis line, and the gap runs
    // rightward.
    ASSERT_EQ(layout.bars[0].valueCoord, -150);
    EXPECT_EQ(layout.bars[0].rect, QRect());
    EXPECT_EQ(layout.bars[0].labelRect, labelBehind(-150, layout));
}

} // namespace
} // namespace tovangl
