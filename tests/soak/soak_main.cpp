// SPDX-License-Identifier: MIT
// Renders many mixed charts in one process, which must not grow: half of them as PNG pictures, and
// the others as SVG pictures and PDF pages.
//
// soak [--charts N] [--seed-fault memory|descriptor|thread]
// The last line of the output sums up.
#include "soak/process_figures.h"
#include "support/harness_options.h"
#include "support/mixed_charts.h"

#include <chrono>
#include <cstdio>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

namespace tovangl {
namespace {

constexpr unsigned kCharts = 50000;
constexpr unsigned kWarmUp = 1000;    // charts after which nothing may grow any more
constexpr long kAllowedGrowth = 2048; // kilobytes

// What a leak of each kind would look like from outside.
void leak(const std::string& fault)
{
    constexpr std::size_t kLeakedMemory = 65536; // bytes a chart
    static std::vector<std::string> memory;
    static std::vector<int> descriptors;
    static std::size_t threads = 0;
    constexpr std::size_t kFew = 10;
    if (fault == "memory")
        memory.emplace_back(kLeakedMemory, 'x');
    if (fault == "descriptor" && descriptors.size() < kFew)
        descriptors.push_back(::dup(STDERR_FILENO));
    if (fault == "thread" && threads++ < kFew)
        std::thread([] { std::this_thread::sleep_for(std::chrono::hours(1)); }).detach();
}

void renderChart(unsigned number)
{
    constexpr int kWidth = 300;
    constexpr int kHeight = 200;
    constexpr unsigned kForms = 4; // and three kinds of charts, so that each kind takes each form
    if (number % kForms == 0)
        (void)makeMixedChart(number).createSvg(kWidth, kHeight);
    else if (number % kForms == 1)
        (void)makeMixedChart(number).createPdf(kWidth, kHeight);
    else
        (void)renderMixedChart(number);
}

void renderCharts(unsigned first, unsigned end, const std::string& seededFault)
{
    for (unsigned number = first; number < end; ++number) {
        renderChart(number);
        leak(seededFault);
    }
}

int runSoak(const CHarnessOptions& options)
{
    renderCharts(0, kWarmUp, "");
    const CProcessFigures before = readProcessFigures();
    renderCharts(kWarmUp, options.charts, options.seededFault);
    const CProcessFigures after = readProcessFigures();

    const long growth = after.residentKilobytes - before.residentKilobytes;
    const bool isSteady = growth <= kAllowedGrowth &&
                          after.fileDescriptors == before.fileDescriptors &&
                          after.threads == before.threads;
    std::printf("%u mixed charts: resident memory %ld KB after %u and %ld KB at the end, "
                "file descriptors %ld and %ld, threads %ld and %ld\n",
                options.charts, before.residentKilobytes, kWarmUp, after.residentKilobytes,
                before.fileDescriptors, after.fileDescriptors, before.threads, after.threads);
    return options.charts > kWarmUp && isSteady ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace
} // namespace tovangl

int main(int count, char** arguments)
{
    return tovangl::runSoak(tovangl::parseHarnessOptions(count, arguments, tovangl::kCharts));
}
