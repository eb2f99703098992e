// SPDX-License-Identifier: MIT
// The pie chart: everything about it that has a place.
#include "pie/CTestPie.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr int kWidth = 400;
constexpr int kHeight = 300;
const char* const kLongName = "a long name that takes more than a fifth of the width";

// Without the last bits, in which the edges of slots that touch may differ.
QRectF textRect(const CPieTextLabel& label)
{
    constexpr double kSlack = 1e-6;
    return label.getBoundingRect().translated(label.getPosition()).adjusted(0, kSlack, 0, -kSlack);
}

bool hasOverlaps(const CTestPie& pie)
{
    QRectF previous;
    for (const CPieTextLabel* label : pie.labels()) {
        if (!label->isHidden() && textRect(*label).intersects(previous))
            return true;
        previous = label->isHidden() ? QRectF() : textRect(*label);
    }
    return false;
}

// Whether labels stand one below the other as their slices do, on either half.
bool isInSliceOrder(const CTestPie& pie)
{
    for (const CPieTextLabel* a : pie.labels()) {
        for (const CPieTextLabel* b : pie.labels()) {
            const bool isSeen =
                !a->isHidden() && !b->isHidden() && a->isOnRightHalf() == b->isOnRightHalf();
            if (isSeen && a->elbow().y() < b->elbow().y() && a->lineEnd().y() >= b->lineEnd().y())
                return false;
        }
    }
    return true;
}

// Many thin slices close together, whose labels collide.
void addCrowd(CTestPie& pie)
{
    for (int i = 0; i < 12; ++i)
        pie.add(1, "thin");
    pie.add(100, "the rest");
}

TEST(PieLayout, OneItemTakesTheFullCircleInTheChartsDirection)
{
    CTestPie pie;
    pie.add(7, "all");
    ASSERT_TRUE(pie.fitsInto(kWidth, kHeight));
    EXPECT_EQ(pie.item(0)->startAngle(), -2880);
    EXPECT_EQ(pie.item(0)->spanAngle(), -5760);
    pie.setDirection(1);
    ASSERT_TRUE(pie.fitsInto(kWidth, kHeight));
    EXPECT_EQ(pie.item(0)->spanAngle(), 5760);
}

TEST(PieLayout, TheFirstSliceStartsAtNineOClockAndRunsClockwise)
{
    CTestPie pie;
    pie.addEqual(4);
    ASSERT_TRUE(pie.fitsInto(kWidth, kHeight));
    EXPECT_EQ(pie.item(0)->startAngle(), -2880);
    EXPECT_EQ(pie.item(1)->startAngle(), -4320);
    // The middle of the first slice is at half past ten.
    EXPECT_EQ(pie.label(0)->arc(), 2160);
}

TEST(PieLayout, HasOneLabelForEachChosenItemInTheirOrder)
{
    CTestPie pie;
    pie.setOptions(CPieGraph::Options());
    for (const char* name : {"a", "b", "c"})
        pie.add(name[0] == 'b' ? 0 : 5, name);
    ASSERT_TRUE(pie.fitsInto(kWidth, kHeight));
    ASSERT_EQ(pie.labels().size(), 2u);
    EXPECT_EQ(pie.label(0)->getText(), QString("a"));
    EXPECT_EQ(pie.label(1)->getText(), QString("c"));
}

TEST(PieLayout, WithoutItemsThereIsRoomButNothingInIt)
{
    CTestPie pie;
    EXPECT_TRUE(pie.fitsInto(kWidth, kHeight));
    EXPECT_TRUE(pie.labels().empty());
    EXPECT_EQ(pie.labelRect(), QRectF(0, 0, 0, 0));
    EXPECT_EQ(pie.area(), QRectF(60, 10, 280, 280));
}

TEST(PieLayout, TheAreaIsASquareInTheMiddleWithMarginsAndHalfALabelAbove)
{
    CTestPie pie;
    pie.addEqual(3, "home");
    ASSERT_TRUE(pie.fitsInto(2 * kWidth, kHeight));
    const double height = pie.labelRect().height();
    EXPECT_GT(height, 0);
    EXPECT_EQ(pie.area().width(), pie.area().height());
    EXPECT_EQ(pie.area().top(), 10 + height / 2);
    EXPECT_EQ(pie.area().height(), kHeight - 20 - height);
    EXPECT_EQ(pie.area().center().x(), kWidth);
}

