// SPDX-License-Identifier: MIT
/// @file
/// Paints placed texts.
#ifndef TOVANGL_PAINT_TEXT_PAINTING_H
#define TOVANGL_PAINT_TEXT_PAINTING_H

class QPainter;

namespace tovangl {

struct CPlacedText;

/// Paints a text in the painter's font, plain or bold. The painter's state is restored.
void paintText(QPainter& painter, const CPlacedText& text);

} // namespace tovangl

#endif
