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

#include <QColor>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <vector>

namespace tovangl {

namespace {

constexpr double kHalf = 0.5;
constexpr double kLongestArc = 120; // degrees
// Pixels. A thinner line is painted as wide as this, but the paler.
constexpr double kThinnestLine = 1;
// Pixels. An outline that is no wider than the thinnest line is painted along chords of the rim. An
// arc that lies this far inside of it is nearer to them, and rounder than they are in a large view.
constexpr double kChordInset = 0.04;
// Of 255, in one channel. Nobody sees that a thin line is a little paler or darker.
constexpr int kVisibleDifference = 16;
constexpr int kGreatestContrast = 255;
constexpr int kNoContrast = 0;
// Of the picture's pixels. Lines that are shorter together are not worth a larger file.
constexpr double kFewPixels = 0.0014;

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

// Which of a slice's edges, the lines from the centre to the rim, one stroke draws with the arc.
enum class Edges
{
    None, // there are none
    First,
    Last,
    Both
};

std::string slicePath(const QRectF& pie, const CSliceAngles& angles, Edges edges)
{
    const double start = degrees(angles.start);
    const QPointF center = pie.center();
    const QPointF first = onRim(pie, start);
    CSvgPath path;
    if (edges == Edges::None || edges == Edges::Last)
        path.move(first.x(), first.y());
    else
        path.move(center.x(), center.y()).line(first.x(), first.y());
    addRim(path, pie, start, degrees(angles.span));
    if (edges == Edges::Last)
        path.line(center.x(), center.y());
    else if (edges != Edges::First)
        path.close();
    return path.text();
}

// A line that is no wider than a pixel is painted one pixel thick along the rows or columns that it
// crosses. It is the thinner the nearer it is to a diagonal. Degrees.
double paintedWidth(double angle)
{
    const double radians = qDegreesToRadians(angle);
    return std::max(std::fabs(std::sin(radians)), std::fabs(std::cos(radians)));
}

// How wide an arc is painted in the mean of its directions.
double paintedWidth(double start, double span)
{
    constexpr int kParts = 32;
    double sum = 0;
    for (int i = 0; i < kParts; ++i)
        sum += paintedWidth(start + span * (i + kHalf) / kParts);
    return sum / kParts;
}

// An edge with a stroke of its own.
struct CEdgeStroke
{
    double angle = 0; // degrees
    double width = 1;
};

struct CSliceOutline
{
    Edges edges = Edges::Both; // that are drawn with the arc
    double width = 1;
    std::optional<CEdgeStroke> other;
};

// The greatest difference in a channel, of 255.
int contrastBetween(const QColor& one, const QColor& other)
{
    return std::max({std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                     std::abs(one.blue() - other.blue())});
}

// One stroke is as wide as its parts are in the mean. Where an edge would be visibly too wide or
// too narrow with it, one edge is left to a second stroke.
CSliceOutline thinOutline(const CSliceAngles& angles, int contrast)
{
    const double start = degrees(angles.start);
    const double span = degrees(angles.span);
    const double first = paintedWidth(start);
    const double last = paintedWidth(start + span);
    const double arc = paintedWidth(start, span);
    const double length = qDegreesToRadians(std::fabs(span)); // of the arc, in radiuses
    const double mean = (first + last + length * arc) / (2 + length);
    const double error = std::max(std::fabs(first - mean), std::fabs(last - mean));
    if (error * contrast < kVisibleDifference)
        return {Edges::Both, mean, {}};
    if (std::fabs(first - arc) <= std::fabs(last - arc))
        return {Edges::First, (first + length * arc) / (1 + length),
                CEdgeStroke{start + span, last}};
    return {Edges::Last, (last + length * arc) / (1 + length), CEdgeStroke{start, first}};
}

// How much a slice's outline stands out of it. A picture in two themes has the same shapes in both.
int contrastOf(const CSvgScene& scene, const CPieLayout& layout, const CPieSlice& slice)
{
    return scene.frame.isOneOfTwo ? kGreatestContrast
                                  : contrastBetween(slice.color, layout.outlineColor);
}

CSliceOutline outlineOf(const CPieLayout& layout, const CSliceAngles& angles, int contrast)
{
    const Edges edges = layout.isWholeDisc ? Edges::None : Edges::Both;
    if (layout.outlineWidth > kThinnestLine)
        return {edges, double(layout.outlineWidth), {}};
    if (layout.isWholeDisc)
        return {edges, paintedWidth(degrees(angles.start), degrees(angles.span)), {}};
    return thinOutline(angles, contrast);
}

std::vector<CSliceOutline> outlinesOf(const CSvgScene& scene, const CPieLayout& layout)
{
    std::vector<CSliceOutline> outlines;
    outlines.reserve(layout.slices.size());
    double length = 0; // of the edges that are apart
    for (const CPieSlice& slice : layout.slices) {
        outlines.push_back(outlineOf(layout, slice.angles, contrastOf(scene, layout, slice)));
        length += outlines.back().other ? layout.drawnPieRect.width() * kHalf : 0;
    }
    if (length >= kFewPixels * scene.frame.width * scene.frame.height)
        return outlines;
    for (std::size_t i = 0; i < outlines.size(); ++i)
        outlines[i] = outlineOf(layout, layout.slices[i].angles, kNoContrast);
    return outlines;
}

std::string linePath(const QPointF& from, const QPointF& to)
{
    CSvgPath path;
    path.move(from.x(), from.y());
    const bool isLevel = svgNumber(from.y()) == svgNumber(to.y());
    return (isLevel ? path.across(to.x()) : path.line(to.x(), to.y())).text();
}

void writeSlice(CSvgScene& scene, const CPieLayout& layout, const CPieSlice& slice,
                const CSliceOutline& outline)
{
    const QRectF pie = outlinedPie(layout);
    scene.markup.begin("path").attribute("d", slicePath(pie, slice.angles, outline.edges));
    scene.colors.paint(scene.markup, {{"fill", slice.color}, {"stroke", layout.outlineColor}});
    writeStrokeWidth(scene.markup, outline.width);
    scene.markup.end();
    if (!outline.other)
        return;
    const QPointF end = onRim(pie, outline.other->angle);
    scene.markup.begin("path").attribute("d", linePath(pie.center(), end));
    scene.colors.paint(scene.markup, {{"stroke", layout.outlineColor}});
    writeStrokeWidth(scene.markup, outline.other->width);
    scene.markup.end();
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
    const std::vector<CSliceOutline> outlines = outlinesOf(scene, layout);
    for (std::size_t i = 0; i < layout.slices.size(); ++i) {
        const std::string_view element = beginItem(scene, layout.slices[i].item);
        writeSlice(scene, layout, layout.slices[i], outlines[i]);
        writeLabel(scene, layout, *labels[i]);
        scene.markup.close(element);
    }
    scene.markup.close("g");
}

} // namespace tovangl
