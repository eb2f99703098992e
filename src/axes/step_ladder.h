// SPDX-License-Identifier: MIT
/// @file
/// The tick step of a value scale, chosen from a ladder of round numbers.
#ifndef TOVANGL_AXES_STEP_LADDER_H
#define TOVANGL_AXES_STEP_LADDER_H

#include "core/CKilo.h"

#include <vector>

namespace tovangl {

/// Candidate steps in ascending order. After the last one the ladder goes on with every entry
/// multiplied by the multiplier, then by its square, and so on.
struct CStepLadder
{
    std::vector<long long> entries;
    int multiplier = 1;
};

/// The ladder for a kilo.
///
/// @param decimal  round decimal numbers inside a kilo of 1024, else powers of two; a kilo of 1000
///                 has one ladder for both
[[nodiscard]] CStepLadder stepLadder(bool decimal, const CKilo& kilo);

/// The first step of a ladder that is greater than a sixth of the greatest value. Values below 6,
/// negative ones too, give the first entry.
[[nodiscard]] long long findStep(const CStepLadder& ladder, long long max);

/// Whether two numbers need different unit prefixes.
[[nodiscard]] bool isDifferentOrder(long long a, long long b, const CKilo& kilo);

/// The step for data with this greatest value: decimal where all numbers of the scale share one
/// unit prefix, else a power of two, so that a kilo of 1024 is a multiple of it.
[[nodiscard]] long long findDataStep(long long max, const CKilo& kilo);

/// The sum, or the greatest 64-bit value where it does not fit.
[[nodiscard]] long long addSaturated(long long a, long long b);

} // namespace tovangl

#endif
