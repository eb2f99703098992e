// SPDX-License-Identifier: MIT
// The base of the axes of a bar chart: painting line, labels and title.
#include "axes/CAxis.h"
#include "axes/aligned_text_option.h"
#include "axes/moved_rectangle.h"
#include "draw/CPainterSaver.h"
#include "draw/aliased_shapes.h"
#include "labels/CBarTextLabel.h"

namespace tovangl {

void CAxis::draw(QPainter& painter)
{
    const CPainterSaver saver(painter);
    painter.translate(originOnPicture());
    drawLine(painter);
    drawLabels(painter);
    drawTitle(painter);
}

void CAxis::drawLine(QPainter& painter) const
{
    if (!m_properties.testFlag(ShowLine) || m_lineHidden)
        return;
    cdraw::drawStraightLine(painter, QPoint(0, 0), resolveOrientedCoordSigned(m_axisLength, 0),
                            m_lineColor, m_lineWidth);
}

void CAxis::drawLabels(QPainter& painter)
{
    if (!m_properties.testFlag(ShowLabels) || m_labelsHidden)
        return;
    const int firstTick = addPixels(m_axisStart, labelShiftAtBegin());
    const QTextOption option = getTextOption();
    const CPainterSaver saver(painter);
    painter.translate(resolveOrientedCoordSigned(addPixels(firstTick, -halfLabelSigned()),
                                                 getAxisToLabelShift()));
    for (CBarTextLabel* label : m_labels) {
        if (m_lineColor.isValid())
            label->setColor(m_lineColor);
        const QPoint pos = resolveOrientedCoordSigned(label->orientedPos());
        label->draw(painter, movedRectangle(m_labelRect, pos), option);
    }
}

void CAxis::drawTitle(QPainter& painter)
{
    if (!m_properties.testFlag(ShowTitle) || m_titleHidden)
        return;
    const QTextOption option = alignedTextOption(Qt::AlignHCenter | Qt::AlignVCenter);
    const QPoint pos = resolveOrientedCoordSigned(m_titleLabel->orientedPos());
    const CPainterSaver saver(painter);
    // Deliberate: the title keeps its own colour, black, whatever the colour of the line.
    m_titleLabel->draw(painter, movedRectangle(m_titleRect, pos), option);
}

} // namespace tovangl
