// SPDX-License-Identifier: MIT
// The straight shapes of a chart as SVG, on the same pixels as when they are painted.
#include "svg/svg_shapes.h"

#include "base/pixel_arithmetic.h"
#include "layout/CStraightLine.h"
#include "svg/CSvgMarkup.h"

#include <QRect>

#include <algorithm>

namespace tovangl {

namespace {

constexpr double kHalfPixel = 0.5;

void rectAttributes(CSvgMarkup& markup, double x, double y, const QRect& size)
{
    const auto width = inclusiveExtent(size.left(), size.right());
    const auto height = inclusiveExtent(size.top(), size.bottom());
    markup.attribute("x", x).attribute("y", y);
    markup.attribute("width", static_cast<double>(width));
    markup.attribute("height", static_cast<double>(height));
}

} // namespace

double strokeOffset(int width)
{
    return width % 2 == 0 ? 0 : kHalfPixel;
}

void outlineAttributes(CSvgMarkup& markup, const QRect& rect, int outlineWidth)
{
    const double offset = strokeOffset(outlineWidth);
    rectAttributes(markup, rect.left() + offset, rect.top() + offset, rect);
}

void pixelAttributes(CSvgMarkup& markup, const QRect& rect)
{
    rectAttributes(markup, rect.left(), rect.top(), rect);
}

void addLine(CSvgPath& path, const CStraightLine& line)
{
    const double offset = strokeOffset(line.width);
    const double cap = line.width * kHalfPixel;
    if (line.from.y() == line.to.y()) {
        const int first = std::min(line.from.x(), line.to.x());
        const int last = std::max(line.from.x(), line.to.x());
        path.move(first + offset - cap, line.from.y() + offset).across(last + offset + cap);
    } else {
        const int first = std::min(line.from.y(), line.to.y());
        const int last = std::max(line.from.y(), line.to.y());
        path.move(line.from.x() + offset, first + offset - cap).down(last + offset + cap);
    }
}

} // namespace tovangl
