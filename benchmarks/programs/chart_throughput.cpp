// SPDX-License-Identifier: MIT
// Prints how many charts a number of threads draws together in a time. Arguments: those of a case,
// THREADS, START (the time of day in seconds, for processes that start together) and MILLISECONDS.
#include "programs/draw_chart.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <thread>

namespace {

using namespace tovangl;

using Clock = std::chrono::system_clock;

void drawUntil(Clock::time_point end, const bench::CChartCase& chart, std::atomic<long>& charts)
{
    while (Clock::now() < end) {
        bench::drawChart(*bench::makeChart(chart), chart);
        ++charts;
    }
}

} // namespace

int main(int count, char** arguments)
{
    const bench::CChartCase chart = bench::readChartCase(count, arguments);
    const long threads = bench::numberArgument(count, arguments, bench::kCaseArguments);
    const Clock::time_point start(
        std::chrono::seconds(bench::numberArgument(count, arguments, bench::kCaseArguments + 1)));
    const Clock::time_point end = start + std::chrono::milliseconds(bench::numberArgument(
                                              count, arguments, bench::kCaseArguments + 2));

    std::atomic<long> charts{0};
    std::vector<std::thread> workers;
    for (long i = 0; i < threads; ++i)
        workers.emplace_back([&] {
            bench::drawChart(*bench::makeChart(chart), chart);
            std::this_thread::sleep_until(start);
            drawUntil(end, chart, charts);
        });
    for (std::thread& worker : workers)
        worker.join();
    std::printf("%ld\n", charts.load());
    return 0;
}
