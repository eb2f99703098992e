// SPDX-License-Identifier: MIT
/// @file
/// Text measured and drawn with ascent and descent each rounded up to whole pixels.
///
/// Qt rounded up to version 5; Qt 6 keeps the fractions, which would move texts by a pixel. These
/// functions lay out a text line by line as the painter does, and round where Qt 5 rounded.
#ifndef TOVANGL_TEXT_WHOLE_PIXEL_TEXT_H
#define TOVANGL_TEXT_WHOLE_PIXEL_TEXT_H

#include <QPointF>
#include <QString>

#include <vector>

class QFont;
class QPainter;
class QRectF;
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

/// A line of a text, without the white space at its end.
struct CTextLine
{
    QString text;
    QPointF start; ///< the left end of its baseline
    double width = 0;
    bool isRightToLeft = false;
};

struct CTextLines
{
    std::vector<CTextLine> lines;
    bool isCut = false; ///< whether the rectangle cuts the text off
};

/// The lines that drawWholePixelText() draws with a painter of that font.
[[nodiscard]] CTextLines wholePixelLines(const QFont& font, const QRectF& rect, const QString& text,
                                         const QTextOption& option);

} // namespace qt
} // namespace tovangl

#endif
