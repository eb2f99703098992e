// SPDX-License-Identifier: MIT
// The straight shapes of a chart as SVG, on the same pixels as when they are painted.
#include "svg/svg_shapes.h"

#include "layout/CBarLayout.h"
#include "svg/CSvgPath.h"
#include "svg/CSvgScene.h"
#include "svg/picture_id.h"
#include "svg/svg_values.h"

#include <algorithm>

namespace tovangl {

namespace {

constexpr double kHalf = 0.5;

// From a painted coordinate to the middle of the stroke along it: a pen of an odd width runs along
// the middle of pixels.
double strokeOffset(int width)
{
    return width % 2 == 0 ? 0 : kHalf;
}

// A line as long as its square caps make it.
std::string pathOf(const CStraightLine& line)
{
    const double offset = strokeOffset(line.width);
    const double cap = line.width * kHalf;
    const int left = std::min(line.from.x(), line.to.x());
    const int right = std::max(line.from.x(), line.to.x());
    const int top = std::min(line.from.y(), line.to.y());
    const int bottom = std::max(line.from.y(), line.to.y());
    if (top == bottom)
        return CSvgPath()
            .move(left + offset - cap, top + offset)
            .across(right + offset + cap)
            .text();
    return CSvgPath().move(left + offset, top + offset - cap).down(bottom + offset + cap).text();
}

// Shorter where the gradient is as high as its shape.
void writeSpan(CSvgMarkup& markup, const CSvgSpan& span, const CSvgSpan& shape)
{
    markup.attribute("x2", 0);
    if (span.top == shape.top && span.bottom == shape.bottom)
        markup.attribute("y2", 1);
    else
        markup.attribute("y1", span.top)
            .attribute("y2", span.bottom)
            .attribute("gradientUnits", "userSpaceOnUse");
}

} // namespace

void writeExtent(CSvgMarkup& markup, const QRectF& rect)
{
    markup.attribute("x", rect.x())
        .attribute("y", rect.y())
        .attribute("width", rect.width())
        .attribute("height", rect.height());
}

void writeStrokeWidth(CSvgMarkup& markup, double width)
{
    const std::string number = svgNumber(width);
    if (number != "1")
        markup.attribute("stroke-width", number);
}

void writeLine(CSvgScene& scene, const CStraightLine& line)
{
    scene.markup.begin("path").attribute("d", pathOf(line));
    scene.colors.paint(scene.markup, {{"stroke", line.color}});
    writeStrokeWidth(scene.markup, line.width);
    scene.markup.end();
}

void writeBar(CSvgScene& scene, const CBar& bar, int outlineWidth)
{
    const double offset = strokeOffset(outlineWidth);
    scene.markup.begin("rect");
    writeExtent(scene.markup, toRoom(bar.rect).translated(offset, offset));
    scene.colors.paint(scene.markup, {{"fill", bar.color}, {"stroke", bar.outlineColor}});
    writeStrokeWidth(scene.markup, outlineWidth);
    scene.markup.end();
}

// In two themes, one of the two fades can be of equal colours.
CSvgFade::CSvgFade(CSvgScene& scene, const CVerticalFade& fade, const CSvgSpan& span,
                   const CSvgSpan& shape)
    : m_color(fade.top)
{
    if (fade.top == fade.bottom && !scene.frame.isOneOfTwo)
        return;
    const std::string id = pictureId() + static_cast<char>('a' + scene.fades++);
    m_address = "url(#" + id + ')';
    scene.markup.begin("linearGradient").attribute("id", id);
    writeSpan(scene.markup, span, shape);
    scene.markup.open();
    scene.markup.begin("stop");
    scene.colors.paint(scene.markup, {{"stop-color", fade.top}});
    scene.markup.end();
    scene.markup.begin("stop").attribute("offset", 1);
    scene.colors.paint(scene.markup, {{"stop-color", fade.bottom}});
    scene.markup.end();
    scene.markup.close("linearGradient");
}

void CSvgFade::paint(CSvgScene& scene, std::string_view property) const
{
    if (m_address.empty())
        scene.colors.paint(scene.markup, {{property, m_color}});
    else
        scene.markup.attribute(property, m_address);
}

void writePixels(CSvgScene& scene, const QRect& pixels, const CSvgFade& fill)
{
    scene.markup.begin("rect");
    writeExtent(scene.markup, toRoom(pixels));
    fill.paint(scene, "fill");
    scene.markup.end();
}

} // namespace tovangl
