// SPDX-License-Identifier: MIT
#include "base/wide_integer.h"
#include "layout/plain_scale.h"
#include "layout/step_ladder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace tovangl {
namespace {

using ::testing::ElementsAre;

constexpr long long kGreatest = std::numeric_limits<long long>::max();
constexpr long long kLeast = std::numeric_limits<long long>::min();
// Any base but 0 stands for a kilo of 1000.
constexpr CKilo kOddKilo{7, 1000};

TEST(StepLadder, HasOneRowForEachKiloAndKind)
{
    EXPECT_THAT(stepLadder(true, kKilo1024).entries,
                ElementsAre(1, 2, 5, 10, 20, 50, 100, 200, 500));
    EXPECT_THAT(stepLadder(false, kKilo1024).entries,
                ElementsAre(1, 2, 4, 8, 16, 32, 64, 128, 256, 512));
    EXPECT_THAT(stepLadder(true, kKilo1000).entries, ElementsAre(1, 2, 5));
    EXPECT_THAT(stepLadder(false, kKilo1000).entries, ElementsAre(1, 2, 5));
}

TEST(StepLadder, GoesOnByAWholeKiloOrByTen)
{
    EXPECT_EQ(stepLadder(true, kKilo1024).multiplier, 1024);
    EXPECT_EQ(stepLadder(false, kKilo1024).multiplier, 1024);
    EXPECT_EQ(stepLadder(true, kKilo1000).multiplier, 10);
    EXPECT_EQ(stepLadder(true, kOddKilo).multiplier, 10);
}

TEST(FindStep, IsTheFirstEntryAboveASixthOfTheGreatestValue)
{
    const CStepLadder ladder = stepLadder(true, kKilo1024);
    EXPECT_EQ(findStep(ladder, 37), 10);
    EXPECT_EQ(findStep(ladder, 59), 10);
    EXPECT_EQ(findStep(ladder, 60), 20);
    EXPECT_EQ(findStep(ladder, 1234567), 512000);
}

TEST(FindStep, GoesFromTheLastEntryToTheFirstOneTimesTheMultiplier)
{
    EXPECT_EQ(findStep(stepLadder(true, kKilo1024), 2999), 500);
    EXPECT_EQ(findStep(stepLadder(true, kKilo1024), 3000), 1024);
    EXPECT_EQ(findStep(stepLadder(false, kKilo1024), 3072), 1024);
    EXPECT_EQ(findStep(stepLadder(true, kKilo1000), 30), 10);
}

TEST(FindStep, OfAValueBelowSixIsOne)
{
    const CStepLadder ladder = stepLadder(true, kKilo1000);
    EXPECT_EQ(findStep(ladder, 5), 1);
    EXPECT_EQ(findStep(ladder, 0), 1);
    EXPECT_EQ(findStep(ladder, -100), 1);
    EXPECT_EQ(findStep(ladder, kLeast), 1);
}

TEST(FindStep, OfTheGreatestValueStillFits)
{
    constexpr long long kExa = 1LL << 60;
    EXPECT_EQ(findStep(stepLadder(true, kKilo1024), kGreatest), 2 * kExa);
    EXPECT_EQ(findStep(stepLadder(false, kKilo1024), kGreatest), 2 * kExa);
    EXPECT_EQ(findStep(stepLadder(true, kKilo1000), kGreatest), 2000000000000000000);
}

TEST(FindStep, IsThatOfTheWalkInPlaceForAnyValue)
{
    std::mt19937_64 random(1);
    for (int i = 0; i < 5000; ++i) {
        const auto max = static_cast<long long>(random() >> (1 + random() % 63));
        for (const CKilo& kilo : {kKilo1024, kKilo1000}) {
            for (const bool decimal : {true, false}) {
                const CStepLadder ladder = stepLadder(decimal, kilo);
                ASSERT_EQ(findStep(ladder, max), plainStep(ladder, max)) << max;
            }
        }
    }
}

TEST(DifferentOrder, IsSeenOnceTheSmallerNumberIsBelowOneKilo)
{
    EXPECT_FALSE(isDifferentOrder(500, 1023, kKilo1024));
    EXPECT_TRUE(isDifferentOrder(500, 1024, kKilo1024));
    EXPECT_TRUE(isDifferentOrder(500, 1000, kKilo1000));
    EXPECT_TRUE(isDifferentOrder(512000, 1746567, kKilo1024));
    EXPECT_FALSE(isDifferentOrder(1024, 1048575, kKilo1024));
}

TEST(DifferentOrder, DoesNotDependOnTheOrderOfTheNumbers)
{
    EXPECT_TRUE(isDifferentOrder(2000, 3, kKilo1024));
    EXPECT_TRUE(isDifferentOrder(3, 2000, kKilo1024));
}

TEST(DifferentOrder, OfNegativeNumbersIsNone)
{
    EXPECT_FALSE(isDifferentOrder(1, -5000, kKilo1024));
    EXPECT_FALSE(isDifferentOrder(kLeast, 1, kKilo1000));
}

TEST(DataStep, IsAPowerOfTwoWhereTheDecimalOneCrossesAKilo)
{
    EXPECT_EQ(findDataStep(37, kKilo1024), 10);
    EXPECT_EQ(findDataStep(80, kKilo1024), 20);
    EXPECT_EQ(findDataStep(1234567, kKilo1024), 262144);
    EXPECT_EQ(findDataStep(1234567, kKilo1000), 500000);
}

TEST(DataStep, OfAllNegativeDataIsOne)
{
    EXPECT_EQ(findDataStep(-100, kKilo1024), 1);
    EXPECT_EQ(findDataStep(kLeast, kKilo1000), 1);
}

TEST(DataStep, DoesNotWrapNearTheGreatestValue)
{
    EXPECT_EQ(findDataStep(kGreatest, kKilo1024), 2LL << 60);
    EXPECT_EQ(findDataStep(kGreatest, kKilo1000), 2000000000000000000);
}

TEST(AddSaturated, StopsAtBothEnds)
{
    EXPECT_EQ(addSaturated(2, 3), 5);
    EXPECT_EQ(addSaturated(kGreatest, 1), kGreatest);
    EXPECT_EQ(addSaturated(kLeast, -1), kLeast);
    EXPECT_EQ(addSaturated(kLeast, kGreatest), -1);
}

} // namespace
} // namespace tovangl
