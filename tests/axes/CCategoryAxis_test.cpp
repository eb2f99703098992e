// SPDX-License-Identifier: MIT
#include "axes/CCategoryAxis.h"
#include "axes/CNumberAxis.h"
#include "axes/CTestAxis.h"
#include "core/CBarGraphItem.h"

#include <gmock/gmock.h>
#include <limits>

namespace tovangl {
namespace {

using ::testing::ElementsAre;

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kGap = 10;
const QRect kValueLabel(0, 0, 30, 14);
const CAxis::Properties kLineAndLabels = CAxis::ShowLine | CAxis::ShowLabels;

// A category axis with an item for every value.
struct CItemAxis : CCategoryAxis
{
    CItemAxis(CAxis::Orientation orientation, const std::vector<long long>& values,
              CAxis::Properties properties = kLineAndLabels, const QString& caption = "i")
        : CCategoryAxis(orientation, CAxis::Bottom, properties, &CTestAxis::locale(), QString())
    {
        for (const long long value : values) {
            items.push_back(std::make_unique<CBarGraphItem>(value, caption, Qt::red));
            addCategory(items.back().get());
        }
    }
    [[nodiscard]] std::vector<int> ticks() const
    {
        std::vector<int> result;
        for (const CBarTextLabel* label : labels())
            result.push_back(label->tickCoord());
        return result;
    }
    [[nodiscard]] std::vector<int> rows() const
    {
        std::vector<int> result;
        for (const CBarTextLabel* label : labels())
            result.push_back(label->orientedPos().across());
        return result;
    }
    void hide(std::size_t index) { m_labels[index]->setHidden(true); }

