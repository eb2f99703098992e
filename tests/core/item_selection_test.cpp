// SPDX-License-Identifier: MIT
#include "core/item_selection.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace tovangl {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr long long kMost = std::numeric_limits<long long>::max();
constexpr long long kLeast = std::numeric_limits<long long>::min();

using Rule = bool (*)(long long, const CShareOfTotal&, double);

std::vector<long long> chosen(Rule rule, const std::vector<long long>& values, double threshold)
{
    CShareOfTotal shares;
    for (const long long value : values)
        shares.add(value);
    std::vector<long long> result;
    for (const long long value : values) {
        if (rule(value, shares, threshold))
            result.push_back(value);
    }
    return result;
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

TEST(BarRule, TakesMagnitudes)
{
    EXPECT_THAT(chosen(isBarChosen, {50, -50, 100}, 25), ElementsAre(50, -50, 100));
    EXPECT_THAT(chosen(isBarChosen, {50, -50, 100}, 26), ElementsAre(100));
}

TEST(BarRule, DrawsAllZerosAtThresholdZeroOnly)
{
    EXPECT_THAT(chosen(isBarChosen, {0, 0}, 0), ElementsAre(0, 0));
    EXPECT_THAT(chosen(isBarChosen, {0, 0}, 1e-9), IsEmpty());
}

TEST(BarRule, NaNLeavesNothing)
{
    EXPECT_THAT(chosen(isBarChosen, {1, 2}, NAN), IsEmpty());
    EXPECT_THAT(chosen(isBarChosen, {0, 0}, NAN), IsEmpty());
}

TEST(BarRule, AThresholdAboveHundredLeavesNothing)
{
    EXPECT_THAT(chosen(isBarChosen, {7}, 100), ElementsAre(7));
    EXPECT_THAT(chosen(isBarChosen, {7}, 100.001), IsEmpty());
}

TEST(SliceRule, NegativeValuesShrinkEveryShareButAreNeverDrawn)
{
    EXPECT_THAT(chosen(isSliceChosen, {50, -50, 100}, 30), ElementsAre(100));
    EXPECT_THAT(chosen(isSliceChosen, {50, -50, 100}, 25), ElementsAre(50, 100));
}

TEST(SliceRule, ZeroIsNeverDrawn)
{
    EXPECT_THAT(chosen(isSliceChosen, {0, 1}, 0), ElementsAre(1));
    EXPECT_THAT(chosen(isSliceChosen, {0, 0}, 0), IsEmpty());
}

TEST(SliceRule, TakesAShareThatIsTheThreshold)
{
    EXPECT_THAT(chosen(isSliceChosen, {5, 95}, 5), ElementsAre(5, 95));
    EXPECT_THAT(chosen(isSliceChosen, {4, 96}, 5), ElementsAre(96));
}

TEST(SliceRule, NaNLeavesNothing)
{
    EXPECT_THAT(chosen(isSliceChosen, {1, 2}, NAN), IsEmpty());
}

TEST(SliceRule, ExtremeValuesDoNotWrap)
{
    EXPECT_THAT(chosen(isSliceChosen, {kMost, kMost, kLeast}, 33), ElementsAre(kMost, kMost));
    EXPECT_THAT(chosen(isSliceChosen, {kMost, kMost, kLeast}, 34), IsEmpty());
}

} // namespace
} // namespace tovangl
