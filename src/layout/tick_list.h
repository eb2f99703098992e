// SPDX-License-Identifier: MIT
/// @file
/// The ticks of a value scale: their values, their number format, and which are hidden.
#ifndef TOVANGL_LAYOUT_TICK_LIST_H
#define TOVANGL_LAYOUT_TICK_LIST_H

#include "base/CKilo.h"
#include "text/number_text.h"

#include <cstdint>
#include <vector>

namespace tovangl {

/// What the ticks depend on.
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

/// A scale that would carry more ticks than this gets a larger step ...
inline constexpr std::int64_t kMostTicks = 100000;
/// ... that leaves at most this many.
inline constexpr std::int64_t kMostTicksOfEnlargedStep = 1000;

/// The format of a positive tick.
///
/// @param higherOrder  the tick needs a different unit prefix from the step
/// @param withinData   the first such tick does not lie above the data
[[nodiscard]] NumberFormat tickFormat(const CTickRules& rules, bool higherOrder, bool withinData);

/// The tick at zero. It shows only if there are values on both sides of it.
[[nodiscard]] CTick zeroTick(const CDataRange& data, const CTickRules& rules);

/// The ticks above zero, in ascending order, up to the first one above the data. None if the end
/// of the scale would not fit in 64 bits.
[[nodiscard]] std::vector<CTick> positiveTicks(long long step, const CDataRange& data,
                                               const CTickRules& rules, const CKilo& kilo);

/// The ticks below zero, in descending order, down to the first one below the data, or to the last
/// one that fits in 64 bits.
[[nodiscard]] std::vector<CTick> negativeTicks(long long step, const CDataRange& data,
                                               const CTickRules& rules);

/// How many ticks a scale carries, including the one at zero.
[[nodiscard]] std::int64_t countTicks(long long step, const CDataRange& data,
                                      const CTickRules& rules);

/// The step itself if the scale then carries at most kMostTicks. Otherwise the step times the
/// smallest of 1, 2, 5, 10, 20, 50, ... that leaves at most kMostTicksOfEnlargedStep. This is
/// needed because the step depends on the greatest value alone, so that a large negative value
/// could call for any number of ticks.
[[nodiscard]] long long boundedStep(long long step, const CDataRange& data,
                                    const CTickRules& rules);

/// All ticks of a scale for the data, in ascending order; at least one.
[[nodiscard]] std::vector<CTick> generateTicks(const CDataRange& data, const CTickRules& rules,
                                               const CKilo& kilo);

} // namespace tovangl

#endif
