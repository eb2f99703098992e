// SPDX-License-Identifier: MIT
// What the two axes of a bar chart have in common.
#include "layout/CAxis.h"

#include "base/moved_rectangle.h"
#include "layout/label_thinning.h"
#include "layout/line_share.h"

#include <algorithm>
#include <cstdlib>

namespace tovangl {

namespace {

// The room across the axis that line and ticks leave.
int roomForLabels(const CAxisLayout& axis)
{
    return addPixels(axis.shape.frame.orientedSize(axis.rect).height(),
                     -axis.shape.getElementHeight(CAxisShape::LineAndTicks));
}

// Whether ticks this many places apart, counted from the first, are at least one label apart.
bool checkRealDistance(const CAxisLayout& axis, int step)
{
    const auto index = static_cast<std::size_t>(step);
    if (index >= axis.labels.size())
        return true;
    const std::int64_t first = axis.labels.front().tickCoord;
    return axis.shape.labelExtentAlong() <= std::abs(first - axis.labels[index].tickCoord);
}

void hideOverlappedLabels(CAxisLayout& axis)
{
    if (!axis.shape.has(CAxisSettings::HideOverlapped))
        return;
    const int pitch = axis.shape.labelExtentAlong();
    const auto count = static_cast<std::int64_t>(axis.labels.size());
    const std::int64_t step =
        findThinningStep({count, pitch, axis.usableSpan() * axis.shape.rows() + pitch},
                         [&axis](int candidate) { return checkRealDistance(axis, candidate); });
    for (std::int64_t i = 0; i < count; ++i) {
        if (!isLabelKept(i, count, step))
            axis.labels[static_cast<std::size_t>(i)].isHidden = true;
    }
}

// Labels along the axis are never shortened; only their rows need room.
void processAlongLabels(CAxisLayout& axis)
{
    axis.areLabelsHidden = roomForLabels(axis) < axis.shape.labelBandHeight();
}

// Labels across the axis can be shortened to the room available, all or none.
void processAcrossLabels(CAxisLayout& axis, CTextMeasurer& measurer)
{
    const int room = roomForLabels(axis);
    axis.areLabelsHidden =
        !std::all_of(axis.labels.begin(), axis.labels.end(),
                     [&](const CBarTextLabel& label) { return label.text.canFit(room, measurer); });
    if (!axis.areLabelsHidden && room < axis.shape.getElementHeight(CAxisShape::Label))
        axis.shape.labelSize.setWidth(room);
}

Qt::Alignment labelAlignment(const CAxisShape& shape)
{
    if (shape.direction != LabelDirection::Across)
        return Qt::AlignHCenter;
    return (shape.frame.startsAtLine() ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter;
}

} // namespace

CAxis::CAxis(const CAxisFrame& frame, const CAxisSettings& settings, const CAxisLook& look,
             int secondRowSign, CTextMeasurer& measurer)
    : m_shape{frame, settings.properties, look.lineWidth, false, LabelDirection::Across, {}, {}}
    , m_look(look)
    , m_secondRowSign(secondRowSign)
    , m_title(settings.title, {settings.has(CAxisSettings::BoldTitle), false}, measurer)
{
    m_shape.titleRect = m_title.wholePixelRect();
}

CAxis::~CAxis() = default;

void CAxis::setLabels(std::vector<CBarTextLabel> labels, bool isEmpty)
{
    m_labels = std::move(labels);
    m_shape.isEmpty = isEmpty;
    QSize largest(0, 0);
    for (const CBarTextLabel& label : m_labels)
        largest = largest.expandedTo(label.text.wholePixelRect().size());
    m_shape.labelSize = largest;
}

int CAxis::lineShare() const
{
    return tovangl::lineShare(m_look.lineWidth, m_shape.frame.isTopOrLeft());
}

int CAxis::getHeightForWidth(int width) const
{
    return m_shape.frame.isHorizontal() ? getSizeForLength(width) : 0;
}

int CAxis::getWidthForHeight(int height) const
{
    return m_shape.frame.isHorizontal() ? 0 : getSizeForLength(height);
}

int CAxis::getSizeForLength(int length) const
{
    CAxisShape shape = m_shape;
    shape.direction = initLabelDirection(length);
    return shape.getElementHeight(CAxisShape::WholeThickness);
}

CAxisLayout CAxis::fitToRect(const QRect& rect, CTextMeasurer& measurer) const
{
    CAxisLayout axis = initCoordinates(rect);
    placeLabels(axis);
    hideOverlappedLabels(axis);
    processLabels(axis, measurer);
    processTitle(axis, measurer);
    drawLine(axis);
    drawLabels(axis, measurer);
    drawTitle(axis, measurer);
    return axis;
}

// Deliberate: the line's own width is subtracted from the length only here, for choosing the
// direction, and from no other measure.
LabelDirection CAxis::initLabelDirection(int length) const
{
    if (!m_shape.frame.isHorizontal())
        return LabelDirection::Across;
    const int free = addPixels(length, -m_look.lineWidth);
    return chooseLabelDirection(static_cast<std::int64_t>(m_labels.size()),
                                m_shape.labelSize.width(), usableSpan(LabelDirection::Along, free),
                                usableSpan(LabelDirection::AlongTwoRows, free));
}

std::int64_t CAxis::usableSpan(LabelDirection direction, int length) const
{
    CAxisShape shape = m_shape;
    shape.direction = direction;
    const CShifts shifts = labelShifts(shape.labelExtentAlong(), length);
    return std::int64_t{length} + shifts.end - shifts.begin;
}

// Puts the axis line at its edge of the rectangle.
CAxisLayout CAxis::initCoordinates(const QRect& rect) const
{
    CAxisLayout axis{m_shape, rect, m_shape.frame.originIn(rect)};
    axis.labels = m_labels;
    axis.title = m_title;
    axis.length = m_shape.frame.distanceAlong(rect);
    axis.shape.direction = initLabelDirection(addPixels(axis.length, 1));
    const CShifts shifts = labelShifts(axis.shape.labelExtentAlong(), axis.length);
    axis.shiftAtBegin = shifts.begin;
    axis.shiftAtEnd = shifts.end;
    axis.isLineHidden =
        m_shape.frame.orientedSize(rect).height() < m_shape.getElementHeight(CAxisShape::Line);
    return axis;
}

// Puts the labels at their ticks. With two rows the visible ones alternate; hidden ones stay in the
// first row.
void CAxis::placeLabels(CAxisLayout& axis) const
{
    const int secondRow =
        axis.shape.direction == LabelDirection::AlongTwoRows
            ? m_secondRowSign * axis.shape.getElementHeight(CAxisShape::SecondRowOffset)
            : 0;
    const std::vector<int> tickCoords = ticks(axis);
    bool isInFirstRow = true;
    auto tick = tickCoords.begin();
    for (CBarTextLabel& label : axis.labels) {
        label.tickCoord = *tick++;
        label.orientedPos =
            COrientedCoord(label.tickCoord, label.isHidden || isInFirstRow ? 0 : secondRow);
        if (!label.isHidden)
            isInFirstRow = !isInFirstRow;
    }
}

void CAxis::processLabels(CAxisLayout& axis, CTextMeasurer& measurer) const
{
    if (axis.shape.direction == LabelDirection::Across)
        processAcrossLabels(axis, measurer);
    else
        processAlongLabels(axis);
}

void CAxis::processTitle(CAxisLayout& axis, CTextMeasurer& measurer) const
{
    const QSize space = axis.shape.frame.orientedSize(axis.rect);
    const int along = space.width();
    if (!axis.title.canFit(along, measurer) ||
        space.height() < axis.shape.getElementHeight(CAxisShape::WholeThickness)) {
        axis.isTitleHidden = true;
        return;
    }
    QRect& box = axis.shape.titleRect;
    box.setRight(addPixels(box.left() - 1, along));
    // The box starts at the left end of a horizontal axis and at the bottom end of a vertical one.
    const bool startsAtAxisEnd = axis.shape.frame.isHorizontal() == axis.shape.frame.isReversed();
    axis.titlePos =
        COrientedCoord(startsAtAxisEnd ? axis.length : 0, axis.shape.getAxisToTitleShift());
}

void CAxis::drawLine(CAxisLayout& axis) const
{
    if (!axis.shape.has(CAxisSettings::ShowLine) || axis.isLineHidden)
        return;
    const QPoint from = axis.originOnPicture();
    const QPoint to = movedPoint(axis.shape.frame.resolveOrientedCoordSigned(axis.length, 0), from);
    axis.line = CStraightLine{from, to, m_look.lineColor, m_look.lineWidth};
}

void CAxis::drawLabels(CAxisLayout& axis, CTextMeasurer& measurer) const
{
    if (!axis.shape.has(CAxisSettings::ShowLabels) || axis.areLabelsHidden)
        return;
    const QPoint first = axis.shape.frame.resolveOrientedCoordSigned(
        addPixels(axis.shiftAtBegin, -axis.halfLabelSigned()), axis.shape.getAxisToLabelShift());
    const QPointF start = QPointF(axis.originOnPicture()) + first;
    const QPoint startPixel = movedPoint(axis.originOnPicture(), first);
    const QRect box(QPoint(0, 0), axis.shape.labelSize);
    const Qt::Alignment alignment = labelAlignment(axis.shape);
    const bool isBold = axis.shape.has(CAxisSettings::BoldLabels);
    for (CBarTextLabel& label : axis.labels) {
        if (label.isHidden)
            continue;
        const QRect room =
            movedRectangle(box, axis.shape.frame.resolveOrientedCoordSigned(label.orientedPos));
        label.pixels = coveredPixels(room, axis.isRotated(), startPixel);
        label.isDrawn = room.isValid();
        if (!label.isDrawn)
            continue;
        axis.texts.push_back({label.text.getAdjustedText(box.width(), measurer), toRoom(room),
                              alignment, m_look.labelColor, isBold, axis.isRotated(), start,
                              measurer.slack(room.width())});
    }
}

void CAxis::drawTitle(CAxisLayout& axis, CTextMeasurer& measurer) const
{
    if (!axis.shape.has(CAxisSettings::ShowTitle) || axis.isTitleHidden)
        return;
    const QPoint pos = axis.shape.frame.resolveOrientedCoordSigned(axis.titlePos);
    const QRect room = movedRectangle(axis.shape.titleRect, pos);
    if (!room.isValid())
        return;
    axis.texts.push_back({axis.title.getAdjustedText(room.width(), measurer), toRoom(room),
                          Qt::AlignHCenter | Qt::AlignVCenter, m_look.titleColor,
                          axis.shape.has(CAxisSettings::BoldTitle),
                          !axis.shape.frame.isHorizontal(), axis.originOnPicture(),
                          measurer.slack(room.width())});
}

} // namespace tovangl
