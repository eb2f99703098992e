// SPDX-License-Identifier: MIT
// Places the bars and their values between two fitted axes.
#include "layout/bar_items.h"

#include "base/moved_rectangle.h"
#include "layout/bar_placement.h"

namespace tovangl {

namespace {

// The picture point of a position along the category axis, on the axis line. Bars and value labels
// start at the axis line, whatever stands on its other side.
QPoint onAxisLine(const CAxisLayout& axis, int along)
{
    return movedPoint(axis.shape.frame.resolveOrientedCoordSigned(along, 0),
                      axis.originOnPicture());
}

// The rectangle of a bar. Null for a value below the start of the scale.
QRect barRect(const CBarLayout& layout, int tick, int valueCoord, const QPoint& firstCentre)
{
    if (valueCoord < 0)
        return QRect();
    const CAxisFrame& categories = layout.categoryAxis->shape.frame;
    const CAxisFrame& numbers = layout.numberAxis->shape.frame;
    const int width = addPixels(layout.barWidth, -layout.lineWidth);
    const CBarExtent extent{static_cast<double>(categories.signedAlong(tick)), width,
                            numbers.signedAlong(layout.scale.coord(0)),
                            numbers.signedAlong(valueCoord)};
    return movedRectangle(barRectangle(extent, categories.isHorizontal()), firstCentre);
}

// How far from the axis line a value label's left edge lies.
std::int64_t labelDistance(const CAxisFrame& numbers, int valueCoord, const CValueLabelLook& look)
{
    const int beside = numbers.isReversed() ? look.size.width() : 1;
    return std::int64_t{valueCoord} + look.gap + beside;
}

QRect labelRect(const CBarLayout& layout, const CBarTextLabel& caption, int valueCoord,
                const QPoint& origin, const CValueLabelLook& look)
{
    const CAxisFrame& numbers = layout.numberAxis->shape.frame;
    const QPoint pos =
        layout.categoryAxis->shape.frame.resolveOrientedCoordSigned(caption.orientedPos);
    const std::int64_t distance = labelDistance(numbers, valueCoord, look) * numbers.alongSign();
    return movedRectangle(QRect(QPoint(0, 0), look.size),
                          QPoint(clampToInt(std::int64_t{pos.x()} + origin.x() + distance),
                                 addPixels(pos.y(), origin.y())));
}

} // namespace

std::vector<CBar> setItemBars(const CBarLayout& layout, const CBarInput& input,
                              const std::vector<std::size_t>& drawn)
{
    const CAxisLayout& axis = *layout.categoryAxis;
    const QPoint firstCentre = onAxisLine(axis, axis.shiftAtBegin);
    std::vector<CBar> bars;
    bars.reserve(drawn.size());
    for (std::size_t i = 0; i < drawn.size(); ++i) {
        const CGraph1dItem& item = input.items[drawn[i]];
        CBar bar;
        bar.item = drawn[i];
        bar.valueCoord = layout.scale.coord(item.value);
        bar.rect = barRect(layout, axis.labels[i].tickCoord, bar.valueCoord, firstCentre);
        // Deliberate: bars keep their colours in print too, so that they match the same colours
        // elsewhere in a report.
        bar.color = input.fillColor(drawn[i]);
        bar.outlineColor = input.outlineColor(drawn[i]);
        bars.push_back(bar);
    }
    return bars;
}

void setItemLabels(CBarLayout& layout, const std::vector<CTextLabel>& labels,
                   const CValueLabelLook& look, CTextMeasurer& measurer)
{
    if (layout.numberAxis->usableSpan() <= 0)
        return;
    const CAxisLayout& axis = *layout.categoryAxis;
    const QPoint firstLabel =
        onAxisLine(axis, addPixels(axis.shiftAtBegin, -axis.halfLabelSigned()));
    const bool isReversed = layout.numberAxis->shape.frame.isReversed();
    for (std::size_t i = 0; i < labels.size(); ++i) {
        CBar& bar = layout.bars[i];
        if (axis.labels[i].isHidden)
            continue;
        bar.labelRect = labelRect(layout, axis.labels[i], bar.valueCoord, firstLabel, look);
        if (!bar.labelRect.isValid())
            continue;
        bar.label = {labels[i].getAdjustedText(bar.labelRect.width(), measurer),
                     toRoom(bar.labelRect),
                     isReversed ? Qt::AlignRight : Qt::AlignLeft,
                     look.color,
                     false,
                     false,
                     QPointF(),
                     measurer.slack(bar.labelRect.width())};
    }
}

} // namespace tovangl
