// SPDX-License-Identifier: MIT
// The pie chart: everything about it that has a place.
#include "layout/pie_layout.h"
#include "support/CTestPie.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr CRequest kPicture{400, 300};
const char* const kLongName = "a long name that takes more than a fifth of the width";

bool isOnRightHalf(const CPlacedPieLabel& label)
{
    return label.labelPos.x() > label.lineEnd.x();
}

// Without the last bits, in which the edges of slots that touch may differ.
QRectF textRect(const CPlacedPieLabel& label)
{
    constexpr double kSlack = 1e-6;
    QRectF rect;
    for (const CPlacedText& text : label.texts)
        rect |= text.room;
    return rect.isNull() ? rect : rect.adjusted(0, kSlack, 0, -kSlack);
}

bool hasOverlaps(const CPieLayout& layout)
{
    QRectF previous;
    for (const CPlacedPieLabel& label : layout.labels) {
        const QRectF rect = textRect(label);
        if (rect.intersects(previous))
            return true;
        previous = rect;
    }
    return false;
}

// Whether labels stand one below the other as their slices do, on either half.
bool isInSliceOrder(const CPieLayout& layout)
{
    for (const CPlacedPieLabel& a : layout.labels) {
        for (const CPlacedPieLabel& b : layout.labels) {
            const bool isSeen = !a.isHidden && !b.isHidden && isOnRightHalf(a) == isOnRightHalf(b);
            if (isSeen && a.elbow.y() < b.elbow.y() && a.lineEnd.y() >= b.lineEnd.y())
                return false;
        }
    }
    return true;
}

CTestPie equalSlices(int count, const char* name = "")
{
    CTestPie pie;
    pie.addEqual(count, name);
    return pie;
}

// Many thin slices close together, whose labels collide.
CTestPie crowd()
{
    CTestPie pie = equalSlices(12, "thin");
    pie.add(100, "the rest");
    return pie;
}

TEST(PieLayout, OneItemTakesTheFullCircle)
{
    const CPieLayout layout = equalSlices(1).layOut(kPicture);
    ASSERT_EQ(layout.slices.size(), 1u);
    EXPECT_TRUE(layout.isWholeDisc);
    EXPECT_EQ(layout.slices[0].angles.start, -2880);
    EXPECT_EQ(layout.slices[0].angles.span, -5760);
}

TEST(PieLayout, TheFirstSliceStartsAtNineOClockAndRunsClockwise)
{
    const CPieLayout layout = equalSlices(4).layOut(kPicture);
    EXPECT_FALSE(layout.isWholeDisc);
    EXPECT_EQ(layout.slices[0].angles.start, -2880);
    EXPECT_EQ(layout.slices[1].angles.start, -4320);
    // The middle of the first slice is at half past ten.
    const QPointF elbow = layout.labels[0].elbow;
    EXPECT_LT(elbow.x(), 0);
    EXPECT_NEAR(elbow.x(), elbow.y(), 1e-9);
}

TEST(PieLayout, HasOneLabelForEachChosenItemInTheirOrder)
{
    CTestPie pie;
    pie.options = CPieInput::Options();
    for (const char* name : {"a", "b", "c"})
        pie.add(name[0] == 'b' ? 0 : 5, name);
    const CPieLayout layout = pie.layOut(kPicture);
    ASSERT_EQ(layout.labels.size(), 2u);
    EXPECT_EQ(layout.labels[0].texts.at(0).text, QString("a"));
    EXPECT_EQ(layout.labels[1].texts.at(0).text, QString("c"));
    EXPECT_EQ(layout.labels[1].item, 2u);
    EXPECT_EQ(layout.slices[1].item, 2u);
}

TEST(PieLayout, WithoutItemsThereIsRoomButNothingInIt)
{
    const CPieLayout layout = CTestPie().layOut(kPicture);
    EXPECT_TRUE(layout.fits());
    EXPECT_TRUE(layout.labels.empty());
    EXPECT_EQ(layout.labelRect, QRectF(0, 0, 0, 0));
    EXPECT_EQ(layout.area, QRectF(60, 10, 280, 280));
}

