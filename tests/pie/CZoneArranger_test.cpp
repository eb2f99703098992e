// SPDX-License-Identifier: MIT
// Moves the labels of one half of a pie apart.
#include "pie/CTestLabels.h"
#include "pie/CZoneArranger.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace tovangl {
namespace {

constexpr double kSlot = 10;
constexpr double kRadius = 100;

// Labels of the right half, added from top to bottom.
class ZoneArranger : public testing::Test
{
protected:
    void arrange(const std::vector<double>& heights, double min = -200, double max = 200,
                 double radius = kRadius)
    {
        CZoneArranger arranger(nullptr, min, max, kSlot);
        for (const double y : heights)
            arranger.addZoneBack(&labels.addAtHeight(y));
        arranger.arrange(radius);
    }
    [[nodiscard]] std::vector<double> heights()
    {
        std::vector<double> result;
        for (std::size_t i = 0; i < labels.size(); ++i)
            result.push_back(labels[i].lineEnd().y());
        return result;
    }
    [[nodiscard]] std::vector<bool> hidden()
    {
        std::vector<bool> result;
        for (std::size_t i = 0; i < labels.size(); ++i)
            result.push_back(labels[i].isHidden());
        return result;
    }
    // The elbow of these labels is the pie's centre, so their lines end where they were moved to.
    // They were 18 pixels long at first.
    [[nodiscard]] double xOf(std::size_t index) { return labels[index].lineEnd().x() - 18; }

    CTestLabels labels;
};

using Heights = std::vector<double>;
using Hidden = std::vector<bool>;

TEST_F(ZoneArranger, DoesNothingWithoutLabels)
{
    arrange({});
    EXPECT_EQ(labels.size(), 0u);
}

TEST_F(ZoneArranger, ListsItsZonesForDiagnosis)
{
    CZoneArranger arranger(nullptr, -200, 200, kSlot);
    for (const double y : {-50, 0, 4})
        arranger.addZoneBack(&labels.addAtHeight(y));
    arranger.arrange(kRadius);
    testing::internal::CaptureStderr();
    arranger.debugZones();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "debugZones()\n"
                                                      "0: avg -50, weight 1\n"
                                                      "1: avg 2, weight 0\n"
                                                      "parent zone: avg 0\nparent zone: avg 4\n");
}

TEST_F(ZoneArranger, KeepsTheHeightOfLabelsThatAreApart)
{
    CZoneArranger arranger(nullptr, -200, 200, kSlot);
    arranger.addZoneBack(&labels.addAtHeight(-40));
    arranger.addZoneBack(&labels.addAtHeight(30));
    const double before = labels[0].labelPos().y();
    arranger.arrange(kRadius);
    // The labels' own position is added once more: they moved there from their elbow at 0.
    EXPECT_EQ(labels[0].labelPos().y(), before - 40);
    EXPECT_EQ(heights(), (Heights{-80, 60}));
}

TEST_F(ZoneArranger, MovesLabelsOntoTheCircleSidewaysToo)
{
    arrange({-60, 80});
    EXPECT_EQ(xOf(0), 80);
    EXPECT_EQ(xOf(1), 60);
}

TEST_F(ZoneArranger, PutsLabelsOfTheLeftHalfOnTheLeftOfTheCircle)
{
    CZoneArranger arranger(nullptr, -200, 200, kSlot);
    arranger.addZoneBack(&labels.addAtHeight(60, CTestLabels::kNineOClock));
    arranger.arrange(kRadius);
    EXPECT_EQ(labels[0].lineEnd().x(), -18 - 80);
}

TEST_F(ZoneArranger, PutsLabelsBeyondTheCircleInItsMiddle)
{
    arrange({150});
    EXPECT_EQ(xOf(0), 0);
}

TEST_F(ZoneArranger, MergesLabelsExactlyOneSlotApart)
{
    // Touching at the bottom of the range, they are pulled up into it together; apart, each would
    // stay where it is.
    arrange({191, 201}, -200, 200);
    EXPECT_EQ(heights(), (Heights{191 + 185, 201 + 195}));
}

TEST_F(ZoneArranger, NeverCorrectsALabelOfItsOwn)
{
    arrange({190, 201}, -200, 200);
    EXPECT_EQ(heights(), (Heights{190 + 190, 201 + 201}));
}

TEST_F(ZoneArranger, PushesABlockDownToTheTopOfTheRange)
{
    arrange({-99, -97}, -100, 100);
    EXPECT_EQ(heights(), (Heights{-99 - 95, -97 - 85}));
}

TEST_F(ZoneArranger, HidesTheTopmostUntilTheRestFitsStrictly)
{
    arrange({0, 1, 2, 3, 4}, 0, 40);
    EXPECT_EQ(hidden(), (Hidden{true, true, false, false, false}));
}

TEST_F(ZoneArranger, HidesTheLightestFirst)
{
    CZoneArranger arranger(nullptr, 0, 30, kSlot);
    for (const int priority : {3, 1, 2, 1})
        arranger.addZoneBack(&labels.addAtHeight(0, CTestLabels::kThreeOClock, priority));
    arranger.arrange(kRadius);
    EXPECT_EQ(hidden(), (Hidden{false, true, false, true}));
}

TEST_F(ZoneArranger, HidesAllWhereThereIsNoRange)
{
    arrange({0, 1}, 5, 5);
    EXPECT_EQ(hidden(), (Hidden{true, true}));
}

TEST_F(ZoneArranger, AddsAtTheFrontAboveAllOthers)
{
    CZoneArranger arranger(nullptr, -200, 200, kSlot);
    arranger.addZoneFront(&labels.addAtHeight(2));
    arranger.addZoneFront(&labels.addAtHeight(0));
    arranger.arrange(kRadius);
    EXPECT_EQ(heights(), (Heights{2 + 6, 0 - 4}));
}

TEST_F(ZoneArranger, SpreadsAHundredThousandLabelsInStepWithTheirNumber)
{
    constexpr int kCount = 100000;
    CZoneArranger arranger(nullptr, -1e7, 1e7, kSlot);
    for (int i = 0; i < kCount; ++i)
        arranger.addZoneBack(&labels.addAtHeight(i * 1e-3));
    arranger.arrange(kRadius);
    EXPECT_FALSE(labels[0].isHidden());
    EXPECT_NEAR(labels[kCount - 1].lineEnd().y() - labels[0].lineEnd().y(),
                (kCount - 1) * (kSlot + 1e-3), 1);
}

TEST_F(ZoneArranger, HidesAHundredThousandLabelsInStepWithTheirNumber)
{
    const std::vector<double> crowd(100000, 0.0);
    arrange(crowd, -200, 200);
    const Hidden flags = hidden();
    EXPECT_EQ(std::count(flags.begin(), flags.end(), false), 39);
}

// Labels that fit the range and start inside it.
TEST_F(ZoneArranger, LeavesArrangedLabelsApartAndInsideTheRange)
{
    std::mt19937 random(71);
    for (int round = 0; round < 500; ++round) {
        labels = CTestLabels();
        Heights places(random() % 39);
        for (double& y : places)
            y = std::uniform_real_distribution<>(-195, 195)(random);
        std::sort(places.begin(), places.end());
        arrange(places);
        double previous = -200 - kSlot / 2;
        for (std::size_t i = 0; i < places.size(); ++i) {
            const double slot = labels[i].lineEnd().y() - places[i];
            ASSERT_GE(slot - previous, kSlot - 1e-9) << "round " << round << ", label " << i;
            ASSERT_LE(slot, 195 + 1e-9);
            previous = slot;
        }
    }
}

} // namespace
} // namespace tovangl
