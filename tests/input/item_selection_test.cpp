// SPDX-License-Identifier: MIT
#include "input/item_selection.h"
#include "support/CDice.h"

#include <algorithm>
#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <ostream>
#include <vector>

namespace tovangl {
namespace {

constexpr long long kMost = std::numeric_limits<long long>::max();
constexpr long long kLeast = std::numeric_limits<long long>::min();

using Values = std::vector<long long>;
using Selection = CItemSelection (*)(const std::vector<CGraph1dItem>&, double);

std::vector<CGraph1dItem> itemsOf(const Values& values)
{
    std::vector<CGraph1dItem> items;
    for (const long long value : values)
        items.push_back({value, QString(), Qt::red, Qt::red});
    return items;
}

TEST(ShareOfTotal, TheMagnitudeOfTheMostNegativeValueIsExact)
{
    EXPECT_EQ(magnitudeOf(kLeast), 9223372036854775808u);
    EXPECT_EQ(magnitudeOf(-1), 1u);
    EXPECT_EQ(magnitudeOf(kMost), 9223372036854775807u);
}

TEST(ShareOfTotal, SumsBeyond64BitsAreExact)
{
    CShareOfTotal shares;
    for (int i = 0; i < 4; ++i)
        shares.add(kLeast);
    EXPECT_EQ(shares.percentOf(kLeast), 25.0);
}

TEST(ShareOfTotal, AllZerosAreEmpty)
{
    CShareOfTotal shares;
    shares.add(0);
    EXPECT_TRUE(shares.isEmpty());
    shares.add(-1);
    EXPECT_FALSE(shares.isEmpty());
}

struct CChoice
{
    const char* name;
    Selection select;
    Values values;
    double threshold;
    Values chosen;
};

void PrintTo(const CChoice& choice, std::ostream* stream)
{
    *stream << ::testing::PrintToString(choice.values) << " at " << choice.threshold;
}

class ItemSelection : public ::testing::TestWithParam<CChoice>
{};

TEST_P(ItemSelection, TakesWhatReachesTheThreshold)
{
    const CChoice& choice = GetParam();
    Values chosen;
    for (const std::size_t item : choice.select(itemsOf(choice.values), choice.threshold).items)
        chosen.push_back(choice.values[item]);
    EXPECT_EQ(chosen, choice.chosen);
}

const CChoice kBarChoices[] = {
    {"EverythingAtZero", selectBars, {5, 0, -5}, 0, {5, 0, -5}},
    {"EverythingBelowZero", selectBars, {0, 7}, -1, {0, 7}},
    {"AShareThatIsTheThreshold", selectBars, {25, 24, 51}, 25, {25, 51}},
    {"NegativeValuesByTheirMagnitude", selectBars, {50, -50, 100}, 25, {50, -50, 100}},
    {"TheGreatestAlone", selectBars, {50, -50, 100}, 26, {100}},
    {"ANegativeValueAlone", selectBars, {-60, 20, 20}, 30, {-60}},
    {"AllZerosAtZero", selectBars, {0, 0}, 0, {0, 0}},
    {"NoZeroAboveZero", selectBars, {0, 0}, 1e-9, {}},
    {"NothingAtNaN", selectBars, {1, 2}, NAN, {}},
    {"NoZeroAtNaN", selectBars, {0, 0}, NAN, {}},
    {"OneItemAtAHundred", selectBars, {7}, 100, {7}},
    {"NothingAboveAHundred", selectBars, {7}, 100.001, {}},
};

const CChoice kSliceChoices[] = {
    {"NoNegativeValueButItsShare", selectSlices, {50, -50, 100}, 30, {100}},
    {"NoNegativeValue", selectSlices, {50, -50, 100}, 25, {50, 100}},
    {"NoZero", selectSlices, {0, 1, 0}, 0, {1}},
    {"NothingOfZeros", selectSlices, {0, 0}, 0, {}},
    {"AShareThatIsTheThreshold", selectSlices, {5, 95}, 5, {5, 95}},
    {"NoShareBelowTheThreshold", selectSlices, {4, 96}, 5, {96}},
    {"NothingAtNaN", selectSlices, {1, 2}, NAN, {}},
    {"SumsBeyond64Bits", selectSlices, {kMost, kMost, kMost, 1}, 33, {kMost, kMost, kMost}},
    {"ExtremesWithoutWrapping", selectSlices, {kMost, kMost, kLeast}, 33, {kMost, kMost}},
    {"NoExtremeAboveItsShare", selectSlices, {kMost, kMost, kLeast}, 34, {}},
};

const auto nameOfChoice = [](const auto& info) { return info.param.name; };
INSTANTIATE_TEST_SUITE_P(Bars, ItemSelection, ::testing::ValuesIn(kBarChoices), nameOfChoice);
INSTANTIATE_TEST_SUITE_P(Slices, ItemSelection, ::testing::ValuesIn(kSliceChoices), nameOfChoice);

struct CRest
{
    const char* name;
    Selection select;
    Values values;
    double threshold;
    std::size_t count;
    long long value;
};

void PrintTo(const CRest& rest, std::ostream* stream)
{
    *stream << ::testing::PrintToString(rest.values) << " at " << rest.threshold;
}

class LeftOut : public ::testing::TestWithParam<CRest>
{};

TEST_P(LeftOut, IsWhatDoesNotReachTheThreshold)
{
    const CRest& rest = GetParam();
    const CLeftOut leftOut = rest.select(itemsOf(rest.values), rest.threshold).leftOut;
    EXPECT_EQ(leftOut.count(), rest.count);
    EXPECT_EQ(leftOut.value(), rest.value);
}

const CRest kBarRests[] = {
    {"NothingAtZero", selectBars, {5, 0, -5}, 0, 0, 0},
    {"NothingBelowZero", selectBars, {5, 0, -5}, -1, 0, 0},
    {"SmallBarsOfEitherSign", selectBars, {-3, 5, 92}, 10, 2, 2},
    {"BarsThatAddUpToZero", selectBars, {-3, 3, 94}, 10, 2, 0},
    {"ZerosAboveZero", selectBars, {0, 0}, 1, 2, 0},
    {"EverythingAtNaN", selectBars, {1, -2, 4}, NAN, 3, 3},
    {"EverythingAboveAHundred", selectBars, {7}, 100.001, 1, 7},
    {"NothingOfNoItems", selectBars, {}, 5, 0, 0},
    {"MoreThanTheGreatestValue", selectBars, {kMost, kMost, 1}, NAN, 3, kMost},
    {"LessThanTheLeastValue", selectBars, {kLeast, kLeast}, NAN, 2, kLeast},
    {"BothEnds", selectBars, {kLeast, kMost, kMost, kLeast, 5}, NAN, 5, 3},
};

const CRest kSliceRests[] = {
    {"NothingAtZero", selectSlices, {5, 0, -5}, 0, 0, 0},
    {"SmallSlicesButNoNegativeValue", selectSlices, {3, 5, -7, 0, 85}, 10, 2, 8},
    {"EverythingAboveZeroAtNaN", selectSlices, {1, -2, 4}, NAN, 2, 5},
    {"NothingOfZeros", selectSlices, {0, 0}, 1, 0, 0},
    {"NothingOfNegativeValues", selectSlices, {-1, -2}, 1, 0, 0},
    {"MoreThanTheGreatestValue", selectSlices, {kMost, kMost, kLeast}, 34, 2, kMost},
};

INSTANTIATE_TEST_SUITE_P(Bars, LeftOut, ::testing::ValuesIn(kBarRests), nameOfChoice);
INSTANTIATE_TEST_SUITE_P(Slices, LeftOut, ::testing::ValuesIn(kSliceRests), nameOfChoice);

long long sumOf(const Values& values, const std::vector<std::size_t>& items)
{
    long long sum = 0;
    for (const std::size_t item : items)
        sum += values[item];
    return sum;
}

TEST(LeftOutOfRandomCharts, MakesTheTotalTogetherWithWhatIsDrawn)
{
    CDice dice(5);
    for (int i = 0; i < 200; ++i) {
        Values values;
        long long total = 0;
        long long totalOfSlices = 0;
        for (int count = dice.roll(0, 40); count > 0; --count) {
            values.push_back(dice.roll(-100, 1000) * dice.roll(1, 1000));
            total += values.back();
            totalOfSlices += std::max(values.back(), 0LL);
        }
        const double threshold = dice.roll(-1, 20);
        const CItemSelection bars = selectBars(itemsOf(values), threshold);
        EXPECT_EQ(sumOf(values, bars.items) + bars.leftOut.value(), total);
        const CItemSelection slices = selectSlices(itemsOf(values), threshold);
        EXPECT_EQ(sumOf(values, slices.items) + slices.leftOut.value(), totalOfSlices);
    }
}

TEST(ActingThreshold, IsTheOneThatWasSet)
{
    EXPECT_EQ(selectBars(itemsOf({1, 2}), 12.5).threshold, 12.5);
    EXPECT_EQ(selectSlices(itemsOf({1, 2}), 12.5).threshold, 12.5);
}

TEST(ActingThreshold, IsZeroWhereANegativeOneWasSet)
{
    EXPECT_EQ(selectBars(itemsOf({1}), -3).threshold, 0.0);
    EXPECT_EQ(selectSlices(itemsOf({1}), -3).threshold, 0.0);
    EXPECT_EQ(selectBars({}, -3).threshold, 0.0) << "bars, without any item too";
}

TEST(ActingThreshold, StaysNegativeWhereAPieHasNothingToShareDeliberately)
{
    EXPECT_EQ(selectSlices({}, -3).threshold, -3.0);
    EXPECT_EQ(selectSlices(itemsOf({0}), -3).threshold, -3.0);
}

} // namespace
} // namespace tovangl
