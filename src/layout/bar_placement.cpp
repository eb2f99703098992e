// SPDX-License-Identifier: MIT
// How wide bars are and where they stand along a category axis.
#include "layout/bar_placement.h"

#include "base/pixel_arithmetic.h"

#include <algorithm>

namespace tovangl {

namespace {

constexpr double kBarShareOfAxis = 0.7;

} // namespace

int derivedBarWidth(std::int64_t axisPixels, std::int64_t categories)
{
    if (categories <= 0)
        return 0;
    return truncateToInt(kBarShareOfAxis * static_cast<double>(axisPixels) /
                         static_cast<double>(categories));
}

int categoryShift(const CBarRow& bars, int labelExtent)
{
    const std::int64_t free = bars.axisLength - bars.categories * bars.barWidth;
    const double gap = static_cast<double>(std::max(std::int64_t{0}, free)) /
                       static_cast<double>(bars.categories + 1);
    return std::max(truncateToInt(gap + bars.barWidth * 0.5), labelExtent / 2);
}

double categoryPitch(std::int64_t span, std::int64_t categories)
{
    return categories < 2 ? 0.0 : static_cast<double>(span) / static_cast<double>(categories - 1);
}

QRect barRectangle(const CBarExtent& bar, bool isUpright)
{
    const int start = truncateToInt(bar.centre - bar.width * 0.5);
    const int end = clampToInt(std::int64_t{start} + bar.width - 1);
    const int low = std::min(bar.from, bar.to);
    const int high = addPixels(std::max(bar.from, bar.to), -1);
    return isUpright ? QRect(QPoint(start, low), QPoint(end, high))
                     : QRect(QPoint(low, start), QPoint(high, end));
}

} // namespace tovangl
