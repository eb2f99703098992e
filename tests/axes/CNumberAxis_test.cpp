// SPDX-License-Identifier: MIT
#include "axes/CScaleAxis.h"
#include "axes/kilo_guard.h"

#include <gmock/gmock.h>
#include <limits>

namespace tovangl {
namespace {

using ::testing::AllOf;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::SizeIs;

constexpr long long kGreatest = std::numeric_limits<long long>::max();
constexpr long long kLeast = std::numeric_limits<long long>::min();

using CNumberAxisTest = CAxisPicture;

struct CExample
{
    CGlobal::OneKiloBase kilo;
    long long least, greatest, step;
    std::vector<long long> labels;
    bool isZeroShown;
    std::vector<int> ticks; // of all labels, on 399 pixels
};

void PrintTo(const CExample& example, std::ostream* stream)
{
    *stream << example.least << " to " << example.greatest
            << (example.kilo == CGlobal::Base1024 ? " base 1024" : " base 1000");
}

class NumberAxisExamples : public CAxisPicture, public ::testing::WithParamInterface<CExample>
{};

TEST_P(NumberAxisExamples, HasTheStepAndTheLabels)
{
    const CKiloGuard kilo(GetParam().kilo);
    const CScaleAxis axis(GetParam().least, GetParam().greatest);
    EXPECT_EQ(axis.getDataStep(GetParam().least, GetParam().greatest), GetParam().step);
    EXPECT_THAT(axis.values(), ElementsAreArray(GetParam().labels));
    EXPECT_EQ(axis.scaleMin(), GetParam().labels.front());
    EXPECT_EQ(axis.scaleMax(), GetParam().labels.back());
}

TEST_P(NumberAxisExamples, ShowsZeroOnlyBetweenData)
{
    const CKiloGuard kilo(GetParam().kilo);
    const CScaleAxis axis(GetParam().least, GetParam().greatest);
    for (const CBarTextLabel* label : axis.labels())
        EXPECT_EQ(label->isHidden(), label->getValue() == 0 && !GetParam().isZeroShown);
}

TEST_P(NumberAxisExamples, HasTheTicks)
{
    const CKiloGuard kilo(GetParam().kilo);
    CScaleAxis axis(GetParam().least, GetParam().greatest);
    axis.fit(painter, 399);
    EXPECT_THAT(axis.ticks(), ElementsAreArray(GetParam().ticks));
}

INSTANTIATE_TEST_SUITE_P(
    Scales, NumberAxisExamples,
    ::testing::Values(
        CExample{CGlobal::Base1024, 0, 37, 10, {0, 10, 20, 30, 40}, false, {0, 99, 199, 299, 399}},
        CExample{CGlobal::Base1024,
                 0,
                 1234567,
                 262144,
                 {0, 262144, 524288, 786432, 1048576, 1310720},
                 false,
                 {0, 79, 159, 239, 319, 399}},
        CExample{CGlobal::Base1000,
                 0,
                 1234567,
                 500000,
                 {0, 500000, 1000000, 1500000},
                 false,
                 {0, 133, 266, 399}},
        CExample{CGlobal::Base1024,
                 -50,
                 80,
                 20,
                 {-60, -40, -20, 0, 20, 40, 60, 80, 100},
                 true,
                 {0, 50, 100, 149, 198, 248, 298, 348, 398}},
        CExample{CGlobal::Base1024,
                 0,
                 40,
                 10,
                 {0, 10, 20, 30, 40, 50},
                 false,
                 {0, 79, 159, 239, 319, 399}},
        CExample{CGlobal::Base1024, 0, 0, 1, {0, 1}, false, {0, 399}}));

TEST_F(CNumberAxisTest, WithShiftLastLabelEndsAtTheDataAndKeepsRoomBehind)
{
    CScaleAxis axis(0, 37, kLineAndLabels | CAxis::ShiftLastLabel, 20);
    axis.fit(painter, 399);
    EXPECT_THAT(axis.values(), ElementsAre(0, 10, 20, 30));
    EXPECT_EQ(axis.scaleMin(), 0);
    EXPECT_EQ(axis.scaleMax(), 37);
    EXPECT_EQ(axis.labelShiftAtEnd(), -20);
    EXPECT_EQ(axis.getNumberCoord(30), 307);
    EXPECT_EQ(axis.getNumberCoord(37), 379);
}

TEST_F(CNumberAxisTest, EndShiftCountsWithShiftLastLabelOnly)
{
    const CScaleAxis axis(0, 37, kLineAndLabels, 20);
    EXPECT_EQ(axis.endShift(), 20);
    EXPECT_EQ(axis.labelShiftAtEnd(), 0);
    EXPECT_EQ(axis.labelShiftAtBegin(), 0);
}

TEST_F(CNumberAxisTest, NegativeEndShiftIsKeptAsZero)
{
    EXPECT_EQ(CScaleAxis(0, 37, kLineAndLabels, -7).endShift(), 0);
}

TEST_F(CNumberAxisTest, TakesItsNumbersInAnyOrder)
{
    EXPECT_EQ(CScaleAxis(80, -50).values(), CScaleAxis(-50, 80).values());
}

TEST_F(CNumberAxisTest, NewNumbersReplaceTheOldOnes)
{
    CScaleAxis axis(-50, 80);
    axis.setNumbers(0, 37, false, 0);
    EXPECT_THAT(axis.values(), ElementsAre(0, 10, 20, 30, 40));
}

TEST_F(CNumberAxisTest, IsEmptyAsItIsToldThoughItHasTicks)
{
    CScaleAxis axis(0, 0);
    EXPECT_FALSE(axis.isGraphEmpty());
    axis.setNumbers(0, 0, true, 0);
    EXPECT_TRUE(axis.isGraphEmpty());
    EXPECT_THAT(axis.values(), ElementsAre(0, 1));
}

TEST_F(CNumberAxisTest, AllNegativeDataGetOneTickForEveryUnit)
{
    const CScaleAxis axis(-5000, -100);
    EXPECT_THAT(axis.values(), SizeIs(5002));
    EXPECT_EQ(axis.scaleMin(), -5001);
    EXPECT_EQ(axis.scaleMax(), 0);
    EXPECT_TRUE(axis.labels().back()->isHidden());
}

TEST_F(CNumberAxisTest, StepFollowsTheGreatestValueAlone)
{
    const CScaleAxis axis(0, 80);
    EXPECT_EQ(axis.getDataStep(-1000000, 80), 20);
    EXPECT_EQ(axis.getDataStep(0, 80), 20);
    EXPECT_EQ(axis.getStep(true, 1234567), 512000);
    EXPECT_EQ(axis.getStep(false, 1234567), 262144);
    EXPECT_TRUE(axis.isDifferentTriOrder(512000, 1746567));
}

TEST_F(CNumberAxisTest, LadderIsAppended)
{
    const CScaleAxis axis(0, 1);
    std::vector<long long> ladder{7};
    int multiplier = 0;
    axis.initStepParameters(true, ladder, multiplier);
    EXPECT_THAT(ladder, ElementsAre(7, 1, 2, 5, 10, 20, 50, 100, 200, 500));
    EXPECT_EQ(multiplier, 1024);
}

TEST_F(CNumberAxisTest, WritesPlainNumbersWithoutUnitPrefixes)
{
    EXPECT_THAT(CScaleAxis(-1500, 2000).texts(),
                ElementsAre("-1,536", "-1,024", "-512", "0", "512", "1,024", "1,536", "2,048"));
}

TEST_F(CNumberAxisTest, StepThatCrossesAKiloGivesAllPositiveLabelsTwoDecimals)
{
    const CScaleAxis axis(0, 2000, kLineAndLabels | CAxis::UnitPrefixes);
    EXPECT_EQ(axis.getDataStep(0, 2000), 512);
    EXPECT_THAT(axis.texts(), ElementsAre("0", "0.50 K", "1.00 K", "1.50 K", "2.00 K"));
}

TEST_F(CNumberAxisTest, NegativeLabelsAreWholeWhereThePositiveOnesHaveDecimals)
{
    const CScaleAxis axis(-600, 2000, kLineAndLabels | CAxis::UnitPrefixes);
    EXPECT_THAT(axis.texts(),
                ElementsAre("-1 K", "-512", "0", "0.50 K", "1.00 K", "1.50 K", "2.00 K"));
}

TEST_F(CNumberAxisTest, FormatsFollowUnitPrefixes)
{
    const CScaleAxis plain(0, 1);
    const CScaleAxis prefixed(0, 1, CAxis::UnitPrefixes);
    EXPECT_EQ(plain.getLabelFormat(true, true), PlainNumber);
    EXPECT_EQ(prefixed.getLabelFormat(true, true), PrefixedFromTen);
    EXPECT_EQ(prefixed.getLabelFormat(true, false), PrefixedWhole);
}

TEST_F(CNumberAxisTest, AllLabelsAreBoldOnDemandAndHiddenWithoutShowLabels)
{
    const CScaleAxis bold(-10, 10, kLineAndLabels | CAxis::BoldLabels);
    for (const CBarTextLabel* label : bold.labels())
        EXPECT_TRUE(label->isBold());
    EXPECT_THAT(CScaleAxis(-10, 10, CAxis::ShowLine).hidden(), Each(true));
    EXPECT_THAT(CScaleAxis(-10, 10).hidden(), Each(false));
}

TEST_F(CNumberAxisTest, OneLargeNegativeValueGetsAtMostAThousandLabels)
{
    const CScaleAxis axis(-1000000000000, 600);
    EXPECT_THAT(axis.values(), SizeIs(503));
    EXPECT_LE(axis.scaleMin(), -1000000000000);
    EXPECT_GE(axis.scaleMax(), 600);
}

TEST_F(CNumberAxisTest, UpToTheBoundEveryUnitHasItsLabel)
{
    EXPECT_THAT(CScaleAxis(-99998, -1, CAxis::ShowLine).values(), SizeIs(100000));
    EXPECT_THAT(CScaleAxis(-99999, -1, CAxis::ShowLine).values(), SizeIs(501));
}

TEST_F(CNumberAxisTest, ScaleThatWouldNotFitHasZeroAloneAndPutsAllValuesAtItsStart)
{
    CScaleAxis axis(0, kGreatest);
    axis.fit(painter, 399);
    EXPECT_THAT(axis.values(), ElementsAre(0));
    EXPECT_EQ(axis.getNumberSize(kGreatest), 0);
    EXPECT_EQ(axis.getNumberCoord(kGreatest), 0);
}

TEST_F(CNumberAxisTest, ScaleOverAllNumbersDoesNotWrap)
{
    CScaleAxis axis(kLeast, kGreatest, kLineAndLabels | CAxis::ShiftLastLabel);
    axis.fit(painter, 400);
    EXPECT_EQ(axis.scaleMax(), kGreatest);
    EXPECT_EQ(axis.scaleMin(), kLeast + (2LL << 60) - (2LL << 60));
    EXPECT_EQ(axis.getNumberCoord(kLeast), 0);
    EXPECT_EQ(axis.getNumberCoord(kGreatest), 400);
}

TEST_F(CNumberAxisTest, LabelsAcrossStandAtTheirTicksAndAreTurnedOnHorizontalAxes)
{
    CScaleAxis upright(0, 37, kLineAndLabels, 0, CAxis::BottomToTop);
    upright.fit(painter, 399);
    for (const CBarTextLabel* label : upright.labels()) {
        EXPECT_EQ(label->orientedPos(), COrientedCoord(label->tickCoord(), 0));
        EXPECT_FALSE(label->isRotated());
    }
    CScaleAxis crowded(0, 37);
    crowded.fit(painter, 10);
    EXPECT_EQ(crowded.labelDirection(), CAxis::Across);
    EXPECT_TRUE(crowded.labels().back()->isRotated());
}

TEST_F(CNumberAxisTest, SecondRowHasAPositiveOffsetAndHiddenLabelsDoNotAlternate)
{
    CScaleAxis axis(0, 37);
    axis.setLabelBoundingRect(painter);
    axis.fit(painter, 3 * axis.labelRect().width());
    ASSERT_EQ(axis.labelDirection(), CAxis::AlongTwoRows);
    const int row = axis.getElementHeight(CAxis::SecondRowOffset);
    EXPECT_GT(row, 0);
    // The zero is hidden and the first one in the first row after it is 10.
    std::vector<int> rows;
    for (const CBarTextLabel* label : axis.labels())
        rows.push_back(label->orientedPos().across());
    EXPECT_THAT(rows, ElementsAre(0, 0, row, 0, row));
}

TEST_F(CNumberAxisTest, OneRowHasNoOffset)
{
    CScaleAxis axis(0, 37);
    axis.fit(painter, 399);
    ASSERT_EQ(axis.labelDirection(), CAxis::Along);
    for (const CBarTextLabel* label : axis.labels()) {
        EXPECT_EQ(label->orientedPos(), COrientedCoord(label->tickCoord(), 0));
        EXPECT_FALSE(label->isRotated());
    }
}

TEST_F(CNumberAxisTest, HasRoomForBarsWhileItsSpanIsPositive)
{
    CScaleAxis axis(0, 37, CAxis::ShiftLastLabel, 50);
    axis.fit(painter, 51);
    EXPECT_TRUE(axis.canDrawBarLabel());
    axis.fit(painter, 50);
    EXPECT_FALSE(axis.canDrawBarLabel());
}

} // namespace
} // namespace tovangl
