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

TEST(SvgPath, TellsTheWayWhereThatIsShorterThanThePlace)
{
    EXPECT_EQ(CSvgPath().move(300.5, 200.5).line(310.5, 195.25).across(292.5).down(204).text(),
              "M300.5 200.5l10-5.25h-18V204");
    constexpr bool kClockwise = true;
    EXPECT_EQ(CSvgPath().move(199.99, 120.5).arc(8, 8, kClockwise, 201.5, 119.25).text(),
              "M199.99 120.5a8 8 0 0 1 1.51-1.25");
}

TEST(SvgPath, DoesNotAddUpWhatIsRoundedOff)
{
    CSvgPath path;
    path.move(1000.004, 0);
    for (int i = 1; i <= 3; ++i)
        path.across(1000.004 + i * 0.004);
    EXPECT_EQ(path.text(), "M1000 0h.01h0h.01"); // 1000.008, 1000.012 and 1000.016
}

TEST(SvgPath, DrawsArcsOfUpToHalfATurnEitherWay)
{
    constexpr bool kClockwise = true;
    EXPECT_EQ(CSvgPath().arc(10, 20, kClockwise, 3, 4).text(), "A10 20 0 0 1 3 4");
    EXPECT_EQ(CSvgPath().arc(10, 20, !kClockwise, -3, 4).text(), "A10 20 0 0 0-3 4");
}

} // namespace
} // namespace tovangl