TEST(PieLayout, TheAreaIsASquareInTheMiddleWithMarginsAndHalfALabelAbove)
{
    const CPieLayout layout = equalSlices(3, "home").layOut(onScreen(800, 300));
    const double height = layout.labelRect.height();
    EXPECT_GT(height, 0);
    EXPECT_EQ(layout.area.width(), layout.area.height());
    EXPECT_EQ(layout.area.top(), 10 + height / 2);
    EXPECT_EQ(layout.area.height(), 300 - 20 - height);
    EXPECT_EQ(layout.area.center().x(), 400);
}

TEST(PieLayout, TheBackgroundMovesThePieByHalfAPixelOnAScreenOnly)
{
    const CTestPie pie(true);
    const CPieLayout screen = pie.layOut(kPicture);
    EXPECT_TRUE(screen.background);
    EXPECT_EQ(screen.drawnPieRect, screen.pieRect.translated(0.5, 0.5));
    const CPieLayout print = pie.layOut(inPrint(400, 300, 1));
    EXPECT_FALSE(print.background);
    EXPECT_EQ(print.drawnPieRect, print.pieRect);
}

// The centre of this picture lies between two pixels; the background moves it onto the next one.
TEST(PieLayout, TheBackgroundMovesTheCaptionsWithThePie)
{
    CTestPie pie = equalSlices(3, "home");
    const CPieLayout plain = pie.layOut(onScreen(401, 301));
    pie.settings.hasBackground = true;
    const CPieLayout moved = pie.layOut(onScreen(401, 301));
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(moved.labels[i].itemRect, plain.labels[i].itemRect.translated(1, 1));
}

TEST(PieLayout, WideLabelsLeaveLessRoomForThePie)
{
    const CRequest picture = onScreen(400, 600);
    EXPECT_GT(equalSlices(4, "x").layOut(picture).area.width(),
              equalSlices(4, kLongName).layOut(picture).area.width());
}

TEST(PieLayout, TheSharedLabelRectangleIsAsLargeAsTheLargestLabelWithItsSize)
{
    CTestPie pie = equalSlices(2, "x");
    pie.add(1, "home");
    pie.add(1, "x\nx");
    const CPieLayout layout = pie.layOut(kPicture);
    const QRectF widest = layout.labels[2].texts[0].room | layout.labels[2].texts[1].room;
    EXPECT_EQ(layout.labelRect.width(), widest.width());
    EXPECT_EQ(layout.labelRect.height(), layout.labels[3].texts[0].room.height());
}

TEST(PieLayout, CapsTheSharedLabelRectangleAtAFifthOfTheWidth)
{
    CTestPie pie = equalSlices(2, kLongName);
    pie.add(1, "x");
    EXPECT_EQ(pie.layOut(kPicture).labelRect.width(), 400 / 5.0);
}

TEST(PieLayout, LabelsMayReachAsFarAsTheMargins)
{
    // The first slice is above, with its label on the left.
    const CPieLayout layout = equalSlices(2, kLongName).layOut(onScreen(401, 300));
    const int reach = 400 / 2 - 10;
    ASSERT_FALSE(isOnRightHalf(layout.labels[0]));
    EXPECT_EQ(layout.labels[0].texts.front().room.left(), -reach);
    EXPECT_EQ(layout.labels[1].texts.back().room.right(), reach);
}

TEST(PieLayout, LabelsAboveAndBelowBoundTheRadiusByTheWholeWidthOnly)
{
    EXPECT_EQ(equalSlices(2, "home").layOut(onScreen(200, 900)).area.width(), 400);
}

TEST(PieLayout, OneNameThatDoesNotFitTakesTheSizesOfAll)
{
    CTestPie pie = equalSlices(3, "i");
    const CRequest narrow = onScreen(200, 600);
    EXPECT_TRUE(pie.layOut(narrow).sizesShown);
    pie.add(1, "WWWWWWWW");
    const CPieLayout layout = pie.layOut(narrow);
    EXPECT_FALSE(layout.sizesShown);
    for (const CPlacedPieLabel& label : layout.labels)
        EXPECT_EQ(label.texts.size(), 1u);
}

