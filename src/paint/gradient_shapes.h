// SPDX-License-Identifier: MIT
/// @file
/// Shapes filled and outlined with gradients.
#ifndef TOVANGL_PAINT_GRADIENT_SHAPES_H
#define TOVANGL_PAINT_GRADIENT_SHAPES_H

class QGradient;
class QPainter;
class QPoint;

namespace tovangl {

struct CPieBackground;

namespace cdraw {

/// Fills the painter's whole window with a rounded rectangle and outlines it.
///
/// The painter stays translated by half the line width each way: save and restore it if that
/// matters.
///
/// @param radius     corner radius in pixels; 0 gives a plain rectangle
/// @param lineWidth  of the outline, in pixels
void drawGradientRoundRect(QPainter& painter, int radius, const QGradient& fill,
                           const QGradient& outline, int lineWidth);

/// Draws a straight line in the colours of the gradient, with square caps.
///
/// @param width  pixels
void drawGradientLine(QPainter& painter, const QPoint& from, const QPoint& to,
                      const QGradient& gradient, int width);

/// Paints the rounded background of a pie over the painter's window.
///
/// @param scale  device pixels for each pixel of the outline and of the corners
void drawGradientBackground(QPainter& painter, const CPieBackground& background, int scale);

} // namespace cdraw
} // namespace tovangl

#endif
