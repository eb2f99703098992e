// SPDX-License-Identifier: MIT
// The pie chart, painted.
#include "draw/CPainterSaver.h"
#include "draw/CShortTextWidths.h"
#include "draw/gradient_shapes.h"
#include "pie/CPieGraph.h"
#include "pie/CPieTextLabel.h"

#include <QPainter>
#include <QPen>

namespace tovangl {

void CPieGraph::drawContents(QPainter& painter)
{
    const CPainterSaver saver(painter);
    const cdraw::CShortTextWidths widths;
    if (!computeLayout(painter))
        return;
    drawBackground(painter);
    drawPies(painter);
    debugDraw(painter);
    drawLabels(painter);
    m_isDrawn = true;
}

void CPieGraph::drawBackground(QPainter& painter)
{
    // Deliberate: the half-pixel translation of the background stays in force for what follows.
    if (m_background && m_outputDevice == ScreenDevice)
        cdraw::drawDefaultGradientBackground(painter);
}

void CPieGraph::drawPies(QPainter& painter)
{
    m_drawnPieRect = painter.worldTransform().mapRect(m_pieRect);
    painter.setPen(
        QPen(QBrush(getPieOutlineColor()), m_scale, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    const bool isWholeDisc = m_selectedItems.size() == 1; // drawn without a seam
    for (const CPieBaseItem* item : m_selectedItems) {
        painter.setBrush(QBrush(getOutputDeviceColor(item->color())));
        if (isWholeDisc)
            painter.drawEllipse(m_pieRect);
        else
            painter.drawPie(m_pieRect, item->startAngle(), item->spanAngle());
    }
}

void CPieGraph::drawLabels(QPainter& painter)
{
    const CPainterSaver saver(painter);
    painter.translate(m_area.center());
    for (CPieTextLabel* label : m_labels)
        label->draw(painter);
}

} // namespace tovangl
