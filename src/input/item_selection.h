// SPDX-License-Identifier: MIT
/// @file
/// Which items a chart draws: those whose share of the total reaches the threshold.
#ifndef TOVANGL_INPUT_ITEM_SELECTION_H
#define TOVANGL_INPUT_ITEM_SELECTION_H

#include "base/wide_integer.h"
#include "input/CGraph1dItem.h"
#include "input/CLeftOut.h"

#include <cstddef>
#include <vector>

namespace tovangl {

/// Adds up magnitudes and computes shares of the sum. The sum is exact for any number of values.
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

/// The rule of bar charts: the magnitude of every value counts. If all values are 0, every item is
/// drawn at threshold 0 and none at any other.
[[nodiscard]] bool isBarChosen(long long value, const CShareOfTotal& shares, double threshold);

/// The rule of pies: only values above 0 are drawn, although the magnitudes of the others belong to
/// the total.
[[nodiscard]] bool isSliceChosen(long long value, const CShareOfTotal& shares, double threshold);

/// The choice for one rendering.
struct CItemSelection
{
    std::vector<std::size_t> items; ///< positions among all items, ascending
    double threshold = 0.0; ///< as applied: per cent, negative only if it was not applied at all
    CLeftOut leftOut;       ///< of a pie, only the values above 0
};

[[nodiscard]] CItemSelection selectBars(const std::vector<CGraph1dItem>& items, double threshold);
[[nodiscard]] CItemSelection selectSlices(const std::vector<CGraph1dItem>& items, double threshold);

} // namespace tovangl

#endif
