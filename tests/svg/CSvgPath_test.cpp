// SPDX-License-Identifier: MIT
// The commands of a path.
#include "svg/CSvgPath.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

TEST(SvgPath, SeparatesNumbersOnlyWhereTheyWouldRunTogether)
{
    EXPECT_EQ(CSvgPath().move(1.5, -2).line(-3, .25).across(7).down(-8).close().text(),
              "M1.5-2L-3 .25H7V-8Z");
}

TEST(SvgPath, DrawsArcsOfUpToHalfATurnEitherWay)
{
    constexpr bool kClockwise = true;
    EXPECT_EQ(CSvgPath().arc(10, 20, kClockwise, 3, 4).text(), "A10 20 0 0 1 3 4");
    EXPECT_EQ(CSvgPath().arc(10, 20, !kClockwise, -3, 4).text(), "A10 20 0 0 0-3 4");
}

} // namespace
} // namespace tovangl
