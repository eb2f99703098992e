// SPDX-License-Identifier: MIT
// Writes a laid-out pie as SVG.
#include "svg/pie_svg.h"

#include "base/circle_geometry.h"
#include "layout/CPieLayout.h"
#include "svg/CSvgPath.h"
#include "svg/CSvgScene.h"
#include "svg/pie_outline.h"
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
constexpr double kLongestArc = 120; // degrees
// Pixels. An outline that is no wider than the thinnest line is painted along chords of the rim. An
// arc that lies this far inside of it is nearer to them, and rounder than they are in a large view.
constexpr double kChordInset = 0.04;

double degrees(int units)
{
    return units / double{cdraw::kUnitsPerDegree};
}

// Where the rim of a pie is in a direction; degrees counter-clockwise from three o'clock.
QPointF onRim(const QRectF& pie, double angle)
{
    const double radians = qDegreesToRadians(angle);
    return pie.center() + QPointF(pie.width() * kHalf * std::cos(radians),
                                  -pie.height() * kHalf * std::sin(radians));
}

// Readers compute the centre of an arc from its radius and its ends. Of half a turn, a hundredth of
// a pixel in these moves it by more than a pixel, so that a long rim takes several arcs.
void addRim(CSvgPath& path, const QRectF& pie, double start, double span)
{
    const int arcs = std::max(1, static_cast<int>(std::ceil(std::fabs(span) / kLongestArc)));
    for (int i = 1; i <= arcs; ++i) {
        const QPointF end = onRim(pie, start + span * i / arcs);
        path.arc(pie.width() * kHalf, pie.height() * kHalf, span < 0, end.x(), end.y());
    }
}

// The ellipse that slices are outlined along.
QRectF outlinedPie(const CPieLayout& layout)
{
    const QRectF& pie = layout.drawnPieRect;
    const double most = layout.outlineWidth > kThinnestLine ? 0 : kChordInset;
    const double inset = std::min(most, pie.width() * kHalf);
    return pie.adjusted(inset, inset, -inset, -inset);
}

// The two sides of a rim that is as thick as it is painted.
enum class RimSide
{
    Inner,
    Outer
};

QPointF onRimSide(const QRectF& pie, double angle, RimSide side)
{
    const double offset = paintedWidth(angle) * (side == RimSide::Outer ? kHalf : -kHalf);
    return onRim(pie.adjusted(-offset, -offset, offset, offset), angle);
}

// The diagonal that comes next in the direction of a span. Degrees.
double nextDiagonal(double angle, double span)
{
    constexpr double kFirst = 45;
    constexpr double kQuarter = 90;
    const double quarters = (angle - kFirst) / kQuarter;
    return kFirst + kQuarter * (span < 0 ? std::ceil(quarters) - 1 : std::floor(quarters) + 1);
}

// Each side is made of parts of four circles as large as the pie, which meet at the diagonals:
// moved up or down where the rim is nearer to a level line, and aside where it is nearer to an
// upright one.
void addRimSide(CSvgPath& path, const QRectF& pie, double start, double span, RimSide side)
{
    const auto arcTo = [&](double angle) {
        const QPointF to = onRimSide(pie, angle, side);
        path.arc(pie.width() * kHalf, pie.height() * kHalf, span < 0, to.x(), to.y());
    };
    double angle = nextDiagonal(start, span);
    while (std::fabs(angle - start) < std::fabs(span)) {
        arcTo(angle);
        angle = nextDiagonal(angle, span);
    }
    arcTo(start + span);
}

std::string rimPath(const QRectF& pie, const CSliceAngles& angles)
{
    const double start = degrees(angles.start);
    const double span = degrees(angles.span);
    const QPointF outer = onRimSide(pie, start, RimSide::Outer);
    const QPointF inner = onRimSide(pie, start + span, RimSide::Inner);
    CSvgPath path;
    path.move(outer.x(), outer.y());
    addRimSide(path, pie, start, span, RimSide::Outer);
    path.line(inner.x(), inner.y());
    addRimSide(path, pie, start + span, -span, RimSide::Inner);
    return path.close().text();
}

std::string slicePath(const QRectF& pie, const CPieLayout& layout, const CSliceAngles& angles)
{
    const double start = degrees(angles.start);
    const QPointF center = pie.center();
    const QPointF first = onRim(pie, start);
    CSvgPath path;
    if (layout.isWholeDisc)
        path.move(first.x(), first.y());
    else
        path.move(center.x(), center.y()).line(first.x(), first.y());
    addRim(path, pie, start, degrees(angles.span));
    return path.close().text();
}

// The dashes that stroke a slice's edges and leave out its arc, or stroke the first edge alone.
std::string edgeDashes(const QRectF& pie, const CSliceAngles& angles, bool isFirstAlone)
{
    const double edge = pie.width() * kHalf;
    const double arc = qDegreesToRadians(std::fabs(degrees(angles.span))) * edge;
    return svgNumber(edge) + ' ' + svgNumber(isFirstAlone ? arc + 2 * edge : arc);
}

std::string linePath(const QPointF& from, const QPointF& to)
{
    CSvgPath path;
    path.move(from.x(), from.y());
    const bool isLevel = svgNumber(from.y()) == svgNumber(to.y());
    return (isLevel ? path.across(to.x()) : path.line(to.x(), to.y())).text();
}

CPieOutline strokesOf(const CSvgScene& scene, const CPieLayout& layout)
{
    if (layout.outlineWidth <= kThinnestLine)
        return outlineOf(scene.frame, layout);
    const CSliceStroke stroke{double(layout.outlineWidth), {}};
    return {false, std::vector<CSliceStroke>(layout.slices.size(), stroke)};
}

