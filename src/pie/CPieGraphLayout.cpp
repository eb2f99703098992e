// SPDX-License-Identifier: MIT
// The pie chart: everything about it that has a place.
#include "core/pixel_arithmetic.h"
#include "draw/circle_geometry.h"
#include "pie/CPieGraph.h"
#include "pie/CPieTextLabel.h"
#include "pie/CZoneArranger.h"
#include "pie/slice_angles.h"

#include <QPainter>

#include <algorithm>
#include <iterator>
#include <memory>
#include <vector>

namespace tovangl {

namespace {

constexpr int kCounterClockwise = 1;

QRectF placedRect(const CPieTextLabel& label)
{
    return label.getBoundingRect().translated(label.getPosition());
}

} // namespace

bool CPieGraph::computeLayout(QPainter& painter)
{
    clearPrivate();
    initSliceAngles();
    createLabels(painter);
    layoutLabels(painter);
    // The test that fails also drops the sizes, and leaves the pie more room.
    if (!isEnoughSpaceForSizeLabel(painter))
        layoutLabels(painter);
    if (!isRoomForPie(frame(), m_labelRect.size()))
        return false;
    if (m_options.testFlag(RemoveLabelOverlaps) && isLabelOverlap())
        removeLabelOverlap();
    return true;
}

void CPieGraph::initSliceAngles()
{
    std::vector<long long> values;
    values.reserve(m_selectedItems.size());
    for (const CPieBaseItem* item : m_selectedItems)
        values.push_back(item->value());

    const auto slices =
        computeSliceAngles(values, m_startAngle * cdraw::kUnitsPerDegree, m_direction);
    auto slice = slices.begin();
    for (CPieBaseItem* item : m_selectedItems) {
        item->setStartAngle(slice->start);
        item->setSpanAngle(slice->span);
        ++slice;
    }
}

void CPieGraph::createLabels(QPainter& painter)
{
    initLabel();
    setLabelBoundingRect(painter);
}

void CPieGraph::initLabel()
{
    const double reach = m_width * 0.5 - frame().scaledMargin();
    for (CPieBaseItem* item : m_selectedItems) {
        auto label = std::make_unique<CPieTextLabel>(item, locale(), m_options.testFlag(ShowSizes));
        label->setScale(std::max(m_scale, 1));
        label->setBold(m_options.testFlag(BoldLabels));
        label->setShortFromLeft(m_options.testFlag(ShortenFromLeft));
        label->setBoundaries(truncateToInt(-reach), truncateToInt(reach));
        label->setLineColor(getLabelLineColor());
        if (m_textColor.isValid())
            label->setTextColor(m_textColor);
        m_labels.push_back(label.get());
        label.release();
    }
}

void CPieGraph::setLabelBoundingRect(QPainter& painter)
{
    double width = 0;
    double height = 0;
    for (CPieTextLabel* label : m_labels) {
        const QRectF rect = label->getBoundingRect(painter);
        width = std::max(width, rect.width());
        height = std::max(height, rect.height());
    }
    m_labelRect = QRectF(0, 0, std::min(width, frame().labelWidthCap()), height);
    for (CPieTextLabel* label : m_labels)
        label->setLabelRect(m_labelRect);
}

CPieGraph::CPieExtent CPieGraph::getWidth(QPainter& painter) const
{
    double radius = m_width;
    for (CPieTextLabel* label : m_labels) {
        const double labelWidth = label->getBoundingRect(painter).width();
        radius = std::min(radiusForLabel(frame(), labelWidth, label->direction().x()), radius);
    }
    return {2 * radius, radius};
}

void CPieGraph::layoutLabels(QPainter& painter)
{
    const double top = frame().scaledMargin() + 0.5 * m_labelRect.height();
    const double width = getWidth(painter).width;
    createArea(m_width * 0.5 - 0.5 * width, top, width, m_height - 2 * top);
    setLabelPosition();
}

void CPieGraph::createArea(double x, double y, double width, double height)
{
    m_area = squareArea(frame(), QRectF(x, y, width, height));
    m_pieRect = pieRectIn(m_area);
}

void CPieGraph::setLabelPosition()
{
    const double outerRadius = m_area.width() * 0.5;
    const double innerRadius = outerRadius - (m_area.width() - m_pieRect.width());
    for (CPieTextLabel* label : m_labels)
        label->initPosition(innerRadius, outerRadius);
}

bool CPieGraph::isEnoughSpaceForSizeLabel(QPainter& painter)
{
    return std::all_of(m_labels.begin(), m_labels.end(), [&painter](const CPieTextLabel* label) {
        return label->isTextLabelShortenCorrectly(painter);
    });
}

bool CPieGraph::isLabelOverlap() const
{
    QRectF previous;
    for (const CPieTextLabel* label : m_labels) {
        const QRectF rect = placedRect(*label);
        if (rect.intersects(previous))
            return true;
        previous = rect;
    }
    return false;
}

void CPieGraph::removeLabelOverlap()
{
    rotateLabelsToHalf();
    const double upper = 0.5 * (m_area.height() + m_labelRect.height());
    const double lower = -upper;
    CZoneArranger right(this, lower, upper, m_labelRect.height());
    CZoneArranger left(this, lower, upper, m_labelRect.height());

    // Slices of one half run from top to bottom or the other way round, as the direction has it.
    const bool leftRunsDown = m_direction == kCounterClockwise;
    for (CPieTextLabel* label : m_labels) {
        const bool runsDown = label->isOnRightHalf() ? !leftRunsDown : leftRunsDown;
        CZoneArranger& arranger = label->isOnRightHalf() ? right : left;
        if (runsDown)
            arranger.addZoneBack(label);
        else
            arranger.addZoneFront(label);
    }
    right.arrange(0.5 * m_area.width());
    left.arrange(0.5 * m_area.width());
}

// Lets the labels begin where they first enter the other half. The list itself is rotated, and the
// labels are drawn in the new order.
void CPieGraph::rotateLabelsToHalf()
{
    const auto entry = std::find_if(m_labels.begin(), m_labels.end(), [this](CPieTextLabel* label) {
        return label->isOnRightHalf() != m_labels.front()->isOnRightHalf();
    });
    m_labels.splice(m_labels.end(), m_labels, m_labels.begin(), entry);
}

CPieFrame CPieGraph::frame() const
{
    return CPieFrame{m_width, m_height, m_margin, m_scale};
}

} // namespace tovangl
