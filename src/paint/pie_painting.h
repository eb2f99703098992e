// SPDX-License-Identifier: MIT
/// @file
/// Paints a pie.
#ifndef TOVANGL_PAINT_PIE_PAINTING_H
#define TOVANGL_PAINT_PIE_PAINTING_H

class QPainter;

namespace tovangl {

struct CPieLayout;

/// Paints a pie as laid out; nothing if it does not fit. The painter must have the chart's font,
/// and its state is restored.
void paintPie(QPainter& painter, const CPieLayout& layout);

} // namespace tovangl

#endif