void writeLastEdge(CSvgScene& scene, const CPieLayout& layout, const CSliceAngles& angles,
                   double width)
{
    const QRectF pie = outlinedPie(layout);
    const QPointF end = onRim(pie, degrees(angles.start + angles.span));
    scene.markup.begin("path").attribute("d", linePath(pie.center(), end));
    scene.colors.paint(scene.markup, {{"stroke", layout.outlineColor}});
    writeStrokeWidth(scene.markup, width);
    scene.markup.end();
}

void writeRim(CSvgScene& scene, const CPieLayout& layout, const CSliceAngles& angles)
{
    scene.markup.begin("path").attribute("d", rimPath(outlinedPie(layout), angles));
    scene.colors.paint(scene.markup, {{"fill", layout.outlineColor}});
    scene.markup.end();
}

// With its edges, and with its arc where that is no shape of its own.
void writeSlice(CSvgScene& scene, const CPieLayout& layout, const CPieSlice& slice,
                const CSliceStroke& stroke, bool hasRims)
{
    const QRectF pie = outlinedPie(layout);
    scene.markup.begin("path").attribute("d", slicePath(pie, layout, slice.angles));
    if (hasRims && layout.isWholeDisc) {
        scene.colors.paint(scene.markup, {{"fill", slice.color}});
        scene.markup.end();
        return;
    }
    scene.colors.paint(scene.markup, {{"fill", slice.color}, {"stroke", layout.outlineColor}});
    writeStrokeWidth(scene.markup, stroke.width);
    if (hasRims)
        scene.markup.attribute("stroke-dasharray",
                               edgeDashes(pie, slice.angles, stroke.lastEdge.has_value()));
    scene.markup.end();
    if (stroke.lastEdge)
        writeLastEdge(scene, layout, slice.angles, *stroke.lastEdge);
}

// From a slice to the elbow.
void writeBeam(CSvgScene& scene, const CPieLayout& layout, const QPointF& from, const QPointF& to)
{
    const std::string dashes =
        svgNumber(kBeamDash * layout.beamWidth) + ' ' + svgNumber(kBeamGap * layout.beamWidth);
    scene.markup.begin("path").attribute("d", linePath(from, to));
    writeStrokeWidth(scene.markup, layout.beamWidth);
    scene.markup.attribute("stroke-dasharray", dashes).end();
}

// How far beside its place a thin line with square ends is painted: half of what it climbs or falls
// in a pixel, to a side that depends on the half of a pixel that it begins in.
QPointF paintedShift(const QPointF& from, const QPointF& to)
{
    const QPointF way = to - from;
    const bool isSteep = std::fabs(way.x()) < std::fabs(way.y());
    const double along = isSteep ? way.y() : way.x();
    if (along == 0)
        return QPointF();
    const double slope = (isSteep ? way.x() : way.y()) / along;
    const double begin = isSteep ? std::min(from.y(), to.y()) : std::min(from.x(), to.x());
    const double shift = begin - std::floor(begin) < kHalf ? kHalf * slope : -kHalf * slope;
    return isSteep ? QPointF(shift, 0) : QPointF(0, shift);
}

// From the elbow to the text.
void writeTextLine(CSvgScene& scene, const CPieLayout& layout, const QPointF& from,
                   const QPointF& to)
{
    const bool isThin = layout.textLineWidth < kThinnestLine;
    const QPointF shift = isThin ? paintedShift(from, to) : QPointF();
    scene.markup.begin("path").attribute("d", linePath(from + shift, to + shift));
    if (isThin) {
        const QPointF way = to - from;
        writeStrokeWidth(scene.markup,
                         paintedWidth(qRadiansToDegrees(std::atan2(way.y(), way.x()))));
        scene.markup.attribute("stroke-opacity", layout.textLineWidth);
    } else {
        writeStrokeWidth(scene.markup, layout.textLineWidth);
    }
    scene.markup.end();
}

void writeLabel(CSvgScene& scene, const CPieLayout& layout, const CPlacedPieLabel& label)
{
    if (label.isHidden)
        return;
    const QPointF center = layout.shift + layout.center();
    scene.markup.begin("g");
    scene.colors.paint(scene.markup, {{"stroke", layout.labelLineColor}});
    scene.markup.open();
    writeBeam(scene, layout, center + label.beamStart, center + label.elbow);
    writeTextLine(scene, layout, center + label.elbow, center + label.lineEnd);
    scene.markup.close("g");
    for (const CPlacedText& text : label.texts)
        writeText(scene, text, center);
}

// A rounded frame along the middle of the picture's outermost pixels.
void writeBackground(CSvgScene& scene, const CPieLayout& layout)
{
    if (!layout.background)
        return;
    const double inset = layout.outlineWidth * kHalf;
    const CSvgSpan span{inset, scene.frame.height - 1 + inset};
    const CSvgSpan shape{inset, scene.frame.height - inset};
    const CSvgFade fill(scene, layout.background->fill, span, shape);
    const CSvgFade border(scene, layout.background->border, span, shape);
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
    const CPieOutline outline = strokesOf(scene, layout);
    for (std::size_t i = 0; i < layout.slices.size(); ++i) {
        const std::string_view element = beginItem(scene, layout.slices[i].item);
        writeSlice(scene, layout, layout.slices[i], outline.slices[i], outline.hasRims);
        if (outline.hasRims)
            writeRim(scene, layout, layout.slices[i].angles);
        writeLabel(scene, layout, *labels[i]);
        scene.markup.close(element);
    }
    scene.markup.close("g");
}

} // namespace tovangl
