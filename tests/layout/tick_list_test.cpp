// SPDX-License-Identifier: MIT
#include "layout/step_ladder.h"
#include "layout/tick_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace tovangl {
namespace {

using ::testing::AllOf;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::IsEmpty;

constexpr long long kGreatest = std::numeric_limits<long long>::max();
constexpr long long kLeast = std::numeric_limits<long long>::min();

constexpr CTickRules kPlain{true, false, false};
constexpr CTickRules kPrefixed{true, true, false};
constexpr CTickRules kEndingAtMax{true, false, true};

std::vector<long long> valuesOf(const std::vector<CTick>& ticks)
{
    std::vector<long long> values;
    for (const CTick& tick : ticks)
        values.push_back(tick.value);
    return values;
}

std::vector<NumberFormat> formatsOf(const std::vector<CTick>& ticks)
{
    std::vector<NumberFormat> formats;
    for (const CTick& tick : ticks)
        formats.push_back(tick.format);
    return formats;
}

TEST(TickFormat, IsPlainWithoutUnitPrefixes)
{
    EXPECT_EQ(tickFormat(kPlain, true, true), PlainNumber);
    EXPECT_EQ(tickFormat(kPlain, false, false), PlainNumber);
}

TEST(TickFormat, ScalesFromTenOnlyForHigherOrdersWithinTheData)
{
    EXPECT_EQ(tickFormat(kPrefixed, true, true), PrefixedFromTen);
    EXPECT_EQ(tickFormat(kPrefixed, true, false), PrefixedWhole);
    EXPECT_EQ(tickFormat(kPrefixed, false, true), PrefixedWhole);
    EXPECT_EQ(tickFormat(kPrefixed, false, false), PrefixedWhole);
}

TEST(ZeroTick, ShowsOnlyBetweenDataOnBothSidesOfIt)
{
    EXPECT_FALSE(zeroTick({-50, 80}, kPlain).isHidden);
    EXPECT_TRUE(zeroTick({0, 37}, kPlain).isHidden);
    EXPECT_TRUE(zeroTick({-37, 0}, kPlain).isHidden);
    EXPECT_TRUE(zeroTick({-37, -3}, kPlain).isHidden);
    EXPECT_TRUE(zeroTick({0, 0}, kPlain).isHidden);
}

TEST(ZeroTick, GoesBySignsAndNotByAProductThatCouldWrap)
{
    EXPECT_FALSE(zeroTick({kLeast, 2}, kPlain).isHidden);
    EXPECT_FALSE(zeroTick({kLeast, kGreatest}, kPlain).isHidden);
    EXPECT_TRUE(zeroTick({1LL << 32, 1LL << 32}, kPlain).isHidden);
}

TEST(ZeroTick, IsHiddenWithTheLabels)
{
    EXPECT_TRUE(zeroTick({-50, 80}, {false, false, false}).isHidden);
    EXPECT_EQ(zeroTick({-50, 80}, kPrefixed).format, PrefixedWhole);
    EXPECT_EQ(zeroTick({-50, 80}, kPlain).format, PlainNumber);
}

TEST(PositiveTicks, RunToTheFirstOneAboveTheData)
{
    EXPECT_THAT(valuesOf(positiveTicks(10, {0, 37}, kPlain, kKilo1024)),
                ElementsAre(10, 20, 30, 40));
}

TEST(PositiveTicks, HaveHeadroomAboveDataThatEndOnATick)
{
    EXPECT_THAT(valuesOf(positiveTicks(10, {0, 40}, kPlain, kKilo1024)),
                ElementsAre(10, 20, 30, 40, 50));
}

TEST(PositiveTicks, StopAtTheDataWhereTheScaleEndsThere)
{
    EXPECT_THAT(valuesOf(positiveTicks(10, {0, 37}, kEndingAtMax, kKilo1024)),
                ElementsAre(10, 20, 30));
    EXPECT_THAT(valuesOf(positiveTicks(10, {0, 40}, kEndingAtMax, kKilo1024)),
                ElementsAre(10, 20, 30, 40));
    EXPECT_THAT(positiveTicks(1, {0, 0}, kEndingAtMax, kKilo1024), IsEmpty());
}

TEST(PositiveTicks, OfAnEmptyChartAreOne)
{
    EXPECT_THAT(valuesOf(positiveTicks(1, {0, 0}, kPlain, kKilo1024)), ElementsAre(1));
}

TEST(PositiveTicks, AreNoneForDataBelowZero)
{
    EXPECT_THAT(positiveTicks(1, {-5, 0}, kPlain, kKilo1024), IsEmpty());
    EXPECT_THAT(positiveTicks(1, {-5, -1}, kPlain, kKilo1024), IsEmpty());
}

TEST(PositiveTicks, AreNoneWhereTheEndOfTheScaleDoesNotFit)
{
    EXPECT_THAT(positiveTicks(2LL << 60, {0, kGreatest}, kPlain, kKilo1024), IsEmpty());
    EXPECT_THAT(positiveTicks(10, {0, kGreatest - 9}, kPlain, kKilo1024), IsEmpty());
}

TEST(PositiveTicks, DoNotRunPastTheGreatestValue)
{
    const long long step = 1000000000000000000;
    const std::vector<long long> values =
        valuesOf(positiveTicks(step, {0, kGreatest - step}, kPlain, kKilo1000));
    EXPECT_EQ(values.size(), 9U);
    EXPECT_EQ(values.back(), 9 * step);
}

TEST(PositiveTicks, ScaleFromTenAllOfThemWhereTheStepCrossesAKilo)
{
    EXPECT_THAT(formatsOf(positiveTicks(262144, {0, 1234567}, kPrefixed, kKilo1024)),
                AllOf(::testing::SizeIs(5), Each(PrefixedFromTen)));
}

TEST(PositiveTicks, AreWholeWhereNoneCrossesAKilo)
{
    EXPECT_THAT(formatsOf(positiveTicks(10, {0, 37}, kPrefixed, kKilo1024)), Each(PrefixedWhole));
    EXPECT_THAT(formatsOf(positiveTicks(1024, {0, 5000}, kPrefixed, kKilo1024)),
                Each(PrefixedWhole));
}

TEST(PositiveTicks, OfAKiloOf1000ScaleFromTenFromTheFirstHigherOrderOn)
{
    const std::vector<CTick> ticks = positiveTicks(500, {0, 2100}, kPrefixed, kKilo1000);
    EXPECT_THAT(valuesOf(ticks), ElementsAre(500, 1000, 1500, 2000, 2500));
    EXPECT_THAT(formatsOf(ticks), ElementsAre(PrefixedWhole, PrefixedFromTen, PrefixedFromTen,
                                              PrefixedFromTen, PrefixedFromTen));
}

TEST(PositiveTicks, OfAHigherOrderAboveTheDataStayWhole)
{
    const std::vector<CTick> ticks = positiveTicks(200, {0, 900}, kPrefixed, kKilo1000);
    EXPECT_THAT(valuesOf(ticks), ElementsAre(200, 400, 600, 800, 1000));
    EXPECT_THAT(formatsOf(ticks), Each(PrefixedWhole));
}

TEST(PositiveTicks, AreHiddenWithTheLabels)
{
    EXPECT_THAT(positiveTicks(10, {0, 37}, {false, false, false}, kKilo1024),
                Each(Field(&CTick::isHidden, true)));
    EXPECT_THAT(positiveTicks(10, {0, 37}, kPlain, kKilo1024),
                Each(Field(&CTick::isHidden, false)));
}

TEST(NegativeTicks, RunDownToTheFirstOneBelowTheData)
{
    EXPECT_THAT(valuesOf(negativeTicks(20, {-50, 80}, kPlain)), ElementsAre(-20, -40, -60));
    EXPECT_THAT(negativeTicks(20, {0, 80}, kPlain), IsEmpty());
}

TEST(NegativeTicks, HaveRoomBelowDataThatEndOnATick)
{
    EXPECT_THAT(valuesOf(negativeTicks(20, {-40, 80}, kPlain)), ElementsAre(-20, -40, -60));
}

TEST(NegativeTicks, AreWholeWhateverTheOrder)
{
    EXPECT_THAT(formatsOf(negativeTicks(500, {-3000, 10}, kPrefixed)), Each(PrefixedWhole));
    EXPECT_THAT(formatsOf(negativeTicks(500, {-3000, 10}, kPlain)), Each(PlainNumber));
}

TEST(NegativeTicks, StopAtTheLastOneThatFits)
{
    const long long step = 2000000000000000000;
    EXPECT_THAT(valuesOf(negativeTicks(step, {kLeast, kGreatest / 2}, kPlain)),
                ElementsAre(-step, -2 * step, -3 * step, -4 * step));
    EXPECT_EQ(negativeTicks(1LL << 60, {kLeast, 1}, kPlain).back().value, kLeast);
}

TEST(TickCount, IsThatOfTheListsWithZero)
{
    std::mt19937 random(2);
    for (int i = 0; i < 3000; ++i) {
        const auto limit = static_cast<int>(2U << (random() % 12));
        std::uniform_int_distribution<int> value(-limit, limit);
        const auto [min, max] = std::minmax({value(random), value(random)});
        const CDataRange data{min, max};
        const CTickRules rules{true, false, random() % 2 == 0};
        const long long step = findDataStep(max, kKilo1024);
        const std::size_t listed = 1 + positiveTicks(step, data, rules, kKilo1024).size() +
                                   negativeTicks(step, data, rules).size();
        ASSERT_EQ(countTicks(step, data, rules), static_cast<std::int64_t>(listed))
            << min << ' ' << max;
    }
}

TEST(BoundedStep, IsTheStepItselfUpToTheBound)
{
    // 99,998 below zero, zero itself, and 1 above.
    EXPECT_EQ(countTicks(1, {-99997, 0}, kPlain), 99999);
    EXPECT_EQ(boundedStep(1, {-99997, 0}, kPlain), 1);
    EXPECT_EQ(countTicks(1, {-99998, 0}, kPlain), kMostTicks);
    EXPECT_EQ(boundedStep(1, {-99998, 0}, kPlain), 1);
}

TEST(BoundedStep, GrowsToTheSmallestRoundProductBeyondIt)
{
    EXPECT_EQ(countTicks(1, {-99999, 0}, kPlain), kMostTicks + 1);
    // 100 would leave 1000 below zero, and with zero itself one too many.
    EXPECT_EQ(countTicks(100, {-99999, 0}, kPlain), 1001);
    EXPECT_EQ(boundedStep(1, {-99999, 0}, kPlain), 200);
}

TEST(BoundedStep, MultipliesTheStepOfTheData)
{
    constexpr CDataRange kData{-1000000000000, 600};
    EXPECT_EQ(findDataStep(kData.max, kKilo1024), 200);
    EXPECT_EQ(boundedStep(200, kData, kPlain), 200 * 10000000LL);
    EXPECT_EQ(countTicks(200 * 10000000LL, kData, kPlain), 501 + 1 + 1);
}

TEST(BoundedStep, LeavesAtMostAThousandTicksForAnyData)
{
    std::mt19937_64 random(3);
    for (int i = 0; i < 3000; ++i) {
        const auto max = static_cast<long long>(random() >> (random() % 63 + 1)) - 5;
        const auto min = -static_cast<long long>(random() >> (random() % 63 + 1)) - 1;
        const CDataRange data{std::min(min, max), max};
        const long long step = findDataStep(max, kKilo1000);
        const long long bounded = boundedStep(step, data, kPlain);
        const bool isEnlarged = bounded != step;
        ASSERT_EQ(isEnlarged, countTicks(step, data, kPlain) > kMostTicks);
        ASSERT_EQ(bounded % step, 0);
        ASSERT_LE(countTicks(bounded, data, kPlain),
                  isEnlarged ? kMostTicksOfEnlargedStep : kMostTicks);
    }
}

TEST(BoundedStep, FitsForTheMostNegativeData)
{
    const long long step = boundedStep(1, {kLeast, kLeast}, kPlain);
    EXPECT_EQ(step, 10000000000000000);
    EXPECT_LE(countTicks(step, {kLeast, kLeast}, kPlain), kMostTicksOfEnlargedStep);
}

} // namespace
} // namespace tovangl
