// SPDX-License-Identifier: MIT
/// @file
/// Moves rectangles without leaving the range of their numbers.
#ifndef TOVANGL_AXES_MOVED_RECTANGLE_H
#define TOVANGL_AXES_MOVED_RECTANGLE_H

#include "core/pixel_arithmetic.h"

#include <QRect>

namespace tovangl {

/// The rectangle moved by an offset; each edge stays in the range of an int.
[[nodiscard]] inline QRect movedRectangle(const QRect& rect, const QPoint& offset)
{
    return QRect(QPoint(addPixels(rect.left(), offset.x()), addPixels(rect.top(), offset.y())),
                 QPoint(addPixels(rect.right(), offset.x()), addPixels(rect.bottom(), offset.y())));
}

} // namespace tovangl

#endif
