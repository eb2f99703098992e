// SPDX-License-Identifier: MIT
/// @file
/// The pen of axis lines, grid lines and bar outlines.
#ifndef TOVANGL_AXES_AXIS_PEN_H
#define TOVANGL_AXES_AXIS_PEN_H

#include <QBrush>
#include <QPen>

namespace tovangl {

/// A solid pen with square caps and mitred corners.
///
/// @param width  pixels
[[nodiscard]] inline QPen solidPen(const QColor& color, int width)
{
    return QPen(QBrush(color), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
}

} // namespace tovangl

#endif