TEST(PieLayout, WideLabelsLeaveLessRoomForThePie)
{
    CTestPie names;
    CTestPie longNames;
    names.addEqual(4, "x");
    longNames.addEqual(4, kLongName);
    ASSERT_TRUE(names.fitsInto(kWidth, 2 * kHeight));
    ASSERT_TRUE(longNames.fitsInto(kWidth, 2 * kHeight));
    EXPECT_GT(names.area().width(), longNames.area().width());
}

TEST(PieLayout, CapsTheSharedLabelRectangleAtAFifthOfTheWidth)
{
    CTestPie pie;
    pie.addEqual(2, kLongName);
    pie.add(1, "x");
    ASSERT_TRUE(pie.fitsInto(kWidth, kHeight));
    EXPECT_EQ(pie.labelRect().width(), kWidth / 5.0);
}

TEST(PieLayout, TakesTheRoomOfAHiddenSizeForTheName)
{
    CTestPie pie;
    pie.addEqual(3, kLongName);
    ASSERT_TRUE(pie.fitsInto(180, kHeight));
    EXPECT_FALSE(CPieTextLabel::canDrawSizeLabel());
    CTestPie withoutSizes;
    withoutSizes.setOptions(CPieGraph::RemoveLabelOverlaps);
    withoutSizes.addEqual(3, kLongName);
    ASSERT_TRUE(withoutSizes.fitsInto(180, kHeight));
    EXPECT_EQ(pie.area(), withoutSizes.area());
    EXPECT_EQ(pie.label(0)->labelPos(), withoutSizes.label(0)->labelPos());
}

TEST(PieLayout, GivesThePieTheRoomOfHiddenSizes)
{
    CTestPie pie;
    pie.addEqual(4, "ab");
    ASSERT_TRUE(pie.fitsInto(180, kHeight));
    ASSERT_FALSE(CPieTextLabel::canDrawSizeLabel());
    const QRectF area = pie.area();
    pie.setOptions(CPieGraph::RemoveLabelOverlaps);
    ASSERT_TRUE(pie.fitsInto(180, kHeight));
    EXPECT_EQ(pie.area(), area);
}

TEST(PieLayout, LabelsMayReachAsFarAsTheMargins)
{
    CTestPie pie;
    pie.setStartAngle(-90);
    pie.addEqual(2, kLongName);
    ASSERT_TRUE(pie.fitsInto(kWidth + 1, kHeight));
    // The first slice is on the left.
    const int reach = kWidth / 2 - 10;
    EXPECT_EQ(pie.label(0)->getBoundingRectAdjustedToGraphBoundary().width(),
              pie.label(0)->labelPos().x() + reach);
    EXPECT_EQ(pie.label(1)->getBoundingRectAdjustedToGraphBoundary().width(),
              reach - pie.label(1)->labelPos().x());
}

TEST(PieLayout, LabelsAboveAndBelowBoundTheRadiusByTheWholeWidthOnly)
{
    CTestPie pie;
    pie.addEqual(2, "home");
    ASSERT_TRUE(pie.fitsInto(200, 900));
    EXPECT_EQ(pie.area().width(), 400);
}

TEST(PieLayout, ALabelFartherOutThanItsNeighboursLosesTheSizesOfAll)
{
    CTestPie pie;
    pie.addEqual(3, "x");
    ASSERT_TRUE(pie.fitsInto(kWidth, kHeight));
    EXPECT_TRUE(CPieTextLabel::canDrawSizeLabel());
    pie.clear();
    pie.addEqual(3, "x");
    ASSERT_TRUE(pie.fitsInto(105, kHeight));
    EXPECT_FALSE(CPieTextLabel::canDrawSizeLabel());
}

TEST(PieLayout, DoesNotFitWhereLabelsLeaveNoWidthForThePie)
{
    CTestPie pie;
    pie.add(1, "home");
    EXPECT_FALSE(pie.fitsInto(103, kHeight));
    EXPECT_TRUE(pie.fitsInto(104, kHeight));
}

TEST(PieLayout, DoesNotFitWhereOneLabelTakesTheWholeHeight)
{
    CTestPie pie;
    pie.add(1, "home");
    ASSERT_TRUE(pie.fitsInto(kWidth, kHeight));
    const int least = 20 + static_cast<int>(pie.labelRect().height());
    EXPECT_FALSE(pie.fitsInto(kWidth, least));
    EXPECT_TRUE(pie.fitsInto(kWidth, least + 1));
}

