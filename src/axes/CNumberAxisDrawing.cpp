// SPDX-License-Identifier: MIT
// The value axis of a bar chart: its grid lines.
#include "axes/CNumberAxis.h"
#include "draw/CPainterSaver.h"
#include "draw/aliased_shapes.h"
#include "draw/gradient_shapes.h"
#include "labels/CBarTextLabel.h"

namespace tovangl {

void CNumberAxis::drawLabelLines(QPainter& painter, int length, const QColor& first,
                                 const QColor& last) const
{
    if (length < 0 || m_labels.size() < 2)
        return;
    const CPainterSaver saver(painter);
    painter.translate(originOnPicture());
    const int offset = addPixels(axisStart(), labelShiftAtBegin());
    const double gaps = static_cast<double>(m_labels.size() - 1);
    int drawn = 0;
    for (const CBarTextLabel* label : m_labels) {
        if (label->isHidden())
            continue;
        const int along = signedAlong(addPixels(label->orientedPos().along(), offset));
        // Deliberate: hidden labels count as gaps but draw no line, so that with them the last
        // colour is not reached.
        const QColor color = cdraw::linearInterpolation(first, last, drawn / gaps);
        cdraw::drawStraightLine(painter, COrientedCoord(along, 1).resolve(isHorizontal()),
                                COrientedCoord(along, length).resolve(isHorizontal()), color,
                                lineWidth());
        ++drawn;
    }
}

} // namespace tovangl
