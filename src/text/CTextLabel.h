// SPDX-License-Identifier: MIT
/// @file
/// One text of a chart with its extent.
#ifndef TOVANGL_TEXT_CTEXTLABEL_H
#define TOVANGL_TEXT_CTEXTLABEL_H

#include "text/CTextMeasurer.h"

#include <QRect>

namespace tovangl {

/// A text that was measured when it was made: its extent is known wherever it is placed.
class CTextLabel
{
public:
    /// An empty text.
    CTextLabel() = default;
    CTextLabel(const QString& text, const CTextStyle& style, CTextMeasurer& measurer);

    [[nodiscard]] const QString& getText() const { return m_text; }
    [[nodiscard]] const CTextStyle& style() const { return m_style; }
    /// The text's extent at the origin.
    [[nodiscard]] const QRectF& getBoundingRect() const { return m_boundingRect; }
    /// The whole pixels that the extent touches.
    [[nodiscard]] QRect wholePixelRect() const { return m_boundingRect.toAlignedRect(); }
    /// Whether the text fits into the width, in pixels, in full or shortened.
    [[nodiscard]] bool canFit(double width, CTextMeasurer& measurer) const;
    /// What is painted into that width, in pixels: the text, shortened if it does not fit. If no
    /// cut fits either, the full text.
    [[nodiscard]] QString getAdjustedText(double width, CTextMeasurer& measurer) const;

private:
    QString m_text;
    CTextStyle m_style;
    QRectF m_boundingRect;
};

} // namespace tovangl

#endif
