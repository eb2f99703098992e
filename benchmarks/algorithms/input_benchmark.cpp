// SPDX-License-Identifier: MIT
// How fast the items to draw are chosen.
#include "algorithms/random_values.h"
#include "input/item_selection.h"

#include <benchmark/benchmark.h>

namespace tovangl {
namespace {

void selectItems(benchmark::State& state)
{
    constexpr double kThreshold = 0.001; // per cent
    const std::vector<long long> values = bench::randomValues(state.range(0));
    for (auto _ : state) {
        CShareOfTotal shares;
        for (const long long value : values)
            shares.add(value);
        int chosen = 0;
        for (const long long value : values)
            chosen += isBarChosen(value, shares, kThreshold);
        benchmark::DoNotOptimize(chosen);
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(selectItems)->RangeMultiplier(100)->Range(10, 100000)->Complexity(benchmark::oN);

} // namespace
} // namespace tovangl
