// SPDX-License-Identifier: MIT
// The chart of lying bars.
#include "bar/CLabeledBarGraph.h"

#include "core/pixel_arithmetic.h"

namespace tovangl {

CLabeledBarGraph::CLabeledBarGraph(bool background)
    : CBarBase(background)
{
    m_horizontalAxisProperties = CAxis::ShowLine | CAxis::ShiftLastLabel;
    m_verticalAxisProperties = CAxis::ShowLine | CAxis::ShowLabels | CAxis::HideOverlapped;
}

CLabeledBarGraph::~CLabeledBarGraph() = default;

bool CLabeledBarGraph::isBarLabel() const
{
    return true;
}

void CLabeledBarGraph::createAxes(QPainter& painter)
{
    initBarLabelBoundingRect(painter);
    // A value has a margin on either side.
    const int labelSpace =
        isBarLabel() ? addPixels(scalePixels(scaledMargin(), 2), m_barLabelRect.width()) : 0;
    createNumberAxis(CAxis::LeftToRight, CAxis::Top, m_horizontalAxisProperties,
                     m_horizontalAxisTitle, labelSpace);
    createCategoryAxis(CAxis::TopToBottom, CAxis::Left, m_verticalAxisProperties,
                       m_verticalAxisTitle);
}

bool CLabeledBarGraph::computeLayout(QPainter& painter)
{
    resetAxisSpaces();
    const int margin = scaledMargin();
    const int axisWidth = getLeftAxisSpace(painter, m_categoryAxis.get(), m_height - 2 * margin);
    const int left = m_leftAxisSpace + axisWidth;
    const int axisHeight =
        getTopAxisSpace(painter, m_numberAxis.get(), m_width - left - margin + 1);
    const int top = axisHeight + m_topAxisSpace;
    const int right = m_width - 1 - margin;
    const int bottom = m_height - 1 - margin;

    m_plotRect = QRect(QPoint(left, top), QPoint(right, bottom));
    if (!m_plotRect.isValid())
        return false;
    // Deliberate: one pixel to the left, so that the scale starts on the vertical axis line.
    m_numberAxis->fitToRect(painter,
                            QRect(QPoint(left - 1, m_topAxisSpace), QPoint(right, top - 1)));
    m_categoryAxis->fitToRect(painter, QRect(QPoint(m_leftAxisSpace, top),
                                             QPoint(m_leftAxisSpace + axisWidth - 1, bottom)));
    return true;
}

} // namespace tovangl