TEST(PieLayout, SizesThatWereDroppedAreBackInTheNextPicture)
{
    const CTestPie pie = equalSlices(3, "x");
    EXPECT_FALSE(pie.layOut(onScreen(105, 300)).sizesShown);
    EXPECT_TRUE(pie.layOut(kPicture).sizesShown);
}

TEST(PieLayout, GivesNamesAndPieTheRoomOfDroppedSizes)
{
    for (const char* name : {"ab", kLongName}) {
        CTestPie pie = equalSlices(4, name);
        const CPieLayout dropped = pie.layOut(onScreen(180, 300));
        ASSERT_FALSE(dropped.sizesShown);
        pie.options = CPieInput::RemoveLabelOverlaps;
        const CPieLayout without = pie.layOut(onScreen(180, 300));
        EXPECT_EQ(dropped.area, without.area);
        EXPECT_EQ(dropped.labels[0].labelPos, without.labels[0].labelPos);
        EXPECT_EQ(dropped.labels[0].texts.at(0).text, without.labels[0].texts.at(0).text);
    }
}

TEST(PieLayout, DoesNotFitWhereLabelsLeaveNoWidthForThePie)
{
    const CTestPie pie = equalSlices(1, "home");
    EXPECT_FALSE(pie.fitsInto(103, 300));
    EXPECT_TRUE(pie.fitsInto(104, 300));
    EXPECT_TRUE(pie.layOut(onScreen(103, 300)).labels.at(0).texts.empty());
}

TEST(PieLayout, DoesNotFitWhereOneLabelTakesTheWholeHeight)
{
    const CTestPie pie = equalSlices(1, "home");
    const int least = 20 + static_cast<int>(pie.layOut(kPicture).labelRect.height());
    EXPECT_FALSE(pie.fitsInto(400, least));
    EXPECT_TRUE(pie.fitsInto(400, least + 1));
}

TEST(PieLayout, LabelsAreTheNameFollowedByTheSizeWhereOneIsAskedFor)
{
    CTestPie pie = equalSlices(1, "home");
    const CPlacedPieLabel both = pie.layOut(kPicture).labels.at(0);
    ASSERT_EQ(both.texts.size(), 2u);
    EXPECT_EQ(both.texts[0].text, QString("home"));
    EXPECT_EQ(both.texts[1].text, QString(" [1 B]"));
    pie.options = CPieInput::Options();
    EXPECT_EQ(pie.layOut(kPicture).labels.at(0).texts.size(), 1u);
}

TEST(PieLayout, OptionsReachTheLabels)
{
    CTestPie pie = equalSlices(1, kLongName);
    pie.options = CPieInput::BoldLabels | CPieInput::ShortenFromLeft | CPieInput::ShowSizes;
    const auto texts = pie.layOut(kPicture).labels.at(0).texts;
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_TRUE(texts[0].isBold);
    EXPECT_TRUE(texts[1].isBold);
    EXPECT_TRUE(texts[0].text.startsWith("..."));
}

TEST(PieLayout, CollidingLabelsAreMovedApart)
{
    const CPieLayout layout = crowd().layOut(kPicture);
    EXPECT_FALSE(hasOverlaps(layout));
    EXPECT_TRUE(isInSliceOrder(layout));
    EXPECT_EQ(layout.labels.size(), 13u);
}

TEST(PieLayout, CollidingLabelsStayWithoutTheOption)
{
    CTestPie pie = crowd();
    pie.options = CPieInput::ShowSizes;
    EXPECT_TRUE(hasOverlaps(pie.layOut(kPicture)));
}

TEST(PieLayout, LabelsThatDoNotCollideKeepTheirPlaces)
{
    for (const CPlacedPieLabel& label : equalSlices(4, "home").layOut(kPicture).labels)
        EXPECT_EQ(label.lineEnd.y(), label.elbow.y());
}

