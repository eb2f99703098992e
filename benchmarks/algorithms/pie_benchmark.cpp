// SPDX-License-Identifier: MIT
// How fast a circle is shared out, and labels are moved apart.
#include "algorithms/random_values.h"
#include "layout/CZoneArranger.h"
#include "layout/slice_angles.h"

#include <benchmark/benchmark.h>

namespace tovangl {
namespace {

void shareCircle(benchmark::State& state)
{
    constexpr int kHalfTurn = 2880; // sixteenths of a degree
    const std::vector<long long> values = bench::randomValues(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(computeSliceAngles(values, -kHalfTurn, -1));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(shareCircle)->RangeMultiplier(10)->Range(10, 100000)->Complexity(benchmark::oN);

// Labels of one half of a pie, all of which collide. The range has room for all, or for ten.
void moveLabelsApart(benchmark::State& state)
{
    constexpr double kRadius = 200;
    constexpr double kHeight = 14;
    const auto count = static_cast<std::size_t>(state.range(0));
    const double places = state.range(1) ? 10.0 : static_cast<double>(count) + 1;
    const double bottom = places * kHeight / 2;
    for (auto _ : state) {
        CZoneArranger arranger({-bottom, bottom}, kHeight);
        for (std::size_t i = 0; i < count; ++i)
            arranger.addZoneBack(i, 0);
        benchmark::DoNotOptimize(arranger.arrange(kRadius));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(moveLabelsApart)
    ->ArgNames({"labels", "mostHidden"})
    ->ArgsProduct({benchmark::CreateRange(10, 100000, 10), {0, 1}})
    ->Complexity(benchmark::oN);

} // namespace
} // namespace tovangl
