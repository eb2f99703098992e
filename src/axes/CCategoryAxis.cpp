// SPDX-License-Identifier: MIT
// The axis along which the bars of a bar chart stand.
#include "axes/CCategoryAxis.h"

#include "axes/CNumberAxis.h"
#include "axes/bar_placement.h"
#include "axes/moved_rectangle.h"
#include "core/CBarGraphItem.h"
#include "labels/CBarTextLabel.h"

#include <cstdlib>

namespace tovangl {

// Where the rectangles of the first category start.
struct CCategoryAxis::CBarOrigins
{
    QPoint bar;
    QPoint valueLabel;
};

// What all value labels have in common.
struct CCategoryAxis::CValueLabelBox
{
    QRect rect; // the size alone counts
    int gap = 0;
};

CCategoryAxis::~CCategoryAxis() = default;

void CCategoryAxis::initAfterAxisLength()
{
    setDrawBarWidth();
}

void CCategoryAxis::placeAcrossLabels()
{
    placeInRows(ticksApart(pitch()), isHorizontal(), 0);
}

void CCategoryAxis::placeAlongLabels()
{
    const double distance = labelDirection() == Across ? 0.0 : pitch();
    // Deliberate: the second row has a negative offset here and a positive one on a value axis.
    const int secondRow = labelDirection() == AlongTwoRows ? -getElementHeight(SecondRowOffset) : 0;
    placeInRows(ticksApart(distance), !isHorizontal(), secondRow);
}

int CCategoryAxis::labelShiftAtBegin() const
{
    return getLabelShift();
}

int CCategoryAxis::labelShiftAtEnd() const
{
    return -getLabelShift();
}

void CCategoryAxis::addCategory(CBarGraphItem* item)
{
    auto label = std::make_unique<CBarTextLabel>(item, nullptr);
    label->setBold(properties().testFlag(BoldLabels));
    appendLabel(std::move(label));
}

void CCategoryAxis::setDrawBarWidth()
{
    m_drawBarWidth = m_fixedBarWidth > 0
                         ? m_fixedBarWidth
                         : derivedBarWidth(coveredLength() + lineWidth(), categories());
}

int CCategoryAxis::getLabelShift() const
{
    return categoryShift({categories(), coveredLength(), m_drawBarWidth}, labelExtentAlong());
}

QRect CCategoryAxis::getBar(double centre, int from, int to) const
{
    const int width = addPixels(m_drawBarWidth, -lineWidth());
    return barRectangle({centre, width, from, to}, isHorizontal());
}

void CCategoryAxis::setItemBarAndLabel(QPainter&, CAxis* valueAxis, const QRect& labelRect,
                                       int labelGap)
{
    const auto* numberAxis = dynamic_cast<const CNumberAxis*>(valueAxis);
    if (!numberAxis)
        return;
    const CBarOrigins origins = barOrigins();
    const CValueLabelBox box{labelRect, labelGap};
    for (const CBarTextLabel* label : m_labels) {
        auto* item = dynamic_cast<CBarGraphItem*>(label->getItem());
        if (!item)
            continue;
        const int valueCoord = numberAxis->getNumberCoord(item->value());
        item->setBarRect(barRect(*label, *numberAxis, valueCoord, origins.bar));
        item->setBarLabelRect(
            valueLabelRect(*label, *numberAxis, valueCoord, origins.valueLabel, box));
    }
}

std::int64_t CCategoryAxis::categories() const
{
    return static_cast<std::int64_t>(m_labels.size());
}

std::int64_t CCategoryAxis::coveredLength() const
{
    return std::abs(std::int64_t{axisLength()} - axisStart());
}

double CCategoryAxis::pitch() const
{
    return categoryPitch(usableSpan(), categories());
}

// Where the categories stand, from the first one on.
std::vector<int> CCategoryAxis::ticksApart(double distance) const
{
    std::vector<int> ticks;
    ticks.reserve(m_labels.size());
    for (std::size_t i = 0; i < m_labels.size(); ++i)
        ticks.push_back(truncateToInt(static_cast<double>(i) * distance));
    return ticks;
}

// Bars and value labels start at the axis line, whatever stands on the other side of it.
CCategoryAxis::CBarOrigins CCategoryAxis::barOrigins() const
{
    const int firstCentre = addPixels(axisStart(), labelShiftAtBegin());
    const int firstLabel = addPixels(firstCentre, -halfLabelSigned());
    const auto onPicture = [this](int along) {
        const QPoint shift = resolveOrientedCoordSigned(along, 0);
        const QPoint start = originOnPicture();
        return QPoint(addPixels(shift.x(), start.x()), addPixels(shift.y(), start.y()));
    };
    return {onPicture(firstCentre), onPicture(firstLabel)};
}

QRect CCategoryAxis::barRect(const CBarTextLabel& label, const CNumberAxis& valueAxis,
                             int valueCoord, const QPoint& origin) const
{
    if (valueCoord < 0)
        return QRect();
    const int zero = valueAxis.getNumberCoord(0);
    return movedRectangle(getBar(signedAlong(label.tickCoord()), valueAxis.signedAlong(zero),
                                 valueAxis.signedAlong(valueCoord)),
                          origin);
}

QRect CCategoryAxis::valueLabelRect(const CBarTextLabel& label, const CNumberAxis& valueAxis,
                                    int valueCoord, const QPoint& origin,
                                    const CValueLabelBox& box) const
{
    if (isHorizontal() || label.isHidden() || !valueAxis.canDrawBarLabel())
        return QRect();
    const QPoint pos = resolveOrientedCoordSigned(label.orientedPos());
    std::int64_t distance = 0;
    if (valueAxis.orientation() == LeftToRight)
        distance = std::int64_t{valueCoord} + box.gap + 1;
    else if (valueAxis.orientation() == RightToLeft)
        distance = std::int64_t{valueCoord} + box.gap + box.rect.width();
    const int x = clampToInt(std::int64_t{pos.x()} + origin.x() + distance * valueAxis.alongSign());
    const int y = addPixels(pos.y(), origin.y());
    return movedRectangle(QRect(QPoint(0, 0), box.rect.size()), QPoint(x, y));
}

} // namespace tovangl
