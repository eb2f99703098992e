// SPDX-License-Identifier: MIT
// The tick step of a value scale, chosen from a ladder of round numbers.
#include "layout/step_ladder.h"

#include <algorithm>
#include <limits>

namespace tovangl {

namespace {

constexpr double kMostSteps = 6.0; // steps up to the greatest value

} // namespace

CStepLadder stepLadder(bool decimal, const CKilo& kilo)
{
    if (kilo.base != kKilo1024.base)
        return {{1, 2, 5}, 10};
    if (decimal)
        return {{1, 2, 5, 10, 20, 50, 100, 200, 500}, 1024};
    return {{1, 2, 4, 8, 16, 32, 64, 128, 256, 512}, 1024};
}

long long findStep(const CStepLadder& ladder, long long max)
{
    // The next entry above a sixth of a 64-bit value still fits in 64 bits.
    const double target = static_cast<double>(max) / kMostSteps;
    for (long long factor = 1;; factor *= ladder.multiplier) {
        for (const long long entry : ladder.entries) {
            const long long step = entry * factor;
            if (static_cast<double>(step) > target)
                return step;
        }
    }
}

bool isDifferentOrder(long long a, long long b, const CKilo& kilo)
{
    long long greater = std::max(a, b);
    long long lesser = std::min(a, b);
    while (lesser >= kilo.size) {
        greater /= kilo.size;
        lesser /= kilo.size;
    }
    return greater >= kilo.size;
}

long long findDataStep(long long max, const CKilo& kilo)
{
    const long long step = findStep(stepLadder(true, kilo), max);
    if (isDifferentOrder(step, addSaturated(max, step), kilo))
        return findStep(stepLadder(false, kilo), max);
    return step;
}

long long addSaturated(long long a, long long b)
{
    long long sum = 0;
    if (!__builtin_add_overflow(a, b, &sum))
        return sum;
    return a < 0 ? std::numeric_limits<long long>::min() : std::numeric_limits<long long>::max();
}

} // namespace tovangl
