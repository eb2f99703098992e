// SPDX-License-Identifier: MIT
#include "layout/CNumberAxis.h"
#include "layout/axis_support.h"

#include <gmock/gmock.h>
#include <limits>

namespace tovangl {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::SizeIs;

constexpr long long kGreatest = std::numeric_limits<long long>::max();
constexpr long long kLeast = std::numeric_limits<long long>::min();

const CAxisSettings::Properties kEndingAtMax = kLineAndLabels | CAxisSettings::ShiftLastLabel;
const CAxisSettings::Properties kPrefixed = kLineAndLabels | CAxisSettings::UnitPrefixes;

struct CFittedScale
{
    CAxisLayout axis;
    CValueScale scale;
};

std::vector<long long> valuesOf(const CFittedScale& fitted)
{
    return ofLabels(fitted.axis, &CBarTextLabel::value);
}

std::vector<std::string> textsOf(const CFittedScale& fitted)
{
    std::vector<std::string> texts;
    for (const CBarTextLabel& label : fitted.axis.labels)
        texts.push_back(label.text.getText().toStdString());
    return texts;
}

// Fits value axes to lengths, with room for all labels across them.
class CNumberAxisTest : public ::testing::Test
{
protected:
    CFittedScale fitted(const CNumbers& numbers, int length = 399)
    {
        const CNumberAxis axis(frame, {properties, QString()}, CAxisLook(), numbers, kEnglish, kilo,
                               measurer);
        const QRect rect =
            frame.isHorizontal() ? QRect(0, 0, length + 1, 100) : QRect(0, 0, 100, length + 1);
        CAxisLayout layout = axis.fitToRect(rect, measurer);
        const CValueScale scale = axis.valueScale(layout);
        return {std::move(layout), scale};
    }
    CFittedScale fitted(long long least, long long greatest)
    {
        return fitted(CNumbers{{least, greatest}});
    }

