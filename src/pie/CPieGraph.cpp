// SPDX-License-Identifier: MIT
// The pie chart: its settings and what it owns.
#include "pie/CPieGraph.h"

#include "pie/CPieTextLabel.h"

#include <QtDebug>

namespace tovangl {

CPieGraph::CPieGraph(bool background)
    : m_options(RemoveLabelOverlaps | ShowSizes)
    , m_background(background)
    , m_labelLineColor(Qt::black)
{}

CPieGraph::~CPieGraph()
{
    clearPrivate();
}

void CPieGraph::clear()
{
    // The labels point to the items.
    clearPrivate();
    CPieBase::clear();
}

void CPieGraph::clearPrivate()
{
    qDeleteAll(m_labels);
    m_labels.clear();
}

QColor CPieGraph::getPieOutlineColor() const
{
    if (m_pieOutlineColor.isValid())
        return m_pieOutlineColor;
    return m_outputDevice == PrinterDevice ? QColor(64, 64, 64) : QColor(255, 255, 255);
}

QColor CPieGraph::getLabelLineColor() const
{
    return m_labelLineColor.isValid() ? m_labelLineColor : getPieOutlineColor();
}

void CPieGraph::debugLabels() const
{
    qDebug("debugLabels()");
    qDebug("------------");
    for (const CPieTextLabel* label : m_labels)
        qDebug("%s", label->debug().toUtf8().constData());
}

} // namespace tovangl
