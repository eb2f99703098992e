// SPDX-License-Identifier: MIT
/// @file
/// Shapes filled and outlined with gradients.
#ifndef TOVANGL_PAINT_GRADIENT_SHAPES_H
#define TOVANGL_PAINT_GRADIENT_SHAPES_H

class QGradient;
class QPainter;
class QPoint;

namespace tovangl {
namespace cdraw {

/// Fills the painter's whole window with a rounded rectangle and outlines it one pixel wide.
///
/// The painter stays translated by half a pixel each way: save and restore it if that matters.
///
/// @param radius  corner radius in pixels; 0 gives a plain rectangle
void drawGradientRoundRect(QPainter& painter, int radius, const QGradient& fill,
                           const QGradient& outline);

/// Draws a straight line in the colours of the gradient, with square caps.
///
/// @param width  pixels
void drawGradientLine(QPainter& painter, const QPoint& from, const QPoint& to,
                      const QGradient& gradient, int width);

/// Paints the pale blue rounded background, lightest at the bottom, over the painter's window.
void drawDefaultGradientBackground(QPainter& painter);

} // namespace cdraw
} // namespace tovangl

#endif