    std::vector<std::unique_ptr<CBarGraphItem>> items;
};

using CCategoryAxisTest = CAxisPicture;

TEST_F(CCategoryAxisTest, HasALabelForEveryItemInItsOrder)
{
    const CItemAxis axis(CAxis::LeftToRight, {3, 1, 2});
    ASSERT_EQ(axis.labels().size(), 3U);
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(axis.labels()[i]->getItem(), axis.items[i].get());
    EXPECT_EQ(axis.labels()[0]->getText(), QString("i"));
}

TEST_F(CCategoryAxisTest, LabelsAreBoldOnDemand)
{
    EXPECT_FALSE(CItemAxis(CAxis::LeftToRight, {1}).labels()[0]->isBold());
    EXPECT_TRUE(CItemAxis(CAxis::LeftToRight, {1}, CAxis::BoldLabels).labels()[0]->isBold());
}

TEST_F(CCategoryAxisTest, BarsFillSeventyPerCentOfTheAxisAndItsLine)
{
    CItemAxis axis(CAxis::LeftToRight, {1, 2, 3, 4});
    axis.initAxisLength(0, 400);
    EXPECT_EQ(axis.drawBarWidth(), 70);
    axis.initAxisLength(0, 200);
    EXPECT_EQ(axis.drawBarWidth(), 35);
}

TEST_F(CCategoryAxisTest, FixedWidthWinsWhenPositive)
{
    CItemAxis axis(CAxis::LeftToRight, {1, 2, 3, 4});
    axis.setFixedBarWidth(25);
    axis.initAxisLength(0, 400);
    EXPECT_EQ(axis.drawBarWidth(), 25);
    axis.setFixedBarWidth(-25);
    axis.initAxisLength(0, 400);
    EXPECT_EQ(axis.drawBarWidth(), 70);
}

TEST_F(CCategoryAxisTest, WithoutCategoriesBarsHaveNoWidth)
{
    CItemAxis axis(CAxis::LeftToRight, {});
    axis.fitToRect(painter, QRect(0, 0, 401, 100));
    EXPECT_EQ(axis.drawBarWidth(), 0);
    EXPECT_EQ(axis.getLabelShift(), 400);
}

TEST_F(CCategoryAxisTest, OuterBarsStandEquallyFarFromBothEnds)
{
    CItemAxis axis(CAxis::LeftToRight, {1, 2, 3, 4});
    axis.fitToRect(painter, QRect(0, 0, 401, 100));
    EXPECT_EQ(axis.labelShiftAtBegin(), 24 + 35);
    EXPECT_EQ(axis.labelShiftAtEnd(), -(24 + 35));
    EXPECT_THAT(axis.ticks(), ElementsAre(0, 94, 188, 282));
}

TEST_F(CCategoryAxisTest, EndLabelNeverOverhangsTheAxis)
{
    CItemAxis axis(CAxis::TopToBottom, std::vector<long long>(100, 1));
    axis.fitToRect(painter, QRect(0, 0, 100, 101));
    EXPECT_EQ(axis.getLabelShift(), axis.labelRect().height() / 2);
}

TEST_F(CCategoryAxisTest, OneCategoryStandsInTheMiddle)
{
    CItemAxis axis(CAxis::LeftToRight, {1});
    axis.fitToRect(painter, QRect(0, 0, 401, 100));
    EXPECT_THAT(axis.ticks(), ElementsAre(0));
    EXPECT_EQ(axis.labelShiftAtBegin(), 200);
}

TEST_F(CCategoryAxisTest, LabelsAcrossAreTurnedOnHorizontalAxesOnly)
{
    CItemAxis vertical(CAxis::TopToBottom, {1, 2});
    vertical.fitToRect(painter, QRect(0, 0, 100, 401));
    EXPECT_FALSE(vertical.labels()[0]->isRotated());
    CItemAxis crowded(CAxis::LeftToRight, std::vector<long long>(200, 1));
    crowded.fitToRect(painter, QRect(0, 0, 200, 100));
    ASSERT_EQ(crowded.labelDirection(), CAxis::Across);
    EXPECT_TRUE(crowded.labels()[0]->isRotated());
    EXPECT_EQ(crowded.labels()[9]->orientedPos(),
              COrientedCoord(crowded.labels()[9]->tickCoord(), 0));
}

TEST_F(CCategoryAxisTest, SecondRowHasANegativeOffsetAndHiddenLabelsDoNotAlternate)
{
    CItemAxis axis(CAxis::LeftToRight, std::vector<long long>(6, 1), kLineAndLabels, "wwwwww");
    axis.hide(1);
    axis.setLabelBoundingRect(painter);
    axis.fitToRect(painter, QRect(0, 0, axis.labelRect().width() * 4, 100));
    ASSERT_EQ(axis.labelDirection(), CAxis::AlongTwoRows);
    const int row = axis.getElementHeight(CAxis::SecondRowOffset);
    EXPECT_THAT(axis.rows(), ElementsAre(0, 0, -row, 0, -row, 0));
}

TEST_F(CCategoryAxisTest, PlacedAlongWithoutThatDirectionAllStandAtTheStart)
{
    CItemAxis axis(CAxis::TopToBottom, {1, 2, 3});
    axis.fitToRect(painter, QRect(0, 0, 100, 401));
    axis.placeAlongLabels();
    EXPECT_THAT(axis.ticks(), ElementsAre(0, 0, 0));
    EXPECT_TRUE(axis.labels()[0]->isRotated());
}

TEST_F(CCategoryAxisTest, BarIsNarrowerByTheLine)
{
    CItemAxis upright(CAxis::LeftToRight, {1});
    upright.setFixedBarWidth(21);
    upright.initAxisLength(0, 400);
    EXPECT_EQ(upright.getBar(100, 0, -50), QRect(90, -50, 20, 50));
    upright.setLineWidth(3);
    EXPECT_EQ(upright.getBar(100, 0, -50), QRect(91, -50, 18, 50));
    CItemAxis lying(CAxis::TopToBottom, {1});
    lying.setFixedBarWidth(21);
    lying.initAxisLength(0, 400);
    EXPECT_EQ(lying.getBar(100, 0, 50), QRect(0, 90, 50, 20));
}

// Both axes of a chart, fitted around a plot from (50, 20) to (250, 220).
struct CUprightChart
{
    CUprightChart(QPainter& painter, const std::vector<long long>& values, long long least,
                  long long greatest)
        : categories(CAxis::LeftToRight, values)
        , numbers(CAxis::BottomToTop, CAxis::Left, kLineAndLabels, &CTestAxis::locale(), QString())
    {
        numbers.setNumbers(least, greatest, false, 0);
        categories.setFixedBarWidth(21);
        categories.fitToRect(painter, QRect(QPoint(50, 221), QPoint(250, 299)));
        numbers.fitToRect(painter, QRect(QPoint(0, 21), QPoint(49, 221)));
        categories.setItemBarAndLabel(painter, &numbers, QRect(), 0);
    }

