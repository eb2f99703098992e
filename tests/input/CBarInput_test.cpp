// SPDX-License-Identifier: MIT
#include "input/CBarInput.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

TEST(CBarInput, AxesHaveThePropertiesOfTheirKind)
{
    const CBarInput standing(BarKind::Standing, false);
    EXPECT_EQ(int(standing.horizontalAxis.properties), 131);
    EXPECT_EQ(int(standing.verticalAxis.properties), 163);
    const CBarInput lying(BarKind::Lying, false);
    EXPECT_EQ(int(lying.horizontalAxis.properties), 4097);
    EXPECT_EQ(int(lying.verticalAxis.properties), 131);
}

TEST(CBarInput, HasNothingElseSet)
{
    const CBarInput input(BarKind::Standing, true);
    EXPECT_TRUE(input.settings.hasBackground);
    EXPECT_EQ(input.position, QPoint(kFreePosition, kFreePosition));
    EXPECT_EQ(input.barWidth, 0);
    EXPECT_FALSE(input.settings.colors.text.isValid());
    EXPECT_TRUE(input.items.empty());
    EXPECT_TRUE(input.horizontalAxis.title.isEmpty() && input.verticalAxis.title.isEmpty());
}

} // namespace
} // namespace tovangl
