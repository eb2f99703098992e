// SPDX-License-Identifier: MIT
/// @file
/// Which items a chart draws: those whose share of the total reaches the threshold.
#ifndef TOVANGL_CORE_ITEM_SELECTION_H
#define TOVANGL_CORE_ITEM_SELECTION_H

#include "core/wide_integer.h"

namespace tovangl {

/// Adds up magnitudes and tells shares of the sum. The sum is exact for any number of values.
class CShareOfTotal
{
public:
    void add(long long value) { m_total += magnitudeOf(value); }

    [[nodiscard]] bool isEmpty() const { return m_total == 0; }

    /// The value's magnitude in per cent of the total, which must not be empty.
    [[nodiscard]] double percentOf(long long value) const;

private:
    WideUnsigned m_total = 0;
};

/// The rule of bar charts: every value takes part by its magnitude. Where all values are 0, every
/// item is drawn at threshold 0 and none at any other.
[[nodiscard]] bool isBarChosen(long long value, const CShareOfTotal& shares, double threshold);

/// The rule of pies: only values above 0 are drawn, although the magnitudes of the others belong to
/// the total.
[[nodiscard]] bool isSliceChosen(long long value, const CShareOfTotal& shares, double threshold);

} // namespace tovangl

#endif
