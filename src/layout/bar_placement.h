// SPDX-License-Identifier: MIT
/// @file
/// How wide bars are and where they stand along a category axis.
#ifndef TOVANGL_LAYOUT_BAR_PLACEMENT_H
#define TOVANGL_LAYOUT_BAR_PLACEMENT_H

#include <QRect>

#include <cstdint>

namespace tovangl {

/// The width with which bars fill 70 % of the axis, in pixels; 0 without categories.
///
/// @param axisPixels  pixels that the axis covers
[[nodiscard]] int derivedBarWidth(std::int64_t axisPixels, std::int64_t categories);

/// The bars of a category axis.
struct CBarRow
{
    std::int64_t categories = 0;
    std::int64_t axisLength = 0; ///< pixels
    int barWidth = 0;            ///< pixels
};

/// The distance from the ends of the axis to the centres of the outer bars: a gap and half a bar,
/// but at least half a label.
///
/// @param labelExtent  pixels along the axis that a label covers
[[nodiscard]] int categoryShift(const CBarRow& bars, int labelExtent);

/// The distance between neighbouring categories in pixels; 0 if there are fewer than two.
///
/// @param span  pixels from the first category to the last
[[nodiscard]] double categoryPitch(std::int64_t span, std::int64_t categories);

/// A bar's place on its axis.
struct CBarExtent
{
    double centre = 0; ///< along the category axis
    int width = 0;     ///< along the category axis
    int from = 0;      ///< along the value axis; either end can be the greater
    int to = 0;
};

/// The rectangle of a bar.
///
/// @param isUpright  the category axis is horizontal
[[nodiscard]] QRect barRectangle(const CBarExtent& bar, bool isUpright);

} // namespace tovangl

#endif
