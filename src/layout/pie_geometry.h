// SPDX-License-Identifier: MIT
/// @file
/// Where the pie and its ring of labels stand in the picture.
#ifndef TOVANGL_LAYOUT_PIE_GEOMETRY_H
#define TOVANGL_LAYOUT_PIE_GEOMETRY_H

#include "base/circle_geometry.h"

#include <QRectF>

namespace tovangl {

/// The line that leads to a label, and the gap between it and the text; pixels before scaling.
inline constexpr int kLabelLineLength = 18;
inline constexpr int kLabelGap = 3;
inline constexpr int kLabelDistance = kLabelLineLength + kLabelGap;
static_assert(kLabelDistance == 21);

/// The pie's diameter, as a fraction of the square in which it and its label beams are laid out.
inline constexpr double kPieShareOfArea = 0.87;

/// The widest label gets this part of the picture's width: one fifth.
inline constexpr double kLabelsAcrossPicture = 5.0;

/// What a pie is fitted into.
struct CPieFrame
{
    int width = 0; ///< image pixels
    int height = 0;
    int margin = 0; ///< pixels before scaling
    int scale = 1;

    [[nodiscard]] int scaledMargin() const;
    /// No label is laid out wider than this.
    [[nodiscard]] double labelWidthCap() const { return width / kLabelsAcrossPicture; }
};

/// The radius at which a label of that width just stays inside the frame.
///
/// @param directionX  horizontal component of the unit vector from the centre toward the label
[[nodiscard]] double radiusForLabel(const CPieFrame& frame, double labelWidth, double directionX);

/// The square inside a rectangle: the longer side is cut to the shorter one, and the square is
/// centred in the picture along it.
[[nodiscard]] QRectF squareArea(const CPieFrame& frame, const QRectF& rect);

/// The pie itself, centred in its area.
[[nodiscard]] QRectF pieRectIn(const QRectF& area);

/// Whether the picture has room for a pie between labels of that size.
[[nodiscard]] bool isRoomForPie(const CPieFrame& frame, const QSizeF& labelSize);

/// The half of the pie on which an angle lies: right from -90 degrees up to, but not including, +90
/// degrees.
///
/// @param arc  sixteenths of a degree, counter-clockwise from three o'clock, at most half a turn
[[nodiscard]] constexpr bool isRightHalf(int arc)
{
    return arc >= -cdraw::kQuarterCircle && arc < cdraw::kQuarterCircle;
}

} // namespace tovangl

#endif
