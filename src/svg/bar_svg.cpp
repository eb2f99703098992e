// SPDX-License-Identifier: MIT
// Writes a laid-out bar chart as SVG.
#include "svg/bar_svg.h"

#include "layout/CBarLayout.h"
#include "svg/CSvgScene.h"
#include "svg/svg_items.h"
#include "svg/svg_shapes.h"
#include "svg/svg_texts.h"

#include <algorithm>

namespace tovangl {

namespace {

// Begins a group that a page's style sheet can name.
void beginGroup(CSvgScene& scene, std::string_view name)
{
    scene.markup.begin("g").attribute("class", name).open();
}

CSvgSpan fadeOf(const QRect& plot)
{
    return {double(plot.top()), double(plot.bottom())};
}

CSvgSpan extentOf(const QRect& pixels)
{
    return {double(pixels.top()), double(pixels.top() + pixels.height())};
}

void writeBackground(CSvgScene& scene, const CBarLayout& layout)
{
    if (!layout.background)
        return;
    const QRect& plot = layout.plotRect;
    writePixels(scene, plot, CSvgFade(scene, *layout.background, fadeOf(plot), extentOf(plot)));
}

// The right border is as wide as a line, and like one it ends in square caps.
QRect borderPixels(const QRect& plot, int lineWidth)
{
    const int before = lineWidth / 2;
    return QRect(plot.right() - before, plot.top() - before, lineWidth,
                 plot.height() - 1 + lineWidth);
}

void writeBorder(CSvgScene& scene, const CBarLayout& layout)
{
    if (!layout.border)
        return;
    const QRect& plot = layout.plotRect;
    const QRect pixels = borderPixels(plot, layout.lineWidth);
    writePixels(scene, pixels,
                CSvgFade(scene, layout.border->right, fadeOf(plot), extentOf(pixels)));
    if (layout.border->bottom)
        writeLine(scene, *layout.border->bottom);
}

void writeGrid(CSvgScene& scene, const CBarLayout& layout)
{
    if (layout.gridLines.empty())
        return;
    beginGroup(scene, "grid");
    for (const CStraightLine& line : layout.gridLines)
        writeLine(scene, line);
    scene.markup.close("g");
}

// The captions are the first texts of their axis. They belong to the bars, and come with them.
void writeItems(CSvgScene& scene, const CBarLayout& layout)
{
    auto caption = layout.categoryAxis->texts.begin();
    for (std::size_t i = 0; i < layout.bars.size(); ++i) {
        const CBar& bar = layout.bars[i];
        const std::string_view element = beginItem(scene, bar.item);
        if (bar.rect.isValid())
            writeBar(scene, bar, layout.lineWidth);
        if (bar.labelRect.isValid())
            writeText(scene, bar.label);
        if (layout.categoryAxis->labels[i].isDrawn)
            writeText(scene, *caption++);
        scene.markup.close(element);
    }
}

// Draws an axis without its first texts.
void writeAxis(CSvgScene& scene, const CAxisLayout& axis, std::size_t firstText)
{
    if (!axis.line && firstText >= axis.texts.size())
        return;
    beginGroup(scene, "axis");
    if (axis.line)
        writeLine(scene, *axis.line);
    for (std::size_t i = firstText; i < axis.texts.size(); ++i)
        writeText(scene, axis.texts[i]);
    scene.markup.close("g");
}

std::size_t drawnLabels(const CAxisLayout& axis)
{
    const auto count = std::count_if(axis.labels.begin(), axis.labels.end(),
                                     [](const CBarTextLabel& label) { return label.isDrawn; });
    return static_cast<std::size_t>(count);
}

} // namespace

void writeBars(CSvgScene& scene, const CBarLayout& layout)
{
    constexpr std::size_t kAllTexts = 0;
    // Bars have crisp edges.
    scene.markup.begin("g").attribute("shape-rendering", "crispEdges").open();
    writeBackground(scene, layout);
    writeGrid(scene, layout);
    writeBorder(scene, layout);
    writeItems(scene, layout);
    writeAxis(scene, *layout.categoryAxis, drawnLabels(*layout.categoryAxis));
    writeAxis(scene, *layout.numberAxis, kAllTexts);
    if (layout.title)
        writeText(scene, layout.title->text);
    scene.markup.close("g");
}

} // namespace tovangl
