// SPDX-License-Identifier: MIT
/// @file
/// The tick step of a value scale, chosen from a ladder of round numbers.
#ifndef TOVANGL_LAYOUT_STEP_LADDER_H
#define TOVANGL_LAYOUT_STEP_LADDER_H

#include "base/CKilo.h"

#include <vector>

namespace tovangl {

/// Candidate steps in ascending order. After the last one the ladder continues with every entry
/// times the multiplier, then times its square, and so on.
struct CStepLadder
{
    std::vector<long long> entries;
    int multiplier = 1;
};

/// The ladder for a kilo.
///
/// @param decimal  true for round decimal numbers, false for powers of two; a kilo of 1000 has the
///                 same ladder for both
[[nodiscard]] CStepLadder stepLadder(bool decimal, const CKilo& kilo);

/// The first step of a ladder that is greater than a sixth of the greatest value. A greatest value
/// below 6, including a negative one, gives the first entry.
[[nodiscard]] long long findStep(const CStepLadder& ladder, long long max);

/// Whether two numbers need different unit prefixes.
[[nodiscard]] bool isDifferentOrder(long long a, long long b, const CKilo& kilo);

/// The step for data with this greatest value: a decimal step if all numbers of the scale share one
/// unit prefix, otherwise a power of two, which divides a kilo of 1024.
[[nodiscard]] long long findDataStep(long long max, const CKilo& kilo);

/// The sum, or the greatest 64-bit value if the sum overflows.
[[nodiscard]] long long addSaturated(long long a, long long b);

} // namespace tovangl

#endif
