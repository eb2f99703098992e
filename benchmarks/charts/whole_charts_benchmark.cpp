// SPDX-License-Identifier: MIT
// How long whole charts take, from items to PNG bytes.
#include "charts/case_list.h"
#include "programs/draw_chart.h"

#include <benchmark/benchmark.h>

namespace tovangl {
namespace {

using bench::CChartCase;

void wholeChart(benchmark::State& state, const CChartCase& chart, bool background)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(bench::drawChart(*bench::makeChart(chart, background), chart));
}

// The facade and its items are kept, as a host may do.
void drawnAgain(benchmark::State& state, const CChartCase& chart)
{
    const std::unique_ptr<Graph> graph = bench::makeChart(chart);
    for (auto _ : state)
        benchmark::DoNotOptimize(bench::drawChart(*graph, chart));
}

int registerAll()
{
    for (const bench::CNamedCase& named : bench::caseList()) {
        const CChartCase& chart = named.chart;
        benchmark::RegisterBenchmark((named.name + "/plain").c_str(), wholeChart, chart,
                                     bench::kWithoutBackground);
        benchmark::RegisterBenchmark((named.name + "/background").c_str(), wholeChart, chart,
                                     bench::kWithBackground);
        benchmark::RegisterBenchmark((named.name + "/drawnAgain").c_str(), drawnAgain, chart);
    }
    return 0;
}

[[maybe_unused]] const int registered = registerAll();

} // namespace
} // namespace tovangl
