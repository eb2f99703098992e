// SPDX-License-Identifier: MIT
// Moves the labels of one half of a pie apart, as the plain form does to the last bit.
#include "layout/CZoneArranger.h"
#include "layout/plain_zones.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace tovangl {
namespace {

constexpr double kSlot = 10;
constexpr double kRadius = 100;
constexpr CZoneRange kRange{-200, 200};

using Heights = std::vector<double>;
using Hidden = std::vector<bool>;
using Places = std::vector<std::optional<QPointF>>;

// Where the labels come to stand, in the order of their numbers.
Places placesOf(CZoneArranger& arranger, std::size_t count, double radius = kRadius)
{
    Places places(count);
    for (const CArrangedLabel& arranged : arranger.arrange(radius))
        places.at(arranged.label) = arranged.place;
    return places;
}

// Labels that are added from top to bottom.
Places arrange(const Heights& heights, const CZoneRange& range = kRange, double slot = kSlot)
{
    CZoneArranger arranger(range, slot);
    for (std::size_t i = 0; i < heights.size(); ++i)
        arranger.addZoneBack(i, heights[i]);
    return placesOf(arranger, heights.size());
}

// Of labels none of which is hidden.
Heights heightsOf(const Places& places)
{
    Heights heights;
    for (const auto& place : places)
        heights.push_back(place.value().y());
    return heights;
}

Hidden hiddenOf(const Places& places)
{
    Hidden hidden;
    for (const auto& place : places)
        hidden.push_back(!place);
    return hidden;
}

TEST(ZoneArranger, DoesNothingWithoutLabels)
{
    CZoneArranger arranger(kRange, kSlot);
    EXPECT_TRUE(arranger.arrange(kRadius).empty());
}

TEST(ZoneArranger, TellsEveryLabelOnce)
{
    CZoneArranger arranger({0, 40}, kSlot);
    for (std::size_t i = 0; i < 6; ++i)
        arranger.addZoneBack(i, 7);
    std::vector<std::size_t> told;
    for (const CArrangedLabel& label : arranger.arrange(kRadius))
        told.push_back(label.label);
    std::sort(told.begin(), told.end());
    EXPECT_EQ(told, (std::vector<std::size_t>{0, 1, 2, 3, 4, 5}));
}

TEST(ZoneArranger, KeepsTheHeightOfLabelsThatAreApart)
{
    EXPECT_EQ(heightsOf(arrange({-40, 30})), (Heights{-40, 30}));
}

TEST(ZoneArranger, MovesLabelsOntoTheCircleSideways)
{
    const Places places = arrange({-60, 80});
    EXPECT_EQ(places[0]->x(), 80);
    EXPECT_EQ(places[1]->x(), 60);
}

TEST(ZoneArranger, PutsLabelsBeyondTheCircleInItsMiddle)
{
    EXPECT_EQ(arrange({150})[0], QPointF(0, 150));
}

TEST(ZoneArranger, MergesLabelsExactlyOneSlotApart)
{
    // Touching at the bottom of the range, they are pulled up into it together; apart, each would
    // stay where it is.
    EXPECT_EQ(heightsOf(arrange({191, 201})), (Heights{185, 195}));
}

TEST(ZoneArranger, NeverCorrectsALabelOfItsOwn)
{
    EXPECT_EQ(heightsOf(arrange({190, 201})), (Heights{190, 201}));
}

TEST(ZoneArranger, PushesABlockDownToTheTopOfTheRange)
{
    EXPECT_EQ(heightsOf(arrange({-99, -97}, {-100, 100})), (Heights{-95, -85}));
}

TEST(ZoneArranger, HidesTheTopmostUntilTheRestFitsStrictly)
{
    EXPECT_EQ(hiddenOf(arrange({0, 1, 2, 3, 4}, {0, 40})),
              (Hidden{true, true, false, false, false}));
}

TEST(ZoneArranger, HidesAllWhereThereIsNoRange)
{
    EXPECT_EQ(hiddenOf(arrange({0, 1}, {5, 5})), (Hidden{true, true}));
}

TEST(ZoneArranger, AddsAtTheFrontAboveAllOthers)
{
    CZoneArranger arranger(kRange, kSlot);
    arranger.addZoneFront(0, 2);
    arranger.addZoneFront(1, 0);
    EXPECT_EQ(heightsOf(placesOf(arranger, 2)), (Heights{6, -4}));
}

// They become one zone of two others, over and over, as deep as there are labels.
TEST(ZoneArranger, SpreadsHalfAMillionLabelsInStepWithTheirNumber)
{
    constexpr int kCount = 500000;
    Heights heights(kCount);
    for (int i = 0; i < kCount; ++i)
        heights[static_cast<std::size_t>(i)] = i * 1e-3;
    const Places places = arrange(heights, {-1e7, 1e7});
    EXPECT_NEAR(places.back().value().y() - places.front().value().y(), (kCount - 1) * kSlot, 1);
}

TEST(ZoneArranger, HidesAHundredThousandLabelsInStepWithTheirNumber)
{
    const Hidden hidden = hiddenOf(arrange(Heights(100000, 0.0)));
    EXPECT_EQ(std::count(hidden.begin(), hidden.end(), false), 39);
}

// Labels that fit the range and start inside it.
TEST(ZoneArranger, LeavesArrangedLabelsApartAndInsideTheRange)
{
    std::mt19937 random(71);
    for (int round = 0; round < 500; ++round) {
        Heights heights(random() % 39);
        for (double& y : heights)
            y = std::uniform_real_distribution<>(-195, 195)(random);
        std::sort(heights.begin(), heights.end());
        double previous = kRange.min - kSlot / 2;
        for (const double y : heightsOf(arrange(heights))) {
            ASSERT_GE(y - previous, kSlot - 1e-9) << "round " << round;
            previous = y;
        }
        ASSERT_LE(previous, kRange.max - kSlot / 2 + 1e-9) << "round " << round;
    }
}

struct CArrangement
{
    CZoneRange range;
    double slot = kSlot;
    std::vector<CPlainLabel> labels;
};

class CRandomArrangement
{
public:
    explicit CRandomArrangement(unsigned seed)
        : m_random(seed)
    {}

