// SPDX-License-Identifier: MIT
/// @file
/// Moves points and rectangles without leaving the range of their numbers.
#ifndef TOVANGL_BASE_MOVED_RECTANGLE_H
#define TOVANGL_BASE_MOVED_RECTANGLE_H

#include "base/pixel_arithmetic.h"

#include <QRect>

namespace tovangl {

/// The point moved by an offset; each coordinate stays in the range of an int.
[[nodiscard]] inline QPoint movedPoint(const QPoint& point, const QPoint& offset)
{
    return QPoint(addPixels(point.x(), offset.x()), addPixels(point.y(), offset.y()));
}

/// The rectangle moved by an offset; each edge stays in the range of an int.
[[nodiscard]] inline QRect movedRectangle(const QRect& rect, const QPoint& offset)
{
    return QRect(movedPoint(rect.topLeft(), offset), movedPoint(rect.bottomRight(), offset));
}

} // namespace tovangl

#endif
