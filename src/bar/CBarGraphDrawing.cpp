// SPDX-License-Identifier: MIT
// The chart of standing bars: what lies behind the bars.
#include "bar/CBarGraph.h"

namespace tovangl {

void CBarGraph::drawOnBackground(QPainter& painter)
{
    if (!m_plotRect.isValid())
        return;
    m_numberAxis->drawLabelLines(painter, m_plotRect.width() - m_scale, getBackgroundLineTopColor(),
                                 getBackgroundLineBottomColor());
    if (hasBackground())
        drawRightBorder(painter);
}

} // namespace tovangl
