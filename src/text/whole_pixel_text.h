// SPDX-License-Identifier: MIT
/// @file
/// Text measured and drawn with ascent and descent each rounded up to whole pixels.
///
/// Qt rounded up to version 5; Qt 6 keeps the fractions, which would move texts by a pixel. These
/// functions lay out a text line by line as the painter does, and round where Qt 5 rounded.
#ifndef TOVANGL_TEXT_WHOLE_PIXEL_TEXT_H
#define TOVANGL_TEXT_WHOLE_PIXEL_TEXT_H

class QPainter;
class QRectF;
class QString;
class QTextOption;

namespace tovangl {
namespace qt {

/// Height of one line of the painter's font, in pixels.
[[nodiscard]] int wholePixelFontHeight(const QPainter& painter);

/// The text's extent at the rectangle's top-left corner, one line for each line break.
[[nodiscard]] QRectF measureWholePixelText(const QPainter& painter, const QRectF& rect,
                                           const QString& text);

/// Draws the text into the rectangle, aligned and wrapped by the option, clipped where it is
/// larger.
void drawWholePixelText(QPainter& painter, const QRectF& rect, const QString& text,
                        const QTextOption& option);

} // namespace qt
} // namespace tovangl

#endif