    [[nodiscard]] CArrangement make()
    {
        CArrangement result;
        const double max = oneOf({20, 100, 1000});
        result.range = {oneOf({-max, -max, 0, max + 30}), max};
        result.slot = oneOf({10, 13.7, 1, 0.1, 0});
        result.labels.resize(m_random() % 70);
        const int style = static_cast<int>(m_random() % 5);
        for (CPlainLabel& label : result.labels)
            label.y = height(style, max, result.slot);
        if (m_random() % 5 != 0)
            std::sort(result.labels.begin(), result.labels.end(),
                      [](const CPlainLabel& a, const CPlainLabel& b) { return a.y < b.y; });
        return result;
    }

private:
    double oneOf(std::initializer_list<double> values)
    {
        return *std::next(values.begin(), static_cast<long>(m_random() % values.size()));
    }
    double uniform(double from, double to)
    {
        return std::uniform_real_distribution<>(from, to)(m_random);
    }
    // Spread out, crowded at either end, in whole slots that touch, in clusters, all the same.
    double height(int style, double max, double slot)
    {
        switch (style) {
        case 0:
            return uniform(-max, max);
        case 1:
            return oneOf({-1, 1}) * (max - uniform(0, 3 * slot));
        case 2:
            return static_cast<double>(m_random() % 40) * slot - max / 2;
        case 3:
            return oneOf({-0.9, -0.3, 0.2, 0.7}) * max + uniform(0, slot);
        default:
            return 5;
        }
    }

    std::mt19937 m_random;
};

std::vector<CPlainLabel> plainly(const CArrangement& arrangement, CPlainArranger::Passes passes)
{
    std::vector<CPlainLabel> labels = arrangement.labels;
    CPlainArranger(arrangement.range.min, arrangement.range.max, arrangement.slot, passes)
        .arrange(labels);
    return labels;
}

void expectSame(const CArrangement& arrangement, unsigned seed)
{
    Heights heights;
    for (const CPlainLabel& label : arrangement.labels)
        heights.push_back(label.y);
    const Places places = arrange(heights, arrangement.range, arrangement.slot);
    const auto plain = plainly(arrangement, CPlainArranger::InTurns);
    for (std::size_t i = 0; i < plain.size(); ++i) {
        ASSERT_EQ(!places[i], plain[i].hidden) << "seed " << seed;
        if (!places[i])
            continue;
        ASSERT_EQ(places[i]->y(), plain[i].y) << "seed " << seed;
        ASSERT_EQ(places[i]->x(), circleX(kRadius, plain[i].y)) << "seed " << seed;
    }
}

TEST(ZoneArrangerAgainstPlain, GivesTheSameHeightsAndHidesTheSameLabels)
{
    for (unsigned seed = 0; seed < 6000 && !testing::Test::HasFailure(); ++seed)
        expectSame(CRandomArrangement(seed).make(), seed);
}

// Merging in another order gives the same heights but for their last bits, so only those tell that
// the passes take turns. They do often enough for the test above to notice.
TEST(ZoneArrangerAgainstPlain, WouldNoticePassesThatDoNotTakeTurns)
{
    int differences = 0;
    for (unsigned seed = 0; seed < 1000; ++seed) {
        const CArrangement arrangement = CRandomArrangement(seed).make();
        const auto inTurns = plainly(arrangement, CPlainArranger::InTurns);
        const auto forward = plainly(arrangement, CPlainArranger::ForwardOnly);
        const bool isSame =
            std::equal(inTurns.begin(), inTurns.end(), forward.begin(),
                       [](const CPlainLabel& a, const CPlainLabel& b) { return a.y == b.y; });
        differences += isSame ? 0 : 1;
    }
    EXPECT_GT(differences, 100);
}

} // namespace
} // namespace tovangl
