// SPDX-License-Identifier: MIT
// The chart of lying bars: what lies behind the bars.
#include "bar/CLabeledBarGraph.h"

#include <QPainter>

namespace tovangl {

void CLabeledBarGraph::drawOnBackground(QPainter& painter)
{
    // Deliberate: no grid lines, and nothing at all in print.
    if (!m_plotRect.isValid() || !hasBackground() || m_outputDevice != ScreenDevice)
        return;
    drawRightBorder(painter);
    painter.setPen(getBackgroundLineBottomColor());
    painter.drawLine(m_plotRect.bottomLeft(), m_plotRect.bottomRight());
}

} // namespace tovangl
