// SPDX-License-Identifier: MIT
// The arranger against the plain form that it replaces: equal to the last bit.
#include "pie/CTestLabels.h"
#include "pie/CZoneArranger.h"
#include "pie/plain_zones.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace tovangl {
namespace {

constexpr double kRadius = 90;

struct CArrangement
{
    double min = -100;
    double max = 100;
    double height = 10;
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
        result.max = oneOf({20, 100, 1000});
        result.min = oneOf({-result.max, -result.max, 0, result.max + 30});
        result.height = oneOf({10, 13.7, 1, 0.1, 0});
        result.labels.resize(m_random() % 70);
        const int style = static_cast<int>(m_random() % 5);
        for (CPlainLabel& label : result.labels)
            label.y = height(style, result);
        if (m_random() % 5 != 0)
            std::sort(result.labels.begin(), result.labels.end(),
                      [](const CPlainLabel& a, const CPlainLabel& b) { return a.y < b.y; });
        if (m_random() % 3 == 0) {
            for (CPlainLabel& label : result.labels)
                label.weight = static_cast<double>(1 + m_random() % 3);
        }
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
    double height(int style, const CArrangement& range)
    {
        switch (style) {
        case 0:
            return uniform(-range.max, range.max);
        case 1:
            return oneOf({-1, 1}) * (range.max - uniform(0, 3 * range.height));
        case 2:
            return static_cast<double>(m_random() % 40) * range.height - range.max / 2;
        case 3:
            return oneOf({-0.9, -0.3, 0.2, 0.7}) * range.max + uniform(0, range.height);
        default:
            return 5;
        }
    }

    std::mt19937 m_random;
};

void plainly(CArrangement& arrangement, CPlainArranger::Passes passes)
{
    CPlainArranger(arrangement.min, arrangement.max, arrangement.height, passes)
        .arrange(arrangement.labels);
}

void expectSame(CArrangement arrangement, unsigned seed)
{
    CTestLabels labels;
    CZoneArranger arranger(nullptr, arrangement.min, arrangement.max, arrangement.height);
    for (const CPlainLabel& plain : arrangement.labels) {
        CPieTextLabel& label = labels.addAtHeight(
            plain.y, seed % 2 ? CTestLabels::kNineOClock : CTestLabels::kThreeOClock,
            static_cast<int>(plain.weight));
        arranger.addZoneBack(&label);
    }
    plainly(arrangement, CPlainArranger::InTurns);

    std::vector<QPointF> expected;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const CPlainLabel& plain = arrangement.labels[i];
        expected.push_back(plain.hidden ? labels[i].lineEnd()
                                        : arrangedLineEnd(labels[i], plain.y, kRadius));
    }
    arranger.arrange(kRadius);
    for (std::size_t i = 0; i < labels.size(); ++i) {
        ASSERT_EQ(labels[i].isHidden(), arrangement.labels[i].hidden) << "seed " << seed;
        ASSERT_EQ(labels[i].lineEnd().x(), expected[i].x()) << "seed " << seed;
        ASSERT_EQ(labels[i].lineEnd().y(), expected[i].y()) << "seed " << seed;
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
        CArrangement inTurns = CRandomArrangement(seed).make();
        CArrangement forward = inTurns;
        plainly(inTurns, CPlainArranger::InTurns);
        plainly(forward, CPlainArranger::ForwardOnly);
        const bool isSame =
            std::equal(inTurns.labels.begin(), inTurns.labels.end(), forward.labels.begin(),
                       [](const CPlainLabel& a, const CPlainLabel& b) { return a.y == b.y; });
        differences += isSame ? 0 : 1;
    }
    EXPECT_GT(differences, 100);
}

} // namespace
} // namespace tovangl
