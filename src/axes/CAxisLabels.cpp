// SPDX-License-Identifier: MIT
// The base of the axes of a bar chart: measuring labels and title, and what has room.
#include "axes/CAxis.h"
#include "axes/label_thinning.h"
#include "labels/CBarTextLabel.h"

#include <QtAlgorithms>

#include <algorithm>
#include <cstdlib>

namespace tovangl {

void CAxis::setLabelBoundingRect(QPainter& painter)
{
    m_labelRect = QRect();
    if (m_labels.empty())
        return;
    QSize largest(0, 0);
    for (CBarTextLabel* label : m_labels)
        largest = largest.expandedTo(label->getBoundingRect(painter).size());
    m_labelRect = QRect(QPoint(0, 0), largest);
}

void CAxis::setTitleBoundingRect(QPainter& painter)
{
    m_titleRect = m_titleLabel->getBoundingRect(painter);
}

void CAxis::processLabels(QPainter& painter, const QRect& rect)
{
    if (m_labelDirection == Across) {
        placeAcrossLabels();
        hideOverlappedLabels();
        processAcrossLabels(painter, rect);
    } else {
        placeAlongLabels();
        hideOverlappedLabels();
        processAlongLabels(painter, rect);
    }
}

void CAxis::processAlongLabels(QPainter&, const QRect& rect)
{
    if (roomForLabels(rect) < labelBandHeight())
        m_labelsHidden = true;
}

void CAxis::processAcrossLabels(QPainter& painter, const QRect& rect)
{
    const int room = roomForLabels(rect);
    for (const CBarTextLabel* label : m_labels) {
        if (!label->canFit(room, painter)) {
            m_labelsHidden = true;
            return;
        }
    }
    if (room < getElementHeight(Label))
        m_labelRect.setRight(addPixels(m_labelRect.left() - 1, room));
}

void CAxis::processTitle(QPainter& painter, const QRect& rect)
{
    const QSize space = getSpaceForTitle(rect);
    const int along = space.width();
    const int across = space.height();
    if (!m_titleLabel->canFit(along, painter) || across < getElementHeight(WholeThickness)) {
        m_titleHidden = true;
        return;
    }
    m_titleRect.setRight(addPixels(m_titleRect.left() - 1, along));
    // The box starts at the left end of a horizontal axis and at the bottom end of a vertical one.
    const bool startsAtAxisEnd = m_orientation == RightToLeft || m_orientation == TopToBottom;
    const int start = startsAtAxisEnd ? addPixels(m_axisLength, -m_axisStart) : 0;
    m_titleLabel->setOrientedPos(COrientedCoord(start, getAxisToTitleShift()));
}

void CAxis::hideOverlappedLabels()
{
    if (!m_properties.testFlag(HideOverlapped))
        return;
    const int pitch = labelExtentAlong();
    const int rows = m_labelDirection == AlongTwoRows ? 2 : 1;
    const auto count = static_cast<std::int64_t>(m_labels.size());
    const std::int64_t step =
        findThinningStep({count, pitch, usableSpan() * rows + pitch},
                         [this](int candidate) { return checkRealDistance(candidate); });
    for (std::int64_t i = 0; i < count; ++i) {
        if (!isLabelKept(i, count, step))
            m_labels[static_cast<std::size_t>(i)]->setHidden(true);
    }
}

bool CAxis::checkRealDistance(int step) const
{
    const auto index = static_cast<std::size_t>(step);
    if (index >= m_labels.size())
        return true;
    const std::int64_t first = m_labels.front()->tickCoord();
    return labelExtentAlong() <= std::abs(first - m_labels[index]->tickCoord());
}

void CAxis::placeInRows(const std::vector<int>& ticks, bool isRotated, int secondRow)
{
    bool isInFirstRow = true;
    auto tick = ticks.begin();
    for (CBarTextLabel* label : m_labels) {
        const int across = label->isHidden() || isInFirstRow ? 0 : secondRow;
        label->setTickCoord(*tick);
        label->setOrientedPos(COrientedCoord(*tick, across));
        label->setRotated(isRotated);
        if (!label->isHidden())
            isInFirstRow = !isInFirstRow;
        ++tick;
    }
}

void CAxis::clearLabels()
{
    qDeleteAll(m_labels);
    m_labels.clear();
}

int CAxis::roomForLabels(const QRect& rect) const
{
    return addPixels(getSpaceForLabels(rect).height(), -getElementHeight(LineAndTicks));
}

} // namespace tovangl
