// SPDX-License-Identifier: MIT
/// @file
/// Straight shapes without antialiasing, filled pixel by pixel instead of stroked as paths.
///
/// A stroked path takes many times as long, and gives the same pixels: a pen of width w covers w /
/// 2 pixels before the coordinate that it runs along and (w - 1) / 2 after it, rounded down.
#ifndef TOVANGL_PAINT_ALIASED_SHAPES_H
#define TOVANGL_PAINT_ALIASED_SHAPES_H

class QColor;
class QPainter;
class QPoint;
class QRect;

namespace tovangl {
namespace cdraw {

/// Draws a filled rectangle with an outline, pixel for pixel as QPainter::drawRects() does with a
/// solid pen with square corners. It fills opaque rectangles inside the picture, and strokes all
/// others; it also strokes if the painter antialiases, rotates or scales, or if the pen has an odd
/// width above 1.
///
/// @param rect          the outline runs along its left and top edge, and one pixel beyond its
///                      right and bottom edge
/// @param outlineWidth  pixels, at least 1
void drawOutlinedRect(QPainter& painter, const QRect& rect, const QColor& fill,
                      const QColor& outline, int outlineWidth);

/// Draws a horizontal or vertical line with square caps, pixel for pixel as QPainter::drawLine()
/// does, under the same conditions. Any other line is stroked.
///
/// @param width  pixels, at least 1
void drawStraightLine(QPainter& painter, const QPoint& from, const QPoint& to, const QColor& color,
                      int width);

} // namespace cdraw
} // namespace tovangl

#endif
