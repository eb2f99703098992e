// SPDX-License-Identifier: MIT
// One label's slot, or a block of slots made of two zones.
#include "pie/CTestLabels.h"
#include "pie/CZone.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr double kSlot = 10;

// Counts the zones that are alive.
class CCountedZone : public CZone
{
public:
    explicit CCountedZone(CPieTextLabel* label)
        : CZone(label)
    {
        ++alive;
    }
    CCountedZone(CZone* upper, CZone* lower)
        : CZone(upper, lower, kSlot, -1e9, 1e9)
    {
        ++alive;
    }
    ~CCountedZone() override { --alive; }

    static int alive;
};

int CCountedZone::alive = 0;

TEST(Zone, OfALabelIsOneSlotAtTheEndOfItsLine)
{
    CTestLabels labels;
    const CZone zone(&labels.addAtHeight(7.5));
    EXPECT_EQ(zone.avg(), 7.5);
    EXPECT_EQ(zone.count(), 1);
    EXPECT_EQ(zone.block().shift, 0);
    EXPECT_EQ(zone.weight(), 1);
    EXPECT_EQ(zone.label(), &labels[0]);
    EXPECT_FALSE(zone.isMerged());
}

TEST(Zone, MergedKeepsTheUpperPartFirstAndHasNoLabel)
{
    CTestLabels labels;
    auto* upper = new CZone(&labels.addAtHeight(0));
    auto* lower = new CZone(&labels.addAtHeight(4));
    const CZone zone(upper, lower, kSlot, -100, 100);
    EXPECT_TRUE(zone.isMerged());
    EXPECT_EQ(zone.parent1(), upper);
    EXPECT_EQ(zone.parent2(), lower);
    EXPECT_EQ(zone.label(), nullptr);
    EXPECT_EQ(zone.count(), 2);
    EXPECT_EQ(zone.avg(), 2);
}

TEST(Zone, OrdersByWeightAscending)
{
    CTestLabels labels;
    const CZone light(&labels.addAtHeight(0, CTestLabels::kThreeOClock, 1));
    const CZone heavy(&labels.addAtHeight(0, CTestLabels::kThreeOClock, 2));
    EXPECT_TRUE(CZone::compareZones(&light, &heavy));
    EXPECT_FALSE(CZone::compareZones(&heavy, &light));
    EXPECT_FALSE(CZone::compareZones(&light, &light));
}

TEST(Zone, DestroysAllItsParts)
{
    CTestLabels labels;
    CPieTextLabel* label = &labels.addAtHeight(0);
    CZone* left = new CCountedZone(new CCountedZone(label), new CCountedZone(label));
    CZone* right = new CCountedZone(new CCountedZone(label), new CCountedZone(label));
    delete new CCountedZone(left, right);
    EXPECT_EQ(CCountedZone::alive, 0);
}

// Chains of merges to either side, as deep as there are labels.
TEST(Zone, DestroysPartsOfAnyDepthWithoutRecursion)
{
    constexpr int kDepth = 500000;
    CTestLabels labels;
    CPieTextLabel* label = &labels.addAtHeight(0);
    CZone* upperChain = new CCountedZone(label);
    CZone* lowerChain = new CCountedZone(label);
    for (int i = 0; i < kDepth; ++i) {
        upperChain = new CCountedZone(upperChain, new CCountedZone(label));
        lowerChain = new CCountedZone(new CCountedZone(label), lowerChain);
    }
    delete upperChain;
    delete lowerChain;
    EXPECT_EQ(CCountedZone::alive, 0);
}

} // namespace
} // namespace tovangl
