// SPDX-License-Identifier: MIT
/// @file
/// Step, ticks and thinning of a scale in their plainest form: entry by entry, tick by tick, label
/// by label, in integers that nothing overflows. The axes' own forms must give exactly the same.
#ifndef TOVANGL_AXES_PLAIN_SCALE_H
#define TOVANGL_AXES_PLAIN_SCALE_H

#include "base/wide_integer.h"
#include "layout/step_ladder.h"
#include "layout/tick_list.h"

#include <cmath>
#include <cstdlib>
#include <limits>
#include <vector>

namespace tovangl {

/// The walk as it is told: entry by entry, multiplied in place.
inline long long plainStep(const CStepLadder& ladder, long long max)
{
    std::vector<WideInt> entries(ladder.entries.begin(), ladder.entries.end());
    const double target = static_cast<double>(max) / 6.0;
    for (std::size_t i = 0;; i = (i + 1) % entries.size()) {
        if (static_cast<double>(entries[i]) > target)
            return static_cast<long long>(entries[i]);
        entries[i] *= ladder.multiplier;
    }
}

inline std::vector<CTick> plainPositiveTicks(long long step, const CDataRange& data,
                                             const CTickRules& rules, const CKilo& kilo)
{
    constexpr WideInt kGreatest = std::numeric_limits<long long>::max();
    std::vector<CTick> ticks;
    const WideInt end = WideInt{data.max} + step;
    const bool isAllZero = data.min == 0 && data.max == 0;
    if ((!isAllZero && data.max < 1) || end > kGreatest)
        return ticks;
    const bool isFixed =
        kilo.size != 1000 && isDifferentOrder(step, static_cast<long long>(end), kilo);
    bool isHigherOrder = false;
    bool isWithinData = false;
    for (WideInt wide = step; wide <= end; wide += step) {
        const auto value = static_cast<long long>(wide);
        if (value > data.max && rules.endsAtMax)
            continue;
        if (!isFixed && !isHigherOrder && isDifferentOrder(step, value, kilo)) {
            isHigherOrder = true;
            isWithinData = value <= data.max;
        }
        const bool isFromTen = isFixed || (isHigherOrder && isWithinData);
        const NumberFormat prefixed = isFromTen ? PrefixedFromTen : PrefixedWhole;
        ticks.push_back({value, rules.unitPrefixes ? prefixed : PlainNumber, !rules.showLabels});
    }
    return ticks;
}

inline std::vector<CTick> plainNegativeTicks(long long step, const CDataRange& data,
                                             const CTickRules& rules)
{
    constexpr WideInt kLeast = std::numeric_limits<long long>::min();
    std::vector<CTick> ticks;
    if (data.min >= 0)
        return ticks;
    const WideInt end = WideInt{data.min} - step;
    for (WideInt wide = -WideInt{step}; wide >= end && wide >= kLeast; wide -= step)
        ticks.push_back({static_cast<long long>(wide),
                         rules.unitPrefixes ? PrefixedWhole : PlainNumber, !rules.showLabels});
    return ticks;
}

/// Which labels of a crowded axis stay, given where each one's tick stands.
inline std::vector<bool> plainlyKeptLabels(const std::vector<int>& ticks, int pitch, long long room)
{
    const std::size_t count = ticks.size();
    std::vector<bool> isKept(count, true);
    const auto wanted = static_cast<double>(pitch) * static_cast<double>(count);
    if (static_cast<double>(room) >= wanted)
        return isKept;
    const auto isFarEnough = [&](std::size_t k) {
        return k >= count || pitch <= std::fabs(1.0 * ticks[0] - 1.0 * ticks[k]);
    };
    std::size_t step = 1;
    for (; step <= count; ++step) {
        const double kept = std::ceil(static_cast<double>(count) / static_cast<double>(step));
        if (static_cast<long long>(kept * pitch) <= room && isFarEnough(step))
            break;
    }
    for (std::size_t fromEnd = 0; fromEnd < count; ++fromEnd)
        isKept[count - 1 - fromEnd] = fromEnd % step == 0;
    return isKept;
}

} // namespace tovangl

#endif
