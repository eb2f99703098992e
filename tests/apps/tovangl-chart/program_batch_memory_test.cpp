// SPDX-License-Identifier: MIT
// What a batch needs of memory. Under a sanitizer a program needs far more.
#include "apps/support/CProgramTest.h"

#include <gmock/gmock.h>
#include <sstream>

namespace tovangl::program {
namespace {

constexpr const char* kLine =
    R"({"chart": "pie", "id": "a", "width": 400, "height": 300, "items": [{"value": 7}]})";

using LongBatches = CProgramTest;

TEST_F(LongBatches, HoldNoLineThatIsTooLong)
{
    folder.write("line", kLine);
    const ShellResult result =
        shell("ulimit -v 1000000\n{ head -c 1500000000 /dev/zero; echo; cat line; } | "
              "tovangl-chart batch -o p --jobs 1");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              "{\"line\":1,\"id\":null,\"reason\":\"the line has more than 16777216 bytes\"}\n");
    EXPECT_FALSE(folder.read("p/a.png").empty());
}

/// The resident memory of a batch of mixed charts after its first and after its last lines, in KiB.
constexpr const char* kMeasureMemory = R"(
mkfifo in
tovangl-chart batch --tar /dev/null --jobs 2 <in 2>/dev/null &
exec 3>in
lines() {
    seq "$1" "$2" | sed '
        s/.*/"id":"c&","width":120,"height":90,"items":[{"value":&,"caption":"of &"},{"value":7}]}/
        1~3s/^/{"chart":"pie","title":"1",/
        2~3s/^/{"chart":"bars","value_axis":"line,labels",/
        3~3s/^/{"chart":"hbars","theme":"dark",/
        5~99s/}$/oops/'
}
resident() { sleep 1; sed -n 's/^VmRSS:[^0-9]*\([0-9]*\).*/\1/p' /proc/$!/status; }
lines 1 10000 >&3
resident
lines 10001 60000 >&3
resident
)";

TEST_F(LongBatches, KeepTheirMemory)
{
    constexpr long kAllowedGrowth = 2048; // KiB
    std::istringstream output(shell(kMeasureMemory).output);
    long early = 0;
    long late = 0;
    ASSERT_TRUE(output >> early >> late);
    EXPECT_GT(early, 0);
    EXPECT_LE(late - early, kAllowedGrowth);
}

} // namespace
} // namespace tovangl::program
