// SPDX-License-Identifier: MIT
// Draws many different charts and prints how large the process was on the way: "EARLY LATE HEAP".
// EARLY and LATE are its resident KB after a twentieth of the charts and at the end, HEAP the bytes
// that the heap grew by in between. Argument: CHARTS.
#include "programs/draw_chart.h"
#include "support/heap_meter.h"

#include <cstdio>
#include <fstream>
#include <random>
#include <unistd.h>

namespace {

using namespace tovangl;

using Random = std::minstd_rand;

long between(Random& random, long least, long greatest)
{
    return std::uniform_int_distribution<long>(least, greatest)(random);
}

// Small, so that twenty thousand of them take a minute.
bench::CChartCase randomCase(Random& random)
{
    bench::CChartCase chart;
    chart.kind = static_cast<bench::ChartKind>(between(random, bench::Bars, bench::Pie));
    chart.width = static_cast<int>(between(random, 150, 500));
    chart.height = static_cast<int>(between(random, 100, 300));
    const long items = between(random, 0, 20);
    for (long i = 0; i < items; ++i)
        chart.items.push_back(
            {between(random, -100, 100000), "item " + std::to_string(between(random, 0, 999))});
    return chart;
}

void drawCharts(Random& random, long charts)
{
    for (long i = 0; i < charts; ++i) {
        const bench::CChartCase chart = randomCase(random);
        bench::drawChart(*bench::makeChart(chart), chart);
    }
}

long residentKilobytes()
{
    long total = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

} // namespace

int main(int count, char** arguments)
{
    const long charts = bench::numberArgument(count, arguments, 1);
    const long early = charts / 20;
    Random random;
    drawCharts(random, early);
    const long earlySize = residentKilobytes();
    const long earlyHeap = static_cast<long>(bench::heapBytes());
    drawCharts(random, charts - early);
    std::printf("%ld %ld %ld\n", earlySize, residentKilobytes(),
                static_cast<long>(bench::heapBytes()) - earlyHeap);
    return 0;
}
