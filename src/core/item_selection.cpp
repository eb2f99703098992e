// SPDX-License-Identifier: MIT
// Which items a chart draws.
#include "core/item_selection.h"

namespace tovangl {

double CShareOfTotal::percentOf(long long value) const
{
    return static_cast<double>(magnitudeOf(value)) * 100.0 / static_cast<double>(m_total);
}

bool isBarChosen(long long value, const CShareOfTotal& shares, double threshold)
{
    if (shares.isEmpty())
        return threshold == 0.0;
    return shares.percentOf(value) >= threshold;
}

bool isSliceChosen(long long value, const CShareOfTotal& shares, double threshold)
{
    // Deliberate: negative values shrink every positive share, but are never drawn.
    return value > 0 && shares.percentOf(value) >= threshold;
}

} // namespace tovangl
