// SPDX-License-Identifier: MIT
// The label of a slice, painted.
#include "pie/CPieTextLabel.h"

#include <QPainter>
#include <QPen>
#include <QTextOption>
#include <QVector>

namespace tovangl {

namespace {

// Widths in pixels before scaling.
constexpr double kBeamWidth = 1.2;
constexpr double kTextLineWidth = 0.6;

// Dash and gap of the dotted beam, in pen widths.
constexpr double kBeamDash = 0.3;
constexpr double kBeamGap = 2.5;

QPen makeLinePen(const QColor& color, double width)
{
    return QPen(QBrush(color), width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
}

QVector<qreal> beamDashPattern()
{
    QVector<qreal> pattern;
    pattern << kBeamDash << kBeamGap;
    return pattern;
}

} // namespace

void CPieTextLabel::draw(QPainter& painter)
{
    setItemRect(painter, getBoundingRectAdjustedToGraphBoundary());
    if (m_hidden)
        return;
    drawBeamLine(painter);
    drawTextLine(painter);
    drawParts(painter);
}

void CPieTextLabel::drawBeamLine(QPainter& painter) const
{
    QPen pen = makeLinePen(m_lineColor, kBeamWidth * m_scale);
    pen.setDashPattern(beamDashPattern());
    painter.setPen(pen);
    painter.drawLine(m_beamStart, m_elbow);
}

void CPieTextLabel::drawTextLine(QPainter& painter) const
{
    painter.setPen(makeLinePen(m_lineColor, kTextLineWidth * m_scale));
    painter.drawLine(m_elbow, m_lineEnd);
}

void CPieTextLabel::drawParts(QPainter& painter)
{
    // The alignment is set, not given to the constructor, which would fix the direction of reading
    // from left to right. Deliberate: it is the side alone; texts hang from the top.
    QTextOption option;
    option.setAlignment(isOnRightHalf() ? Qt::AlignLeft : Qt::AlignRight);
    const CParts parts = placeParts(painter);
    m_nameLabel->draw(painter, parts.name, option);
    // Deliberate: the extent of the whole text replaces what the name recorded on the item.
    setItemRect(painter, m_rect.translated(parts.origin));
    if (m_canDrawSizeLabel)
        m_sizeLabel->draw(painter, parts.size, option);
}

} // namespace tovangl