    CItemAxis categories;
    CNumberAxis numbers;
};

struct CLyingChart
{
    CLyingChart(QPainter& painter, const std::vector<long long>& values, long long least,
                long long greatest, CAxis::Orientation orientation = CAxis::LeftToRight)
        : categories(CAxis::TopToBottom, values)
        , numbers(orientation, CAxis::Top, CAxis::ShowLine | CAxis::ShiftLastLabel,
                  &CTestAxis::locale(), QString())
    {
        numbers.setNumbers(least, greatest, false, 0);
        categories.setFixedBarWidth(21);
        categories.fitToRect(painter, QRect(QPoint(0, 20), QPoint(49, 220)));
        numbers.fitToRect(painter, QRect(QPoint(49, 0), QPoint(249, 19)));
    }
    void place(QPainter& painter)
    {
        categories.setItemBarAndLabel(painter, &numbers, kValueLabel, kGap);
    }

    CItemAxis categories;
    CNumberAxis numbers;
};

TEST_F(CCategoryAxisTest, UprightBarStandsOnTheAxisLine)
{
    // The scale runs to 40 over 200 pixels; the bar is 20 pixels wide and centred at 150.
    const CUprightChart chart(painter, {20}, 0, 37);
    EXPECT_EQ(chart.categories.items[0]->barRect(), QRect(140, 121, 20, 100));
}

TEST_F(CCategoryAxisTest, UprightBarsHaveNoValueLabels)
{
    const CUprightChart chart(painter, {20}, 0, 37);
    EXPECT_EQ(chart.categories.items[0]->barLabelRect(), QRect());
}

TEST_F(CCategoryAxisTest, BarOfZeroIsFlat)
{
    const CUprightChart chart(painter, {0}, 0, 37);
    EXPECT_FALSE(chart.categories.items[0]->barRect().isValid());
}

TEST_F(CCategoryAxisTest, NegativeBarHangsFromTheZero)
{
    // -40 to 60 over 200 pixels: zero at 80, and -20 at 40.
    const CUprightChart chart(painter, {-20}, -35, 37);
    ASSERT_EQ(chart.numbers.getNumberCoord(0), 100);
    const QRect bar = chart.categories.items[0]->barRect();
    EXPECT_EQ(bar.top(), 221 - 100);
    EXPECT_EQ(bar.bottom(), 221 - chart.numbers.getNumberCoord(-20) - 1);
}

TEST_F(CCategoryAxisTest, BarBelowTheScaleIsNull)
{
    const CUprightChart chart(painter, {-20, 20}, 0, 37);
    EXPECT_EQ(chart.categories.items[0]->barRect(), QRect());
    EXPECT_TRUE(chart.categories.items[1]->barRect().isValid());
}

TEST_F(CCategoryAxisTest, LyingBarStartsRightOfTheAxisLine)
{
    CLyingChart chart(painter, {30}, 0, 40);
    chart.place(painter);
    // 40 is 200 pixels long; the category line stands at 49, and the bar covers 49 to 198.
    EXPECT_EQ(chart.categories.items[0]->barRect(), QRect(49, 110, 150, 20));
}

TEST_F(CCategoryAxisTest, ValueLabelStandsAGapBeyondTheEndOfTheBar)
{
    CLyingChart chart(painter, {30}, 0, 40);
    chart.place(painter);
    const int top = 120 - chart.categories.labelRect().height() / 2;
    EXPECT_EQ(chart.categories.items[0]->barLabelRect(), QRect(49 + 150 + kGap + 1, top, 30, 14));
}

TEST_F(CCategoryAxisTest, ValueLabelLeftOfABarStandsAGapAndItsWidthBeyond)
{
    CLyingChart chart(painter, {30}, 0, 40, CAxis::RightToLeft);
    chart.place(painter);
    EXPECT_EQ(chart.categories.items[0]->barLabelRect().left(), 49 - (150 + kGap + 30));
}

TEST_F(CCategoryAxisTest, ValueLabelOfAHiddenCaptionIsNull)
{
    CLyingChart chart(painter, {30, 20}, 0, 40);
    chart.categories.hide(0);
    chart.place(painter);
    EXPECT_EQ(chart.categories.items[0]->barLabelRect(), QRect());
    EXPECT_TRUE(chart.categories.items[0]->barRect().isValid());
    EXPECT_TRUE(chart.categories.items[1]->barLabelRect().isValid());
}

TEST_F(CCategoryAxisTest, ValueLabelsAreNullWithoutASpan)
{
    CLyingChart chart(painter, {30}, 0, 40);
    chart.numbers.setNumbers(0, 40, false, 200);
    chart.place(painter);
    EXPECT_FALSE(chart.numbers.canDrawBarLabel());
    EXPECT_EQ(chart.categories.items[0]->barLabelRect(), QRect());
}

TEST_F(CCategoryAxisTest, BarOfANegativeCoordinateWithoutASpanHasNeitherRectangle)
{
    CLyingChart chart(painter, {30}, 0, 40);
    chart.numbers.setNumbers(0, 40, false, 300);
    chart.place(painter);
    EXPECT_LT(chart.numbers.getNumberCoord(30), 0);
    EXPECT_EQ(chart.categories.items[0]->barRect(), QRect());
    EXPECT_EQ(chart.categories.items[0]->barLabelRect(), QRect());
}

TEST_F(CCategoryAxisTest, BarOfANegativeCoordinateIsNullAndItsValueLabelStandsWhereItWouldEnd)
{
    CLyingChart chart(painter, {-30}, 0, 40);
    chart.place(painter);
    // 40 is 200 pixels long, so -30 ends 150 pixels left of the axis line, and the gap runs
    // rightward.
    ASSERT_TRUE(chart.numbers.canDrawBarLabel());
    ASSERT_EQ(chart.numbers.getNumberCoord(-30), -150);
    EXPECT_EQ(chart.categories.items[0]->barRect(), QRect());
    const int top = 120 - chart.categories.labelRect().height() / 2;
    EXPECT_EQ(chart.categories.items[0]->barLabelRect(), QRect(49 - 150 + kGap + 1, top, 30, 14));
}

TEST_F(CCategoryAxisTest, AnotherKindOfValueAxisPlacesNothing)
{
    CLyingChart chart(painter, {30}, 0, 40);
    chart.categories.items[0]->setBarRect(QRect(1, 2, 3, 4));
    CTestAxis other;
    chart.categories.setItemBarAndLabel(painter, &other, kValueLabel, kGap);
    chart.categories.setItemBarAndLabel(painter, nullptr, kValueLabel, kGap);
    EXPECT_EQ(chart.categories.items[0]->barRect(), QRect(1, 2, 3, 4));
}

TEST_F(CCategoryAxisTest, WidestBarsStayInTheRangeOfPixels)
{
    CItemAxis axis(CAxis::LeftToRight, std::vector<long long>(100, 5));
    axis.setFixedBarWidth(kMost);
    axis.fitToRect(painter, QRect(0, 0, 401, 100));
    CNumberAxis numbers(CAxis::BottomToTop, CAxis::Left, kLineAndLabels, &CTestAxis::locale(),
                        QString());
    numbers.setNumbers(0, 5, false, 0);
    numbers.fitToRect(painter, QRect(0, 0, 50, 200));
    axis.setItemBarAndLabel(painter, &numbers, QRect(), kMost);
    EXPECT_EQ(axis.getLabelShift(), kMost / 2);
    EXPECT_EQ(axis.items[0]->barRect().left(), 0);
}

} // namespace
} // namespace tovangl
