// SPDX-License-Identifier: MIT
// The line that tells how far a batch has come.
#include "tovangl-chart/batch_progress.h"

#include <gmock/gmock.h>

namespace tovangl::program {
namespace {

using std::chrono::seconds;
using ::testing::EndsWith;

TEST(BatchProgress, TellsChartsSpeedAndErrors)
{
    EXPECT_EQ(progressText({1000, 0, 1, 5}, seconds(4), std::nullopt),
              "1000 charts, 250 a second, 1 error");
    EXPECT_EQ(progressText({1, 3, 0, 5}, seconds(2), std::nullopt),
              "1 chart, 0 a second, 3 there already, 0 errors");
}

TEST(BatchProgress, TellsTheTimeThatIsLeftWhereTheSizeIsKnown)
{
    EXPECT_EQ(progressText({8, 0, 0, 10}, seconds(4), 100),
              "8 charts, 2 a second, 0 errors, 0:36 left");
    EXPECT_EQ(progressText({8, 0, 0, 1}, seconds(8), 1000),
              "8 charts, 1 a second, 0 errors, 2:13:12 left");
}

TEST(BatchProgress, TellsWholeMinutesAndHours)
{
    constexpr std::uintmax_t kSize = 100;
    const auto halfDoneAfter = [=](seconds time) {
        return progressText({0, 1, 0, kSize / 2}, time, kSize);
    };
    EXPECT_THAT(halfDoneAfter(seconds(10)), EndsWith("1 there already, 0 errors, 0:10 left"));
    EXPECT_THAT(halfDoneAfter(seconds(60)), EndsWith(" 1:00 left"));
    EXPECT_THAT(halfDoneAfter(seconds(3600)), EndsWith(" 1:00:00 left"));
    EXPECT_THAT(progressText({1, 0, 0, kSize}, seconds(1), kSize), EndsWith(" 0:00 left"));
}

TEST(BatchProgress, KnowsNoSpeedBeforeTheFirstMoment)
{
    EXPECT_EQ(progressText({0, 0, 0, 0}, seconds(0), 100), "0 charts, 0 errors");
}

} // namespace
} // namespace tovangl::program