    CAxisFrame frame = kRightAtTheTop;
    CAxisSettings::Properties properties = kLineAndLabels;
    CKilo kilo = kKilo1024;
    CTestMeasurer measurer;
};

struct CExample
{
    CKilo kilo;
    CDataRange data;
    std::vector<long long> labels;
    bool isZeroShown;
    std::vector<int> ticks; // of all labels, on 399 pixels
};

void PrintTo(const CExample& example, std::ostream* stream)
{
    *stream << example.data.min << " to " << example.data.max << ", kilo " << example.kilo.size;
}

class NumberAxisExamples : public CNumberAxisTest, public ::testing::WithParamInterface<CExample>
{
protected:
    CFittedScale example()
    {
        kilo = GetParam().kilo;
        return fitted(GetParam().data.min, GetParam().data.max);
    }
};

TEST_P(NumberAxisExamples, HasTheLabelsAndEndsAtTheOuterOnes)
{
    const CFittedScale fitted = example();
    EXPECT_THAT(valuesOf(fitted), ElementsAreArray(GetParam().labels));
    EXPECT_EQ(fitted.scale.min, GetParam().labels.front());
    EXPECT_EQ(fitted.scale.max, GetParam().labels.back());
}

TEST_P(NumberAxisExamples, ShowsZeroOnlyBetweenData)
{
    for (const CBarTextLabel& label : example().axis.labels)
        EXPECT_EQ(label.isHidden, label.value == 0 && !GetParam().isZeroShown);
}

TEST_P(NumberAxisExamples, HasTheTicks)
{
    EXPECT_THAT(ofLabels(example().axis, &CBarTextLabel::tickCoord),
                ElementsAreArray(GetParam().ticks));
}

INSTANTIATE_TEST_SUITE_P(
    Scales, NumberAxisExamples,
    ::testing::Values(
        CExample{kKilo1024, {0, 37}, {0, 10, 20, 30, 40}, false, {0, 99, 199, 299, 399}},
        CExample{kKilo1024,
                 {0, 1234567},
                 {0, 262144, 524288, 786432, 1048576, 1310720},
                 false,
                 {0, 79, 159, 239, 319, 399}},
        CExample{kKilo1000, {0, 1234567}, {0, 500000, 1000000, 1500000}, false, {0, 133, 266, 399}},
        CExample{kKilo1024,
                 {-50, 80},
                 {-60, -40, -20, 0, 20, 40, 60, 80, 100},
                 true,
                 {0, 50, 100, 149, 198, 248, 298, 348, 398}},
        CExample{kKilo1024, {0, 40}, {0, 10, 20, 30, 40, 50}, false, {0, 79, 159, 239, 319, 399}},
        CExample{kKilo1024, {0, 0}, {0, 1}, false, {0, 399}}));

TEST_F(CNumberAxisTest, WithShiftLastLabelEndsAtTheDataAndKeepsRoomBehind)
{
    properties = kEndingAtMax;
    const CFittedScale scale = fitted(CNumbers{{0, 37}, false, 20});
    EXPECT_THAT(valuesOf(scale), ElementsAre(0, 10, 20, 30));
    EXPECT_EQ(scale.scale.min, 0);
    EXPECT_EQ(scale.scale.max, 37);
    EXPECT_EQ(scale.axis.shiftAtEnd, -20);
    EXPECT_EQ(scale.scale.coord(30), 307);
    EXPECT_EQ(scale.scale.coord(37), 379);
}

TEST_F(CNumberAxisTest, EndShiftCountsWithShiftLastLabelOnly)
{
    const CFittedScale scale = fitted(CNumbers{{0, 37}, false, 20});
    EXPECT_EQ(scale.axis.shiftAtEnd, 0);
    EXPECT_EQ(scale.axis.shiftAtBegin, 0);
}

TEST_F(CNumberAxisTest, NegativeEndShiftCountsAsZero)
{
    properties = kEndingAtMax;
    EXPECT_EQ(fitted(CNumbers{{0, 37}, false, -7}).axis.shiftAtEnd, 0);
}

TEST_F(CNumberAxisTest, OfAnEmptyChartHasTicksButNoRoomForLabels)
{
    const CFittedScale scale = fitted(CNumbers{{}, true});
    EXPECT_TRUE(scale.axis.shape.isEmpty);
    EXPECT_THAT(valuesOf(scale), ElementsAre(0, 1));
    EXPECT_EQ(scale.axis.shape.getElementHeight(CAxisShape::WholeThickness), 1);
}

TEST_F(CNumberAxisTest, AllNegativeDataGetOneTickForEveryUnit)
{
    const CFittedScale scale = fitted(-5000, -100);
    EXPECT_THAT(valuesOf(scale), SizeIs(5002));
    EXPECT_EQ(scale.scale.min, -5001);
    EXPECT_EQ(scale.scale.max, 0);
    EXPECT_TRUE(scale.axis.labels.back().isHidden);
}

TEST_F(CNumberAxisTest, StepFollowsTheGreatestValueAlone)
{
    const auto stepOf = [&](long long least) {
        const std::vector<long long> values = valuesOf(fitted(least, 80));
        return values[1] - values[0];
    };
    EXPECT_EQ(stepOf(0), 20);
    EXPECT_EQ(stepOf(-10000), 20);
}

TEST_F(CNumberAxisTest, WritesPlainNumbersWithoutUnitPrefixes)
{
    EXPECT_THAT(textsOf(fitted(-1500, 2000)),
                ElementsAre("-1,536", "-1,024", "-512", "0", "512", "1,024", "1,536", "2,048"));
}

TEST_F(CNumberAxisTest, StepThatCrossesAKiloGivesAllPositiveLabelsTwoDecimals)
{
    properties = kPrefixed;
    EXPECT_THAT(textsOf(fitted(0, 2000)), ElementsAre("0", "0.50 K", "1.00 K", "1.50 K", "2.00 K"));
}

TEST_F(CNumberAxisTest, NegativeLabelsAreWholeWhereThePositiveOnesHaveDecimals)
{
    properties = kPrefixed;
    EXPECT_THAT(textsOf(fitted(-600, 2000)),
                ElementsAre("-1 K", "-512", "0", "0.50 K", "1.00 K", "1.50 K", "2.00 K"));
}

TEST_F(CNumberAxisTest, AllLabelsAreMeasuredBoldOnDemand)
{
    properties |= CAxisSettings::BoldLabels;
    for (const CBarTextLabel& label : fitted(-10, 10).axis.labels)
        EXPECT_TRUE(label.text.style().isBold);
}

TEST_F(CNumberAxisTest, HidesAllLabelsWithoutShowLabelsButMeasuresThem)
{
    EXPECT_THAT(ofLabels(fitted(-10, 10).axis, &CBarTextLabel::isHidden), Each(false));
    properties = CAxisSettings::ShowLine;
    const CAxisLayout axis = fitted(-10, 10).axis;
    EXPECT_THAT(ofLabels(axis, &CBarTextLabel::isHidden), Each(true));
    EXPECT_GT(axis.shape.labelSize.width(), 0);
}

TEST_F(CNumberAxisTest, OneLargeNegativeValueGetsAtMostAThousandLabels)
{
    const CFittedScale scale = fitted(-1000000000000, 600);
    EXPECT_THAT(valuesOf(scale), SizeIs(503));
    EXPECT_LE(scale.scale.min, -1000000000000);
    EXPECT_GE(scale.scale.max, 600);
}

TEST_F(CNumberAxisTest, UpToTheBoundEveryUnitHasItsLabel)
{
    properties = CAxisSettings::ShowLine;
    EXPECT_THAT(valuesOf(fitted(-99998, -1)), SizeIs(100000));
    EXPECT_THAT(valuesOf(fitted(-99999, -1)), SizeIs(501));
}

TEST_F(CNumberAxisTest, ScaleThatWouldNotFitHasZeroAloneAndPutsAllValuesAtItsStart)
{
    const CFittedScale scale = fitted(0, kGreatest);
    EXPECT_THAT(valuesOf(scale), ElementsAre(0));
    EXPECT_EQ(scale.scale.coord(kGreatest), 0);
}

TEST_F(CNumberAxisTest, ScaleOverAllNumbersDoesNotWrap)
{
    properties = kEndingAtMax;
    const CFittedScale scale = fitted(CNumbers{{kLeast, kGreatest}}, 400);
    EXPECT_EQ(scale.scale.min, kLeast);
    EXPECT_EQ(scale.scale.max, kGreatest);
    EXPECT_EQ(scale.scale.coord(kLeast), 0);
    EXPECT_EQ(scale.scale.coord(kGreatest), 400);
}

TEST_F(CNumberAxisTest, LabelsStandAtTheirTicksUnlessInASecondRow)
{
    for (const CAxisFrame& direction : {kRightAtTheTop, kUpAtTheLeft}) {
        frame = direction;
        const CAxisLayout axis = fitted(0, 37).axis;
        EXPECT_FALSE(axis.isRotated());
        for (const CBarTextLabel& label : axis.labels)
            EXPECT_EQ(label.orientedPos, COrientedCoord(label.tickCoord, 0));
    }
}

TEST_F(CNumberAxisTest, CrowdedLabelsOfAHorizontalAxisAreTurned)
{
    EXPECT_TRUE(fitted(CNumbers{{0, 37}}, 10).axis.isRotated());
}

TEST_F(CNumberAxisTest, SecondRowHasAPositiveOffsetAndHiddenLabelsDoNotAlternate)
{
    const int width = fitted(0, 37).axis.shape.labelSize.width();
    const CAxisLayout axis = fitted(CNumbers{{0, 37}}, 3 * width).axis;
    ASSERT_EQ(axis.shape.direction, LabelDirection::AlongTwoRows);
    const int row = axis.shape.getElementHeight(CAxisShape::SecondRowOffset);
    EXPECT_GT(row, 0);
    // The zero is hidden, and the first label of the first row after it is 10.
    EXPECT_THAT(rowsOf(axis), ElementsAre(0, 0, row, 0, row));
}

} // namespace
} // namespace tovangl
