// SPDX-License-Identifier: MIT
/// @file
/// Measures texts as the painter of a picture draws them.
#ifndef TOVANGL_TEXT_CTEXTMEASURER_H
#define TOVANGL_TEXT_CTEXTMEASURER_H

#include "text/text_fitting.h"

#include <QFont>
#include <QHash>
#include <QRectF>
#include <QString>

class QPainter;

namespace tovangl {

/// How a text is set.
struct CTextStyle
{
    bool isBold = false;
    bool isShortFromLeft = false; ///< a long text is cut at its beginning, not at its end
};

/// Measures texts on the painter's device and in its font, plain or bold. It serves one rendering,
/// and caches the widths of the ellipsis and of single characters, which every shortening needs.
///
/// A picture for a display of high density is laid out like the one at scale 1. Its measurer
/// measures in the font of that one, and magnifies: the same letters in twice the size are not
/// twice as wide, because each is as wide as whole pixels.
class CTextMeasurer
{
public:
    /// @param painter        active, with the chart's font set; it must outlive the measurer
    /// @param magnification  by which all results are larger than texts in that font
    explicit CTextMeasurer(QPainter& painter, int magnification = 1);
    Q_DISABLE_COPY(CTextMeasurer)

    /// The extent of a text at the origin, one line for each line break. Only
    /// cdraw::measuredPart() counts.
    [[nodiscard]] QRectF boundingRect(const QString& text, bool isBold);
    /// How much wider than measured a painted text of that width can be, in pixels.
    [[nodiscard]] double slack(double width) const;
    /// Height of one line in the plain font, in pixels.
    [[nodiscard]] int fontHeight() const;
    /// Whether a text fits into a width, in pixels, in full or shortened.
    [[nodiscard]] bool canShorten(const QString& text, double width, const CTextStyle& style);
    /// The text shortened to a width, in pixels; the text itself where no cut of it fits.
    [[nodiscard]] QString shortened(const QString& text, double width, const CTextStyle& style);

private:
    // One weight of the font, with its cached widths.
    struct CFace
    {
        QFont font;
        QHash<QString, double> shortWidths;
    };

    [[nodiscard]] CFace& face(bool isBold) { return isBold ? m_bold : m_plain; }
    [[nodiscard]] double width(const QString& text, CFace& face);
    // Measures in a face. While it is in use, the painter has the face's font.
    [[nodiscard]] cdraw::TextMeasure measureIn(CFace& face);

    QPainter& m_painter;
    int m_magnification;
    CFace m_plain;
    CFace m_bold;
};

} // namespace tovangl

#endif
