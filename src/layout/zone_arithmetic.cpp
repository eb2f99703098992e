// SPDX-License-Identifier: MIT
// Vertical blocks of equally high label slots.
#include "layout/zone_arithmetic.h"

#include <algorithm>
#include <cmath>

namespace tovangl {

double CZoneBlock::top(double slotHeight) const
{
    return avg - count * slotHeight / 2 + shift;
}

double CZoneBlock::bottom(double slotHeight) const
{
    return avg + count * slotHeight / 2 + shift;
}

bool isOverlap(const CZoneBlock& upper, const CZoneBlock& lower, double slotHeight)
{
    return upper.bottom(slotHeight) >= lower.top(slotHeight);
}

CZoneBlock mergeBlocks(const CZoneBlock& upper, const CZoneBlock& lower, double slotHeight,
                       const CZoneRange& range)
{
    CZoneBlock merged;
    merged.count = upper.count + lower.count;
    // The mean ignores the shifts of the two parts.
    merged.avg = (upper.count * upper.avg + lower.count * lower.avg) / merged.count;

    const double size = slotHeight * merged.count;
    const double top = merged.avg - size / 2;
    if (range.min > top)
        merged.shift = range.min - top;
    else if (top + size > range.max)
        merged.shift = range.max - (top + size);
    return merged;
}

std::size_t countSurplusSlots(std::size_t count, double slotHeight, const CZoneRange& range)
{
    const double room = std::fabs(range.max - range.min);
    std::size_t kept = count;
    while (kept > 0 && static_cast<double>(kept) * slotHeight >= room)
        --kept;
    return count - kept;
}

double circleX(double radius, double y)
{
    return std::sqrt(std::max(0.0, radius * radius - y * y));
}

} // namespace tovangl