TEST(PieLayout, ArrangedLabelsStandOnTheCircleOfTheirBeamsEachOnItsHalf)
{
    const CPieLayout layout = equalSlices(60).layOut(kPicture);
    const double radius = layout.area.width() / 2;
    for (const CPlacedPieLabel& label : layout.labels) {
        const int side = isOnRightHalf(label) ? 1 : -1;
        const QPointF place = label.lineEnd - QPointF(side * 18, 0);
        if (label.isHidden || std::abs(place.y()) > radius)
            continue;
        EXPECT_NEAR(std::hypot(place.x(), place.y()), radius, 1e-9);
        EXPECT_GT(side * place.x(), -1e-9);
    }
}

TEST(PieLayout, RemovingOverlapsLetsTheListBeginWhereItEntersTheOtherHalf)
{
    const CPieLayout layout = equalSlices(60).layOut(kPicture);
    // The list begins at nine o'clock, on the left, and enters the right half after the top.
    EXPECT_EQ(layout.labels[0].item, 15u);
    EXPECT_EQ(layout.labels[44].item, 59u);
    EXPECT_EQ(layout.labels[45].item, 0u);
}

TEST(PieLayout, ShowsAsManyLabelsAHalfAsFitBesideTheAreaAndOneMore)
{
    const CPieLayout layout = equalSlices(100, "name").layOut(onScreen(400, 200));
    const double slot = layout.labelRect.height();
    const int fitting = static_cast<int>(std::ceil((layout.area.height() + slot) / slot)) - 1;
    const auto shown = std::count_if(layout.labels.begin(), layout.labels.end(),
                                     [](const CPlacedPieLabel& label) { return !label.isHidden; });
    EXPECT_EQ(shown, 2 * fitting);
    EXPECT_FALSE(hasOverlaps(layout));
    EXPECT_TRUE(isInSliceOrder(layout));
}

TEST(PieLayout, HiddenLabelsTakeUpNothing)
{
    for (const CPlacedPieLabel& label :
         equalSlices(100, "name").layOut(onScreen(400, 200)).labels) {
        EXPECT_EQ(label.itemRect.isNull(), label.isHidden);
        EXPECT_EQ(label.texts.empty(), label.isHidden);
    }
}

TEST(PieLayout, MeasuresGrowWithThePrintFactor)
{
    const CPieLayout layout = equalSlices(3, "home").layOut(inPrint(800, 300, 3));
    EXPECT_EQ(layout.area.center().x(), 400 * 3);
    EXPECT_EQ(layout.area.top(), 30 + layout.labelRect.height() / 2);
    EXPECT_EQ(layout.outlineWidth, 3);
    EXPECT_DOUBLE_EQ(layout.beamWidth, 3.6);
    EXPECT_DOUBLE_EQ(layout.textLineWidth, 1.8);
    const CPlacedPieLabel& label = layout.labels[1];
    EXPECT_NEAR(std::abs(label.labelPos.x() - label.elbow.x()), 63, 1e-9);
}

TEST(PieLayout, ColoursThatAreNotSetSuitTheDevice)
{
    CTestPie pie = equalSlices(1, "home");
    const CPieLayout screen = pie.layOut(kPicture);
    EXPECT_EQ(screen.outlineColor, QColor(255, 255, 255));
    EXPECT_EQ(screen.labelLineColor, QColor(Qt::black));
    EXPECT_EQ(screen.labels.at(0).texts.at(0).color, QColor(Qt::black));
    EXPECT_EQ(pie.layOut(inPrint(400, 300, 1)).outlineColor, QColor(64, 64, 64));
    pie.settings.colors.labelLine = QColor();
    EXPECT_EQ(pie.layOut(kPicture).labelLineColor, QColor(255, 255, 255));
}

TEST(PieLayout, AHundredThousandSlicesCostInStepWithTheirNumber)
{
    EXPECT_EQ(equalSlices(100000).layOut(kPicture).labels.size(), 100000u);
}

} // namespace
} // namespace tovangl
