// SPDX-License-Identifier: MIT
// How a full circle is shared among values.
#include "layout/plain_slice_angles.h"
#include "layout/slice_angles.h"

#include <gtest/gtest.h>
#include <limits>
#include <numeric>
#include <random>

namespace tovangl {
namespace {

constexpr int kClockwise = -1;
constexpr int kCounterClockwise = 1;
constexpr long long kGreatest = std::numeric_limits<long long>::max();
constexpr long long kLeast = std::numeric_limits<long long>::min();

using Spans = std::vector<int>;

Spans spansOf(const std::vector<long long>& values, int direction = kCounterClockwise)
{
    Spans spans;
    for (const CSliceAngles& slice : computeSliceAngles(values, 0, direction))
        spans.push_back(slice.span);
    return spans;
}

TEST(SliceAngles, OneValueTakesTheFullCircleInItsDirection)
{
    EXPECT_EQ(spansOf({42}, kCounterClockwise), Spans{5760});
    EXPECT_EQ(spansOf({42}, kClockwise), Spans{-5760});
}

TEST(SliceAngles, ThreeEqualValuesFillTheCircleExactly)
{
    EXPECT_EQ(spansOf({1, 1, 1}), (Spans{1920, 1920, 1920}));
}

TEST(SliceAngles, SpansAreInProportionToTheValues)
{
    EXPECT_EQ(spansOf({1, 2}), (Spans{1920, 3840}));
}

TEST(SliceAngles, AZeroAmongOthersGetsNoSpan)
{
    EXPECT_EQ(spansOf({1, 1, 1, 0}), (Spans{1920, 1920, 1920, 0}));
}

TEST(SliceAngles, TheRestOfTruncationGoesToTheFirstOfTheGreatest)
{
    EXPECT_EQ(spansOf({7, 7, 7, 7, 7, 7, 7}), (Spans{828, 822, 822, 822, 822, 822, 822}));
    EXPECT_EQ(spansOf({1, 3, 3}), (Spans{822, 2470, 2468}));
}

TEST(SliceAngles, TheRestMakesAClockwiseSliceMoreNegative)
{
    EXPECT_EQ(spansOf({1, 1, 1, 1, 1, 1, 1}, kClockwise),
              (Spans{-828, -822, -822, -822, -822, -822, -822}));
}

TEST(SliceAngles, ASpanTruncatedToZeroTakesTheRestClockwiseInEitherDirection)
{
    const std::vector<long long> values(6000, 1);
    EXPECT_EQ(spansOf(values, kCounterClockwise).front(), -5760);
    EXPECT_EQ(spansOf(values, kClockwise).front(), -5760);
}

TEST(SliceAngles, EachSliceStartsWhereTheOneBeforeItEnds)
{
    const auto slices = computeSliceAngles({1, 1, 2}, -2880, kClockwise);
    EXPECT_EQ(slices[0].start, -2880);
    EXPECT_EQ(slices[1].start, -4320);
    EXPECT_EQ(slices[2].start, -5760);
}

TEST(SliceAngles, TotalsOfThirtyTwoBitsAndMoreAreSharedInFloatingPoint)
{
    EXPECT_EQ(spansOf({2147483646, 1}), (Spans{5760, 0}));
    EXPECT_EQ(spansOf({2147483647, 2147483647}), (Spans{2880, 2880}));
    EXPECT_EQ(spansOf({1LL << 40, 3LL << 40}), (Spans{1440, 4320}));
}

TEST(SliceAngles, TotalsBeyondSixtyFourBitsStayExact)
{
    EXPECT_EQ(spansOf({kGreatest, kGreatest, kGreatest, kGreatest}),
              (Spans{1440, 1440, 1440, 1440}));
}

TEST(SliceAngles, TheTotalCountsTheMagnitudeOfTheMostNegativeValue)
{
    // Half of the circle belongs to the negative value, which is laid back over the other.
    EXPECT_EQ(spansOf({kGreatest, kLeast}), (Spans{8640, -2880}));
}

TEST(SliceAngles, NothingToShareGivesNoSpan)
{
    EXPECT_EQ(spansOf({}), Spans{});
    EXPECT_EQ(spansOf({0, 0}), (Spans{0, 0}));
}

// Of any magnitude; not all of them are positive where the least one is not.
std::vector<long long> randomValues(std::mt19937_64& random, long long least)
{
    std::vector<long long> values(1 + random() % 80);
    const unsigned bits = 1 + static_cast<unsigned>(random() % 62);
    for (long long& value : values)
        value = least + static_cast<long long>(random() % (1ULL << bits));
    return values;
}

TEST(SliceAngles, PositiveValuesAlwaysAddUpToAFullCircle)
{
    std::mt19937_64 random(20240611);
    for (int round = 0; round < 3000; ++round) {
        const Spans spans = spansOf(randomValues(random, 1), kClockwise);
        ASSERT_EQ(std::accumulate(spans.begin(), spans.end(), 0), -5760) << "round " << round;
    }
}

TEST(SliceAngles, AreThoseOfThePlainForm)
{
    std::mt19937_64 random(20240612);
    for (int round = 0; round < 3000; ++round) {
        const auto values = randomValues(random, -50);
        const auto slices = computeSliceAngles(values, -2880, kClockwise);
        const auto plain = plainSliceAngles(values, -2880, kClockwise);
        ASSERT_EQ(slices.size(), plain.size());
        for (std::size_t i = 0; i < plain.size(); ++i) {
            ASSERT_EQ(slices[i].start, plain[i].start) << "round " << round;
            ASSERT_EQ(slices[i].span, plain[i].span) << "round " << round;
        }
    }
}

} // namespace
} // namespace tovangl
