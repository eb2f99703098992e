// SPDX-License-Identifier: MIT
/// @file
/// The ticks of a value scale: their values, how they are written, and which are hidden.
#ifndef TOVANGL_AXES_TICK_LIST_H
#define TOVANGL_AXES_TICK_LIST_H

#include "core/CKilo.h"
#include "labels/number_text.h"

#include <cstdint>
#include <vector>

namespace tovangl {

/// What the axis shows, as far as its ticks depend on it.
struct CTickRules
{
    bool showLabels = true;
    bool unitPrefixes = false;
    bool endsAtMax = false; ///< the scale ends at the greatest value: no tick above it
};

/// The least and the greatest value of the data.
struct CDataRange
{
    long long min = 0;
    long long max = 0;
};

struct CTick
{
    long long value = 0;
    NumberFormat format = PlainNumber;
    bool isHidden = false;
};

/// A scale that would carry more ticks than this gets a greater step ...
inline constexpr std::int64_t kMostTicks = 100000;
/// ... that leaves at most this many.
inline constexpr std::int64_t kMostTicksOfEnlargedStep = 1000;

/// The format of a positive tick.
///
/// @param higherOrder  the tick needs another unit prefix than the step
/// @param withinData   the first tick of that kind does not lie above the data
[[nodiscard]] NumberFormat tickFormat(const CTickRules& rules, bool higherOrder, bool withinData);

/// The tick at zero. It shows only where there are values on both sides of it.
[[nodiscard]] CTick zeroTick(const CDataRange& data, const CTickRules& rules);

/// The ticks above zero, in ascending order: up to the first one above the data. None where the
/// end of the scale would not fit in 64 bits.
[[nodiscard]] std::vector<CTick> positiveTicks(long long step, const CDataRange& data,
                                               const CTickRules& rules, const CKilo& kilo);

/// The ticks below zero, in descending order: down to the first one below the data, or to the
/// last one that fits in 64 bits.
[[nodiscard]] std::vector<CTick> negativeTicks(long long step, const CDataRange& data,
                                               const CTickRules& rules);

/// How many ticks a scale carries, the one at zero included.
[[nodiscard]] std::int64_t countTicks(long long step, const CDataRange& data,
                                      const CTickRules& rules);

/// The step itself while the scale carries at most kMostTicks. Beyond that, the smallest product
/// with an entry of 1, 2, 5, 10, 20, 50, ... that leaves at most kMostTicksOfEnlargedStep: the step
/// follows the greatest value alone, and a large negative one asks for any number of ticks.
[[nodiscard]] long long boundedStep(long long step, const CDataRange& data,
                                    const CTickRules& rules);

} // namespace tovangl

#endif
