// SPDX-License-Identifier: MIT
/// @file
/// Data for the benchmarks, the same in every run.
#ifndef TOVANGL_BENCHMARKS_ALGORITHMS_RANDOM_VALUES_H
#define TOVANGL_BENCHMARKS_ALGORITHMS_RANDOM_VALUES_H

#include <cstdint>
#include <random>
#include <vector>

namespace tovangl {
namespace bench {

/// Values from 1 to 1,000,000.
[[nodiscard]] inline std::vector<long long> randomValues(std::int64_t count)
{
    std::minstd_rand random;
    std::uniform_int_distribution<long long> value(1, 1000000);
    std::vector<long long> values;
    for (std::int64_t i = 0; i < count; ++i)
        values.push_back(value(random));
    return values;
}

} // namespace bench
} // namespace tovangl

#endif
