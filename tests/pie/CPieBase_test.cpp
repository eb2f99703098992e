// SPDX-License-Identifier: MIT
// The rule by which pies choose what they draw.
#include "pie/CTestPie.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace tovangl {
namespace {

using Values = std::vector<long long>;

Values chosen(const Values& values, double threshold)
{
    CTestPie pie;
    for (const long long value : values)
        pie.add(value);
    pie.setThreshold(threshold);
    pie.selectItems();
    return pie.selectedValues();
}

TEST(PieSelection, CountsNegativeValuesTowardTheTotalButNeverDrawsThem)
{
    EXPECT_EQ(chosen({50, -50, 100}, 30), (Values{100}));
    EXPECT_EQ(chosen({50, -50, 100}, 25), (Values{50, 100}));
}

TEST(PieSelection, LeavesOutZeros)
{
    EXPECT_EQ(chosen({0, 1, 0}, 0), Values{1});
    EXPECT_EQ(chosen({0, 0}, 0), Values{});
}

TEST(PieSelection, TakesAShareEqualToTheThreshold)
{
    EXPECT_EQ(chosen({5, 95}, 5), (Values{5, 95}));
    EXPECT_EQ(chosen({4, 96}, 5), Values{96});
}

TEST(PieSelection, SetsANegativeThresholdToZero)
{
    CTestPie pie;
    pie.add(1);
    pie.setThreshold(-3);
    pie.selectItems();
    EXPECT_EQ(pie.threshold(), 0);
}

TEST(PieSelection, KeepsANegativeThresholdWhereThereIsNothingToShare)
{
    CTestPie pie;
    pie.setThreshold(-3);
    pie.selectItems();
    EXPECT_EQ(pie.threshold(), -3);
    pie.add(0);
    pie.selectItems();
    EXPECT_EQ(pie.threshold(), -3);
}

TEST(PieSelection, LeavesOutAllAtAThresholdOfNaN)
{
    EXPECT_EQ(chosen({1, 2}, NAN), Values{});
}

TEST(PieSelection, SumsBeyondSixtyFourBits)
{
    constexpr long long kGreatest = std::numeric_limits<long long>::max();
    EXPECT_EQ(chosen({kGreatest, kGreatest, kGreatest, 1}, 33), (Values(3, kGreatest)));
}

TEST(PieSelection, IsMadeAnewEachTime)
{
    CTestPie pie;
    pie.add(1);
    pie.selectItems();
    pie.add(2);
    pie.selectItems();
    EXPECT_EQ(pie.selectedValues(), (Values{1, 2}));
}

} // namespace
} // namespace tovangl
