// SPDX-License-Identifier: MIT
#include "support/color_blindness.h"
#include "support/color_distance.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr std::array<Sight, 3> kDichromats = {Sight::Protanopia, Sight::Deuteranopia,
                                              Sight::Tritanopia};

void expectLight(const CLight& light, double red, double green, double blue)
{
    constexpr double kRounding = 1e-5;
    EXPECT_NEAR(light.red, red, kRounding);
    EXPECT_NEAR(light.green, green, kRounding);
    EXPECT_NEAR(light.blue, blue, kRounding);
}

TEST(ColorBlindness, LeavesGreysAsTheyAre)
{
    for (const Sight sight : kSights) {
        for (const QColor& grey : {QColor(Qt::black), QColor(128, 128, 128), QColor(Qt::white)}) {
            const double light = lightOf(grey).red;
            expectLight(seenBy(sight, grey), light, light, light);
        }
    }
}

TEST(ColorBlindness, OfNoKindLeavesColoursAsTheyAre)
{
    expectLight(seenBy(Sight::Full, QColor(255, 0, 255)), 1, 0, 1);
}

TEST(ColorBlindness, MixesPureColoursByThePublishedMatrices)
{
    expectLight(seenBy(Sight::Protanopia, QColor(255, 0, 0)), 0.152286, 0.114503, 0);
    expectLight(seenBy(Sight::Deuteranopia, QColor(0, 255, 0)), 0.860646, 0.672501, 0.042940);
    expectLight(seenBy(Sight::Tritanopia, QColor(0, 0, 255)), 0, 0.147602, 0.303900);
}

TEST(ColorBlindness, BringsTheColoursTogetherThatItIsKnownFor)
{
    const QColor olive(140, 130, 40);
    const QColor brick(170, 110, 50);
    const double seen = colorDistance(olive, brick, Sight::Full);
    EXPECT_LT(colorDistance(olive, brick, Sight::Deuteranopia), seen / 2);
    EXPECT_GT(colorDistance(olive, brick, Sight::Tritanopia), seen / 2);
}

TEST(ColorBlindness, KeepsBlackAndWhiteApart)
{
    for (const Sight sight : kDichromats)
        EXPECT_NEAR(colorDistance(Qt::black, Qt::white, sight), 100, 0.1);
}

} // namespace
} // namespace tovangl