TEST(PieLayout, OptionsReachTheLabels)
{
    CTestPie pie;
    pie.addEqual(1, "home");
    pie.setOptions(CPieGraph::BoldLabels | CPieGraph::ShortenFromLeft);
    ASSERT_TRUE(pie.fitsInto(kWidth, kHeight));
    EXPECT_TRUE(pie.label(0)->isBold());
    EXPECT_TRUE(pie.label(0)->isShortFromLeft());
    EXPECT_FALSE(pie.label(0)->isWithSize());
    EXPECT_EQ(pie.label(0)->getText(), QString("home"));
}

TEST(PieLayout, CollidingLabelsAreMovedApart)
{
    CTestPie pie;
    addCrowd(pie);
    ASSERT_TRUE(pie.fitsInto(kWidth, kHeight));
    EXPECT_FALSE(hasOverlaps(pie));
    EXPECT_TRUE(isInSliceOrder(pie));
    EXPECT_EQ(pie.labels().size(), 13u);
}

TEST(PieLayout, CollidingLabelsStayWithoutTheOption)
{
    CTestPie pie;
    addCrowd(pie);
    pie.setOptions(CPieGraph::ShowSizes);
    ASSERT_TRUE(pie.fitsInto(kWidth, kHeight));
    EXPECT_TRUE(hasOverlaps(pie));
}

TEST(PieLayout, LabelsThatDoNotCollideKeepTheirPlaces)
{
    CTestPie pie;
    pie.addEqual(4, "home");
    ASSERT_TRUE(pie.fitsInto(kWidth, kHeight));
    for (const CPieTextLabel* label : pie.labels())
        EXPECT_EQ(label->lineEnd().y(), label->elbow().y());
}

TEST(PieLayout, RemovingOverlapsLetsTheListBeginWhereItEntersTheOtherHalf)
{
    CTestPie pie;
    pie.addEqual(60);
    ASSERT_TRUE(pie.fitsInto(kWidth, kHeight));
    // The list begins at nine o'clock, on the left, and enters the right half after the top.
    EXPECT_EQ(pie.label(0)->getItem(), pie.item(15));
    EXPECT_EQ(pie.label(44)->getItem(), pie.item(59));
    EXPECT_EQ(pie.label(45)->getItem(), pie.item(0));
}

TEST(PieLayout, ArrangesACounterClockwisePieToo)
{
    CTestPie pie;
    pie.setDirection(1);
    addCrowd(pie);
    ASSERT_TRUE(pie.fitsInto(kWidth, kHeight));
    EXPECT_FALSE(hasOverlaps(pie));
    EXPECT_TRUE(isInSliceOrder(pie));
}

TEST(PieLayout, ShowsAsManyLabelsAHalfAsFitBesideTheAreaAndOneMore)
{
    CTestPie pie;
    pie.addEqual(100, "name");
    ASSERT_TRUE(pie.fitsInto(kWidth, 200));
    const double slot = pie.labelRect().height();
    const int fitting = static_cast<int>(std::ceil((pie.area().height() + slot) / slot)) - 1;
    int shown = 0;
    for (const CPieTextLabel* label : pie.labels())
        shown += label->isHidden() ? 0 : 1;
    EXPECT_EQ(shown, 2 * fitting);
    EXPECT_FALSE(hasOverlaps(pie));
    EXPECT_TRUE(isInSliceOrder(pie));
}

TEST(PieLayout, MeasuresGrowWithThePrintFactor)
{
    CTestPie pie;
    pie.addEqual(3, "home");
    (void)pie.getImageForPrinter(2 * kWidth, kHeight, 3);
    EXPECT_EQ(pie.area().center().x(), kWidth * 3);
    EXPECT_EQ(pie.area().top(), 30 + pie.labelRect().height() / 2);
    const CPieTextLabel& label = *pie.label(1);
    EXPECT_EQ(label.scale(), 3);
    EXPECT_NEAR(std::abs(label.labelPos().x() - label.elbow().x()), 63, 1e-9);
}

TEST(PieLayout, AHundredThousandSlicesCostInStepWithTheirNumber)
{
    CTestPie pie;
    pie.addEqual(100000);
    ASSERT_TRUE(pie.fitsInto(kWidth, kHeight));
    EXPECT_EQ(pie.labels().size(), 100000u);
}

} // namespace
} // namespace tovangl
