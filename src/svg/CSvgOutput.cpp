// SPDX-License-Identifier: MIT
// A picture of shapes as an SVG file.
#include "svg/CSvgOutput.h"

#include "layout/CBarLayout.h"
#include "layout/CPieLayout.h"
#include "svg/CSvgFrame.h"
#include "svg/svg_shapes.h"

#include <algorithm>

namespace tovangl {

namespace {

constexpr double kFullCircle = 16 * 360;

void writeLine(CSvgMarkup& markup, const CStraightLine& line)
{
    CSvgPath path;
    addLine(path, line);
    markup.begin("path").attribute("d", path.text()).color("stroke", line.color);
    if (line.width != 1)
        markup.attribute("stroke-width", line.width);
    markup.end();
}

} // namespace

CSvgOutput::CSvgOutput(const CSvgFrame& frame)
    : m_frame(frame)
{
    const std::string size = svgNumber(frame.width) + ' ' + svgNumber(frame.height);
    m_markup.begin("svg")
        .attribute("xmlns", "http://www.w3.org/2000/svg")
        .attribute("width", frame.width)
        .attribute("height", frame.height)
        .attribute("viewBox", "0 0 " + size)
        .attribute("role", "img")
        .open();
    m_markup.textElement("title", frame.title);
    m_markup.textElement("desc", frame.description);
    if (frame.picture.alpha() > 0)
        m_markup.begin("path")
            .attribute(
                "d", CSvgPath().move(0, 0).across(frame.width).down(frame.height).across(0).text())
            .color("fill", frame.picture)
            .end();
}

void CSvgOutput::paint(const CBarLayout& layout)
{
    m_markup.begin("g").attribute("shape-rendering", "crispEdges").open();
    for (const CStraightLine& line : layout.gridLines)
        writeLine(m_markup, line);
    for (const CBar& bar : layout.bars) {
        if (!bar.rect.isValid())
            continue;
        m_markup.begin("rect");
        outlineAttributes(m_markup, bar.rect, layout.lineWidth);
        m_markup.color("fill", bar.color).color("stroke", bar.outlineColor).end();
    }
    for (const auto& axis : {layout.categoryAxis, layout.numberAxis}) {
        if (axis->line)
            writeLine(m_markup, *axis->line);
    }
    m_markup.close("g");
}

void CSvgOutput::paint(const CPieLayout& layout)
{
    static_cast<void>(layout);
    static_cast<void>(kFullCircle);
}

CPictureFile CSvgOutput::finish()
{
    m_markup.close("svg");
    const std::string& text = m_markup.text();
    CPictureFile file{std::make_unique<unsigned char[]>(text.size()), text.size()};
    std::copy(text.begin(), text.end(), file.data.get());
    return file;
}

} // namespace tovangl
