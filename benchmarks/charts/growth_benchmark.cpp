// SPDX-License-Identifier: MIT
// How the cost of a chart grows with its items, its axis labels and its captions.
#include "programs/draw_chart.h"

#include <benchmark/benchmark.h>

namespace tovangl {
namespace {

using bench::CChartCase;
using bench::ChartKind;

constexpr int kWidth = 800;
constexpr int kHeight = 600;

CChartCase chartOf(ChartKind kind, std::int64_t items)
{
    CChartCase chart;
    chart.kind = kind;
    chart.width = kWidth;
    chart.height = kHeight;
    for (long i = 0; i < items; ++i)
        chart.items.push_back({1 + i * 7919 % 1000, "item " + std::to_string(i)});
    return chart;
}

void timeCharts(benchmark::State& state, const CChartCase& chart)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(bench::drawChart(*bench::makeChart(chart), chart));
    state.SetComplexityN(state.range(0));
}

void growingBars(benchmark::State& state)
{
    timeCharts(state, chartOf(bench::Bars, state.range(0)));
}

void growingLyingBars(benchmark::State& state)
{
    timeCharts(state, chartOf(bench::LyingBars, state.range(0)));
}

void growingPie(benchmark::State& state)
{
    timeCharts(state, chartOf(bench::Pie, state.range(0)));
}

void growingItems(benchmark::State& state)
{
    const CChartCase chart = chartOf(bench::Bars, state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(bench::makeChart(chart));
    state.SetComplexityN(state.range(0));
}

// Data without a value above zero has a label for every unit, for zero, and for one unit more.
void growingAxisLabels(benchmark::State& state)
{
    constexpr long kOtherLabels = 2;
    CChartCase chart = chartOf(bench::Bars, 2);
    chart.items[0].value = -1;
    chart.items[1].value = kOtherLabels - state.range(0);
    timeCharts(state, chart);
}

void growingBarCaptions(benchmark::State& state)
{
    CChartCase chart = chartOf(bench::Bars, 12);
    for (bench::CCaseItem& item : chart.items)
        item.caption = std::string(static_cast<std::size_t>(state.range(0)), 'x');
    timeCharts(state, chart);
}

void growingPieCaptions(benchmark::State& state)
{
    CChartCase chart = chartOf(bench::Pie, 8);
    for (bench::CCaseItem& item : chart.items)
        item.caption = std::string(static_cast<std::size_t>(state.range(0)), 'x');
    timeCharts(state, chart);
}

constexpr int kFactor = 10;
constexpr std::int64_t kFewest = 10;
constexpr std::int64_t kMost = 100000;
constexpr std::int64_t kLongestCaption = 1000000;

BENCHMARK(growingBars)->RangeMultiplier(kFactor)->Range(kFewest, kMost);
BENCHMARK(growingLyingBars)->RangeMultiplier(kFactor)->Range(kFewest, kMost);
BENCHMARK(growingPie)->RangeMultiplier(kFactor)->Range(kFewest, kMost);
BENCHMARK(growingItems)->RangeMultiplier(kFactor)->Range(kFewest, kMost);
BENCHMARK(growingAxisLabels)->RangeMultiplier(kFactor)->Range(kFewest, kMost);
BENCHMARK(growingBarCaptions)->RangeMultiplier(kFactor)->Range(kFewest, kLongestCaption);
BENCHMARK(growingPieCaptions)->RangeMultiplier(kFactor)->Range(kFewest, kLongestCaption);

} // namespace
} // namespace tovangl
