// SPDX-License-Identifier: MIT
// Writes a laid-out pie as SVG.
#include "svg/pie_svg.h"

#include "base/circle_geometry.h"
#include "layout/CPieLayout.h"
#include "svg/CSvgPath.h"
#include "svg/CSvgScene.h"
#include "svg/svg_items.h"
#include "svg/svg_shapes.h"
#include "svg/svg_texts.h"
#include "svg/svg_values.h"

#include <QtMath>

#include <algorithm>
#include <cmath>
#include <vector>

namespace tovangl {

namespace {

constexpr double kHalf = 0.5;
// Pixels. A thinner line is painted as wide as this, but the paler.
constexpr double kThinnestLine = 1;

// Where the rim of a pie is in a direction; degrees counter-clockwise from three o'clock.
QPointF onRim(const QRectF& pie, double angle)
{
    const double radians = qDegreesToRadians(angle);
    return pie.center() + QPointF(pie.width() * kHalf * std::cos(radians),
                                  -pie.height() * kHalf * std::sin(radians));
}

// The rim is written in two arcs: one alone would be nothing where it ends at its beginning.
void addRim(CSvgPath& path, const QRectF& pie, double start, double span)
{
    for (const double share : {kHalf, 1.0}) {
        const QPointF point = onRim(pie, start + span * share);
        path.arc(pie.width() * kHalf, pie.height() * kHalf, span < 0, point.x(), point.y());
    }
}

std::string slicePath(const QRectF& pie, const CSliceAngles& angles, bool isWholeDisc)
{
    constexpr double kUnits = cdraw::kUnitsPerDegree;
    const double start = angles.start / kUnits;
    const QPointF first = onRim(pie, start);
    CSvgPath path;
    if (isWholeDisc)
        path.move(first.x(), first.y());
    else
        path.move(pie.center().x(), pie.center().y()).line(first.x(), first.y());
    addRim(path, pie, start, angles.span / kUnits);
    return path.close().text();
}

void writeSlice(CSvgScene& scene, const CPieLayout& layout, const CPieSlice& slice)
{
    scene.markup.begin("path").attribute(
        "d", slicePath(layout.drawnPieRect, slice.angles, layout.isWholeDisc));
    scene.colors.paint(scene.markup, {{"fill", slice.color}, {"stroke", layout.outlineColor}});
    writeStrokeWidth(scene.markup, layout.outlineWidth);
    scene.markup.end();
}

void writeLabelLine(CSvgScene& scene, const CPieLayout& layout, const QPointF& from,
                    const QPointF& to, double width)
{
    const QPointF center = layout.shift + layout.center();
    const QPointF first = center + from;
    const QPointF last = center + to;
    scene.markup.begin("path").attribute(
        "d", CSvgPath().move(first.x(), first.y()).line(last.x(), last.y()).text());
    scene.colors.paint(scene.markup, {{"stroke", layout.labelLineColor}});
    if (width < kThinnestLine)
        scene.markup.attribute("stroke-opacity", width);
    else
        writeStrokeWidth(scene.markup, width);
}

void writeLabel(CSvgScene& scene, const CPieLayout& layout, const CPlacedPieLabel& label)
{
    if (label.isHidden)
        return;
    const std::string dashes =
        svgNumber(kBeamDash * layout.beamWidth) + ' ' + svgNumber(kBeamGap * layout.beamWidth);
    writeLabelLine(scene, layout, label.beamStart, label.elbow, layout.beamWidth);
    scene.markup.attribute("stroke-dasharray", dashes).end();
    writeLabelLine(scene, layout, label.elbow, label.lineEnd, layout.textLineWidth);
    scene.markup.end();
    for (const CPlacedText& text : label.texts)
        writeText(scene, text, layout.shift + layout.center());
}

// A rounded frame along the middle of the picture's outermost pixels.
void writeBackground(CSvgScene& scene, const CPieLayout& layout)
{
    if (!layout.background)
        return;
    const double inset = layout.outlineWidth * kHalf;
    const double bottom = scene.frame.height - 1 + inset;
    const CSvgFade fill(scene, layout.background->fill, inset, bottom);
    const CSvgFade border(scene, layout.background->border, inset, bottom);
    scene.markup.begin("rect");
    writeExtent(
        scene.markup,
        QRectF(0, 0, scene.frame.width, scene.frame.height).adjusted(inset, inset, -inset, -inset));
    scene.markup.attribute("rx", CPieBackground::kCornerRadius * layout.outlineWidth);
    fill.paint(scene, "fill");
    border.paint(scene, "stroke");
    writeStrokeWidth(scene.markup, layout.outlineWidth);
    scene.markup.end();
}

// One for each slice. The layout has them in an order of their own.
std::vector<const CPlacedPieLabel*> labelsBySlice(const CPieLayout& layout)
{
    std::vector<const CPlacedPieLabel*> labels;
    labels.reserve(layout.labels.size());
    for (const CPlacedPieLabel& label : layout.labels)
        labels.push_back(&label);
    std::sort(labels.begin(), labels.end(),
              [](const CPlacedPieLabel* a, const CPlacedPieLabel* b) { return a->item < b->item; });
    return labels;
}

} // namespace

void writePie(CSvgScene& scene, const CPieLayout& layout)
{
    writeBackground(scene, layout);
    if (layout.title)
        writeText(scene, layout.title->text);
    scene.markup.begin("g")
        .attribute("stroke-linecap", "square")
        .attribute("stroke-linejoin", "bevel")
        .open();
    const std::vector<const CPlacedPieLabel*> labels = labelsBySlice(layout);
    for (std::size_t i = 0; i < layout.slices.size(); ++i) {
        const std::string_view element = beginItem(scene, layout.slices[i].item);
        writeSlice(scene, layout, layout.slices[i]);
        writeLabel(scene, layout, *labels[i]);
        scene.markup.close(element);
    }
    scene.markup.close("g");
}

} // namespace tovangl
