// SPDX-License-Identifier: MIT
/// @file
/// A slice of an ellipse as a polygon.
#ifndef TOVANGL_LAYOUT_SLICE_OUTLINE_H
#define TOVANGL_LAYOUT_SLICE_OUTLINE_H

#include <QPointF>
#include <QRectF>

#include <vector>

namespace tovangl {
namespace cdraw {

/// The greatest distance of an outline's edge from the arc, in pixels.
inline constexpr double kOutlineError = 0.25;

/// The corners of a slice as the painter draws it: the centre, then points on the arc. A slice of a
/// full turn has no corner at the centre. Empty if the ellipse or the slice has no extent, an edge
/// lies beyond a billion pixels, or a number is not finite.
///
/// @param ellipse      its bounding box
/// @param start, span  degrees counter-clockwise from three o'clock; a negative span runs
///                     clockwise, and one beyond a full turn is a full turn
[[nodiscard]] std::vector<QPointF> outlineSlice(const QRectF& ellipse, double start, double span);

} // namespace cdraw
} // namespace tovangl

#endif
