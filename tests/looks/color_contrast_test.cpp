// SPDX-License-Identifier: MIT
#include "support/color_contrast.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

TEST(ContrastRatio, GoesFromOneToTwentyOne)
{
    EXPECT_DOUBLE_EQ(contrastRatio(Qt::white, Qt::white), 1);
    EXPECT_DOUBLE_EQ(contrastRatio(Qt::white, Qt::black), 21);
    EXPECT_DOUBLE_EQ(contrastRatio(Qt::black, Qt::white), 21);
}

// The lightest grey that may carry text on white is known to every designer of web pages.
TEST(ContrastRatio, OfGreysOnWhiteIsAsPublished)
{
    EXPECT_NEAR(contrastRatio(QColor("#767676"), Qt::white), 4.54, 0.005);
    EXPECT_NEAR(contrastRatio(QColor("#777777"), Qt::white), 4.48, 0.005);
    EXPECT_NEAR(contrastRatio(QColor("#949494"), Qt::white), 3.03, 0.005);
}

TEST(RelativeLuminance, WeighsGreenMostAndBlueLeast)
{
    EXPECT_DOUBLE_EQ(relativeLuminance(QColor(255, 0, 0)), 0.2126);
    EXPECT_DOUBLE_EQ(relativeLuminance(QColor(0, 255, 0)), 0.7152);
    EXPECT_DOUBLE_EQ(relativeLuminance(QColor(0, 0, 255)), 0.0722);
}

} // namespace
} // namespace tovangl
