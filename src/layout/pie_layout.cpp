// SPDX-License-Identifier: MIT
// Lays out a pie.
#include "layout/pie_layout.h"

#include "base/circle_geometry.h"
#include "base/pixel_arithmetic.h"
#include "input/CPieInput.h"
#include "layout/CPieTextLabel.h"
#include "layout/CZoneArranger.h"
#include "layout/chart_title.h"
#include "layout/device_colors.h"
#include "layout/pie_geometry.h"

#include <algorithm>

namespace tovangl {

namespace {

using Labels = std::vector<CPieTextLabel>;

constexpr int kStartAngle = -180; // degrees: the first slice begins at nine o'clock
constexpr int kClockwise = -1;

// Widths of the lines to the labels, in pixels before scaling.
constexpr double kBeamWidth = 1.2;
constexpr double kTextLineWidth = 0.6;

// The background moves everything on it onto the centres of pixels; in pixels before scaling.
constexpr double kBackgroundShift = 0.5;

CPieFrame frameOf(const CRequest& request, int top)
{
    return CPieFrame{request.width, request.height - top, kMargin, request.scale};
}

// The colour set, or else one that suits the device.
QColor getPieOutlineColor(const CPieInput& input, OutputDevice device)
{
    const bool isOnScreen = device == OutputDevice::Screen;
    return orElse(input.settings.colors.outline,
                  isOnScreen ? QColor(255, 255, 255) : QColor(64, 64, 64));
}

CPieBackground createBackground(const CChartColors& colors)
{
    CPieBackground background;
    if (colors.plot.isValid())
        background.fill = {colors.plot, colors.plot};
    if (colors.border.isValid())
        background.border = {colors.border, colors.border};
    return background;
}

CPieLayout initLook(const CPieInput& input, const CRequest& request)
{
    CPieLayout layout;
    if (input.settings.hasBackground && request.device == OutputDevice::Screen) {
        layout.background = createBackground(input.settings.colors);
        layout.shift = QPointF(kBackgroundShift, kBackgroundShift) * request.scale;
    }
    layout.outlineColor = getPieOutlineColor(input, request.device);
    layout.outlineWidth = request.scale;
    layout.labelLineColor = orElse(input.settings.colors.labelLine, layout.outlineColor);
    layout.beamWidth = kBeamWidth * request.scale;
    layout.textLineWidth = kTextLineWidth * request.scale;
    return layout;
}

std::vector<CPieSlice> initSlices(const CPieInput& input, const std::vector<std::size_t>& drawn,
                                  OutputDevice device)
{
    std::vector<long long> values;
    values.reserve(drawn.size());
    for (const std::size_t item : drawn)
        values.push_back(input.items[item].value);
    const auto angles =
        computeSliceAngles(values, kStartAngle * cdraw::kUnitsPerDegree, kClockwise);

    std::vector<CPieSlice> slices;
    slices.reserve(drawn.size());
    for (std::size_t i = 0; i < drawn.size(); ++i) {
        const QColor color = input.fillColor(drawn[i]);
        slices.push_back({drawn[i], angles[i], getOutputDeviceColor(color, device)});
    }
    return slices;
}

CPieLabelFrame labelFrameOf(const CPieFrame& frame)
{
    return CPieLabelFrame{truncateToInt(frame.width * 0.5 - frame.scaledMargin()), frame.scale};
}

Labels initLabel(const CPieInput& input, const std::vector<CPieSlice>& slices,
                 const CPieFrame& frame, const CKilo& kilo, CTextMeasurer& measurer)
{
    const CPieLabelFrame labelFrame = labelFrameOf(frame);
    const CTextStyle style{input.options.testFlag(CPieInput::BoldLabels),
                           input.options.testFlag(CPieInput::ShortenFromLeft)};
    Labels labels;
    labels.reserve(slices.size());
    for (const CPieSlice& slice : slices) {
        const CGraph1dItem& item = input.items[slice.item];
        CTextLabel size;
        if (input.options.testFlag(CPieInput::ShowSizes))
            size = CTextLabel(getSizeText(item.value, input.unit, input.settings.locale, kilo),
                              style, measurer);
        labels.emplace_back(slice, CTextLabel(item.text, style, measurer), size, labelFrame);
    }
    return labels;
}

// Gives all labels one rectangle, as large as the largest, but no wider than the frame allows.
QRectF setLabelBoundingRect(Labels& labels, const CPieFrame& frame)
{
    double width = 0;
    double height = 0;
    for (CPieTextLabel& label : labels) {
        label.initBoundingRect(true);
        width = std::max(width, label.getBoundingRect().width());
        height = std::max(height, label.getBoundingRect().height());
    }
    const QRectF rect(0, 0, std::min(width, frame.labelWidthCap()), height);
    for (CPieTextLabel& label : labels)
        label.setLabelRect(rect);
    return rect;
}

// The diameter at which every label stays inside the frame.
double getWidth(const Labels& labels, const CPieFrame& frame)
{
    double radius = frame.width;
    for (const CPieTextLabel& label : labels) {
        const double labelWidth = label.getBoundingRect().width();
        radius = std::min(radiusForLabel(frame, labelWidth, label.direction().x()), radius);
    }
    return 2 * radius;
}

QRectF createArea(double width, double labelHeight, const CPieFrame& frame)
{
    const double top = frame.scaledMargin() + 0.5 * labelHeight;
    return squareArea(frame,
                      QRectF(frame.width * 0.5 - 0.5 * width, top, width, frame.height - 2 * top));
}

void setLabelPosition(Labels& labels, const CPieLayout& layout)
{
    const double outerRadius = layout.area.width() * 0.5;
    const double innerRadius = outerRadius - (layout.area.width() - layout.pieRect.width());
    for (CPieTextLabel& label : labels)
        label.initPosition(innerRadius, outerRadius);
}

void layoutLabels(Labels& labels, const CPieFrame& frame, int top, CPieLayout& layout)
{
    for (CPieTextLabel& label : labels)
        label.initBoundingRect(layout.sizesShown);
    layout.area =
        createArea(getWidth(labels, frame), layout.labelRect.height(), frame).translated(0, top);
    layout.pieRect = pieRectIn(layout.area);
    setLabelPosition(labels, layout);
}

bool isEnoughSpaceForSizeLabel(const Labels& labels, CTextMeasurer& measurer)
{
    return std::all_of(labels.begin(), labels.end(), [&measurer](const CPieTextLabel& label) {
        return label.isTextLabelShortenCorrectly(measurer);
    });
}

bool isLabelOverlap(const Labels& labels)
{
    QRectF previous;
    for (const CPieTextLabel& label : labels) {
        const QRectF rect = label.getBoundingRect().translated(label.getPosition());
        if (rect.intersects(previous))
            return true;
        previous = rect;
    }
    return false;
}

// Rotates the list so that it begins with the first label in the other half. Labels are drawn in
// this new order.
void rotateLabelsToHalf(Labels& labels)
{
    const bool startsRight = labels.front().isOnRightHalf();
    const auto entry = std::find_if(labels.begin(), labels.end(), [=](const CPieTextLabel& label) {
        return label.isOnRightHalf() != startsRight;
    });
    std::rotate(labels.begin(), entry, labels.end());
}

void arrangeLabels(CZoneArranger& arranger, double radius, Labels& labels)
{
    for (const CArrangedLabel& arranged : arranger.arrange(radius)) {
        CPieTextLabel& label = labels[arranged.label];
        label.setHidden(!arranged.place);
        if (arranged.place) {
            const double x = arranged.place->x();
            label.updateArrangedPosition(label.isOnRightHalf() ? x : -x, arranged.place->y());
        }
    }
}

void removeLabelOverlap(Labels& labels, const CPieLayout& layout)
{
    rotateLabelsToHalf(labels);
    const double height = layout.labelRect.height();
    const double bottom = 0.5 * (layout.area.height() + height);
    const CZoneRange range{-bottom, bottom};
    CZoneArranger right(range, height);
    CZoneArranger left(range, height);
    for (std::size_t i = 0; i < labels.size(); ++i) {
        // Clockwise, slices run down the right half and up the left one.
        const double y = labels[i].lineEnd().y();
        if (labels[i].isOnRightHalf())
            right.addZoneBack(i, y);
        else
            left.addZoneFront(i, y);
    }
    arrangeLabels(right, 0.5 * layout.area.width(), labels);
    arrangeLabels(left, 0.5 * layout.area.width(), labels);
}

std::vector<CPlacedPieLabel> placeLabels(const Labels& labels, const QColor& color,
                                         const CPieLayout& layout, CTextMeasurer& measurer)
{
    const QPointF center = layout.shift + layout.center();
    const QPoint origin(truncateToInt(center.x()), truncateToInt(center.y()));
    std::vector<CPlacedPieLabel> placed;
    placed.reserve(labels.size());
    for (const CPieTextLabel& label : labels) {
        placed.push_back(layout.fits() ? label.withTexts(layout.sizesShown, color, origin, measurer)
                                       : label.lines());
    }
    return placed;
}

// Lays out a pie that begins in that row of the picture, below its title.
CPieLayout layOutPie(const CPieInput& input, const std::vector<std::size_t>& drawn,
                     const CRequest& request, int top, CTextMeasurer& measurer)
{
    const CPieFrame frame = frameOf(request, top);
    CPieLayout layout = initLook(input, request);
    layout.slices = initSlices(input, drawn, request.device);
    layout.isWholeDisc = layout.slices.size() == 1;

    Labels labels = initLabel(input, layout.slices, frame, request.kilo, measurer);
    layout.labelRect = setLabelBoundingRect(labels, frame);
    layoutLabels(labels, frame, top, layout);
    layout.sizesShown = isEnoughSpaceForSizeLabel(labels, measurer);
    // Without the sizes, there is more room for the pie.
    if (!layout.sizesShown)
        layoutLabels(labels, frame, top, layout);
    layout.drawnPieRect = layout.pieRect.translated(layout.shift);

    layout.hasRoom = isRoomForPie(frame, layout.labelRect.size());
    const bool isSpread = input.options.testFlag(CPieInput::RemoveLabelOverlaps);
    if (layout.fits() && isSpread && isLabelOverlap(labels))
        removeLabelOverlap(labels, layout);
    const QColor textColor = orElse(input.settings.colors.text, Qt::black);
    layout.labels = placeLabels(labels, textColor, layout, measurer);
    return layout;
}

} // namespace

CPieLayout computeLayout(const CPieInput& input, const std::vector<std::size_t>& drawn,
                         const CRequest& request, CTextMeasurer& measurer)
{
    return layOutBelowTitle(input.settings, request, measurer, [&](int top) {
        return layOutPie(input, drawn, request, top, measurer);
    });
}

} // namespace tovangl
