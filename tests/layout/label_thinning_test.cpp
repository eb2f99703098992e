// SPDX-License-Identifier: MIT
#include "layout/label_thinning.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace tovangl {
namespace {

using ::testing::ElementsAre;

bool always(int)
{
    return true;
}

std::vector<std::int64_t> keptLabels(std::int64_t count, std::int64_t step)
{
    std::vector<std::int64_t> kept;
    for (std::int64_t i = 0; i < count; ++i) {
        if (isLabelKept(i, count, step))
            kept.push_back(i);
    }
    return kept;
}

// The walk as it is told: from the last label backward, keep one, hide step - 1.
std::vector<std::int64_t> walkedBackward(std::int64_t count, std::int64_t step)
{
    std::vector<std::int64_t> kept;
    std::int64_t toHide = 0;
    for (std::int64_t i = count - 1; i >= 0; --i) {
        if (toHide-- > 0)
            continue;
        kept.insert(kept.begin(), i);
        toHide = step - 1;
    }
    return kept;
}

// The rule in floating point, as it is told.
std::int64_t stepInFloatingPoint(const CLabelRun& labels, const DistanceTest& isFarEnough)
{
    const auto count = static_cast<double>(labels.count);
    const auto pitch = static_cast<double>(labels.pitch);
    const auto room = static_cast<double>(labels.room);
    if (room >= pitch * count)
        return 1;
    for (std::int64_t step = 1; step <= labels.count; ++step) {
        const double taken = std::trunc(std::ceil(count / static_cast<double>(step)) * pitch);
        if (taken <= room && isFarEnough(static_cast<int>(step)))
            return step;
    }
    return labels.count + 1;
}

TEST(ThinningStep, IsOneWhereAllLabelsHaveRoom)
{
    EXPECT_EQ(findThinningStep({10, 40, 400}, always), 1);
    EXPECT_EQ(findThinningStep({0, 40, 0}, always), 1);
}

TEST(ThinningStep, DoesNotAskForDistancesWhereAllLabelsHaveRoom)
{
    const DistanceTest never = [](int) { return false; };
    EXPECT_EQ(findThinningStep({10, 40, 400}, never), 1);
}

TEST(ThinningStep, LeavesNoMoreLabelsThanHaveRoom)
{
    EXPECT_EQ(findThinningStep({10, 40, 399}, always), 2);
    EXPECT_EQ(findThinningStep({10, 40, 200}, always), 2);
    EXPECT_EQ(findThinningStep({10, 40, 199}, always), 3);
    EXPECT_EQ(findThinningStep({10, 40, 40}, always), 10);
}

TEST(ThinningStep, LeavesTheLastLabelAloneInARoomSmallerThanOne)
{
    EXPECT_EQ(findThinningStep({10, 40, 39}, always), 11);
    EXPECT_EQ(findThinningStep({10, 40, -500}, always), 11);
    EXPECT_THAT(keptLabels(10, 11), ElementsAre(9));
}

TEST(ThinningStep, GrowsUntilUnequalTicksAreApart)
{
    const DistanceTest fromFour = [](int step) { return step >= 4; };
    EXPECT_EQ(findThinningStep({10, 40, 200}, fromFour), 4);
}

TEST(ThinningStep, IsThatOfTheRuleInFloatingPoint)
{
    std::mt19937 random(4);
    const auto below = [&random](unsigned bound) {
        return static_cast<std::int64_t>(random() % bound);
    };
    for (int i = 0; i < 20000; ++i) {
        const std::int64_t count = below(60);
        const std::int64_t pitch = below(50);
        const std::int64_t room = below(2000) - 100;
        const std::int64_t least = below(12);
        const DistanceTest isFarEnough = [least](int step) { return step >= least; };
        const CLabelRun labels{count, pitch, room};
        ASSERT_EQ(findThinningStep(labels, isFarEnough), stepInFloatingPoint(labels, isFarEnough));
    }
}

TEST(KeptLabels, AreCountedFromTheLastOne)
{
    EXPECT_THAT(keptLabels(10, 2), ElementsAre(1, 3, 5, 7, 9));
    EXPECT_THAT(keptLabels(10, 3), ElementsAre(0, 3, 6, 9));
    EXPECT_THAT(keptLabels(9, 4), ElementsAre(0, 4, 8));
    EXPECT_THAT(keptLabels(3, 1), ElementsAre(0, 1, 2));
    EXPECT_THAT(keptLabels(1, 1), ElementsAre(0));
}

TEST(KeptLabels, AreThoseOfTheWalkBackward)
{
    for (std::int64_t count = 0; count < 40; ++count) {
        for (std::int64_t step = 1; step <= count + 1; ++step)
            ASSERT_EQ(keptLabels(count, step), walkedBackward(count, step)) << count << ' ' << step;
    }
}

} // namespace
} // namespace tovangl
