// SPDX-License-Identifier: MIT
// Prints what one warm chart takes from the heap: "PICTURE PNG PEAK" in bytes, where PICTURE is
// four bytes a pixel, and PEAK the most that was in use at a time between adding the first item and
// holding the PNG. Arguments: those of a case.
#include "programs/draw_chart.h"
#include "support/heap_meter.h"

#include <cstdio>

namespace {

using namespace tovangl;

constexpr std::size_t kBytesPerPixel = 4;

std::size_t pictureBytes(const bench::CChartCase& chart)
{
    const int pixels = chart.width * chart.factor * chart.height * chart.factor;
    return kBytesPerPixel * static_cast<std::size_t>(pixels);
}

std::size_t pngBytes(const bench::CChartCase& chart)
{
    return bench::drawChart(*bench::makeChart(chart), chart).size;
}

} // namespace

int main(int count, char** arguments)
{
    const bench::CChartCase chart = bench::readChartCase(count, arguments);
    // Fonts and caches are there from the second chart on.
    const std::size_t png = pngBytes(chart);
    const std::size_t before = bench::heapBytes();
    bench::resetHeapPeak();
    if (pngBytes(chart) != png)
        return 1;
    std::printf("%zu %zu %zu\n", pictureBytes(chart), png, bench::heapPeak() - before);
    return 0;
}
