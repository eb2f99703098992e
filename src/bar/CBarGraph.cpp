// SPDX-License-Identifier: MIT
// The chart of standing bars.
#include "bar/CBarGraph.h"

#include "core/pixel_arithmetic.h"
#include "core/qt_versions.h"

namespace tovangl {

CBarGraph::CBarGraph(bool background)
    : CBarBase(background)
{
    m_horizontalAxisProperties = CAxis::ShowLine | CAxis::ShowLabels | CAxis::HideOverlapped;
    m_verticalAxisProperties =
        CAxis::ShowLine | CAxis::ShowLabels | CAxis::UnitPrefixes | CAxis::HideOverlapped;
}

CBarGraph::~CBarGraph() = default;

bool CBarGraph::isBarLabel() const
{
    return false;
}

void CBarGraph::createAxes(QPainter&)
{
    constexpr int kNoExtraSpace = 0;
    createCategoryAxis(CAxis::LeftToRight, CAxis::Bottom, m_horizontalAxisProperties,
                       m_horizontalAxisTitle);
    createNumberAxis(CAxis::BottomToTop, CAxis::Left, m_verticalAxisProperties, m_verticalAxisTitle,
                     kNoExtraSpace);
}

bool CBarGraph::computeLayout(QPainter& painter)
{
    resetAxisSpaces();
    // Half of the topmost number rises above its grid line.
    const int halfFont = m_selectedItems.empty() ? 0 : (qt::fontHeight(painter) + 1) / 2;
    const int top = m_topAxisSpace + halfFont;
    const int axisWidth =
        getLeftAxisSpace(painter, m_numberAxis.get(), m_height - top - m_bottomAxisSpace);
    const int left = m_leftAxisSpace + axisWidth;
    const int right = m_width - 1 - m_rightAxisSpace;
    const int axisHeight =
        getBottomAxisSpace(painter, m_categoryAxis.get(), m_width - left - m_rightAxisSpace);
    const int bottom = m_height - (m_bottomAxisSpace + axisHeight) - 1;

    m_plotRect = QRect(QPoint(left, top), QPoint(right, bottom));
    if (!m_plotRect.isValid())
        return false;
    m_categoryAxis->fitToRect(painter,
                              QRect(QPoint(left, bottom + 1), QPoint(right, bottom + axisHeight)));
    m_numberAxis->fitToRect(painter, QRect(QPoint(m_leftAxisSpace, top),
                                           QPoint(m_leftAxisSpace + axisWidth - 1, bottom + 1)));
    return true;
}

} // namespace tovangl
