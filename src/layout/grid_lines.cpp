// SPDX-License-Identifier: MIT
// The grid lines of a value axis.
#include "layout/grid_lines.h"

#include "base/moved_rectangle.h"
#include "layout/device_colors.h"

namespace tovangl {

std::vector<CStraightLine> drawLabelLines(const CAxisLayout& axis, int length,
                                          const CVerticalFade& colors)
{
    std::vector<CStraightLine> lines;
    if (length < 0 || axis.labels.size() < 2)
        return lines;
    const QPoint origin = axis.originOnPicture();
    const CAxisFrame& frame = axis.shape.frame;
    const auto onPicture = [&](int along, int across) {
        return movedPoint(COrientedCoord(along, across).resolve(frame.isHorizontal()), origin);
    };
    const double gaps = static_cast<double>(axis.labels.size() - 1);
    for (const CBarTextLabel& label : axis.labels) {
        if (label.isHidden)
            continue;
        const int along =
            frame.signedAlong(addPixels(label.orientedPos.along(), axis.shiftAtBegin));
        // Deliberate: ticks with hidden labels draw no line but count in the fade, so that a line
        // keeps its shade when others are thinned out. The last colour is then not reached.
        const double share = static_cast<double>(lines.size()) / gaps;
        const QColor color = cdraw::linearInterpolation(colors.top, colors.bottom, share);
        lines.push_back(
            {onPicture(along, 1), onPicture(along, length), color, axis.shape.lineWidth});
    }
    return lines;
}

} // namespace tovangl
