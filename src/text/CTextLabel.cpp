// SPDX-License-Identifier: MIT
// One text of a chart with its extent.
#include "text/CTextLabel.h"

namespace tovangl {

// Deliberate: the text is measured unwrapped, one line for each line break, whatever alignment
// and wrapping it is painted with, because its extent must be known before it is placed.
CTextLabel::CTextLabel(const QString& text, const CTextStyle& style, CTextMeasurer& measurer)
    : m_text(text)
    , m_style(style)
    , m_boundingRect(measurer.boundingRect(text, style.isBold))
{}

bool CTextLabel::canFit(double width, CTextMeasurer& measurer) const
{
    return m_boundingRect.width() <= width || measurer.canShorten(m_text, width, m_style);
}

QString CTextLabel::getAdjustedText(double width, CTextMeasurer& measurer) const
{
    const bool fits = m_boundingRect.width() <= width;
    return cdraw::measuredPart(fits ? m_text : measurer.shortened(m_text, width, m_style));
}

} // namespace tovangl
