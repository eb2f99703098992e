// SPDX-License-Identifier: MIT
// How fast a scale finds its steps and ticks, and an axis thins its labels out.
#include "layout/label_thinning.h"
#include "layout/step_ladder.h"
#include "layout/tick_list.h"
#include "layout/value_scale.h"

#include <benchmark/benchmark.h>

namespace tovangl {
namespace {

void findStep(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(findDataStep(state.range(0), kKilo1024));
}
BENCHMARK(findStep)->Arg(37)->Arg(1234567)->Arg(INT64_MAX);

void listPositiveTicks(benchmark::State& state)
{
    const CDataRange data{0, state.range(0)};
    const CTickRules rules;
    const long long step = findDataStep(data.max, kKilo1024);
    for (auto _ : state)
        benchmark::DoNotOptimize(positiveTicks(step, data, rules, kKilo1024));
}
BENCHMARK(listPositiveTicks)->Arg(780)->Arg(1234567);

// Data without a value above zero has a tick for every unit.
void listNegativeTicks(benchmark::State& state)
{
    const CDataRange data{-state.range(0), -1};
    const CTickRules rules;
    for (auto _ : state)
        benchmark::DoNotOptimize(negativeTicks(1, data, rules));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(listNegativeTicks)->RangeMultiplier(10)->Range(10, 100000)->Complexity(benchmark::oN);

void placeValue(benchmark::State& state)
{
    const CValueScale scale{-1000, 1000000, 0, 399};
    for (auto _ : state)
        benchmark::DoNotOptimize(scale.coord(123456));
}
BENCHMARK(placeValue);

// Ticks that stand too close to each other up to a thousandth of the labels.
void thinLabels(benchmark::State& state)
{
    const CLabelRun labels{state.range(0), 14, 400};
    const int firstFarEnough = static_cast<int>(state.range(0) / 1000);
    const auto isFarEnough = [firstFarEnough](int step) { return step >= firstFarEnough; };
    for (auto _ : state)
        benchmark::DoNotOptimize(findThinningStep(labels, isFarEnough));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(thinLabels)->RangeMultiplier(10)->Range(10, 100000)->Complexity();

} // namespace
} // namespace tovangl
