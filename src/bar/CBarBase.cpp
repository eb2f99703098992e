// SPDX-License-Identifier: MIT
// The base of the bar charts: data, axes, and the room that the axes take.
#include "bar/CBarBase.h"

#include "axes/line_share.h"
#include "core/pixel_arithmetic.h"
#include "labels/CBarTextLabel.h"

#include <algorithm>

namespace tovangl {

namespace {

constexpr int kMargin = 10; // pixels before scaling
constexpr int kFree = -1;

} // namespace

CBarBase::CBarBase(bool background)
    : m_margin(kMargin)
    , m_background(background)
{}

CBarBase::~CBarBase() = default;

bool CBarBase::addItem(long long value, const QString& text, const QColor& color,
                       const QColor& outlineColor)
{
    appendItem(std::make_unique<CBarGraphItem>(value, text, colorOrDefault(color), outlineColor));
    return true;
}

void CBarBase::setPosition(int x, int y)
{
    m_positionX = std::max(x, kFree);
    m_positionY = std::max(y, kFree);
}

bool CBarBase::putBarRectangle(std::list<QRect>& rects) const
{
    if (!m_plotRect.isValid())
        return false;
    for (const CBarGraphItem* item : m_selectedItems)
        rects.push_back(item->barRect());
    return true;
}

void CBarBase::putItemBarRectangle(std::list<QRect>& rects) const
{
    for (const CBarGraphItem* item : drawnItems())
        rects.push_back(item && item->barRect().isValid() ? item->barRect() : QRect());
}

void CBarBase::createCategoryAxis(CAxis::Orientation orientation, CAxis::LegendLocation location,
                                  CAxis::Properties properties, const QString& title)
{
    m_categoryAxis =
        std::make_unique<CCategoryAxis>(orientation, location, properties, locale(), title);
    initCategoryAxis();
}

void CBarBase::createNumberAxis(CAxis::Orientation orientation, CAxis::LegendLocation location,
                                CAxis::Properties properties, const QString& title, int extra)
{
    m_numberAxis =
        std::make_unique<CNumberAxis>(orientation, location, properties, locale(), title);
    initNumberAxis(extra);
}

void CBarBase::initCategoryAxis()
{
    if (!m_categoryAxis)
        return;
    for (CBarGraphItem* item : m_selectedItems)
        m_categoryAxis->addCategory(item);
    m_categoryAxis->setFixedBarWidth(std::max(scalePixels(m_barWidth, m_scale), 0));
    m_categoryAxis->setLineWidth(lineWidth());
    if (m_textColor.isValid())
        m_categoryAxis->setLineColor(m_textColor);
}

void CBarBase::initNumberAxis(int extra)
{
    if (!m_numberAxis)
        return;
    const auto [least, greatest] =
        std::minmax_element(m_selectedItems.begin(), m_selectedItems.end(), compareItems);
    const bool isEmpty = m_selectedItems.empty();
    m_numberAxis->setNumbers(isEmpty ? 0 : (*least)->value(), isEmpty ? 0 : (*greatest)->value(),
                             isEmpty, extra);
    m_numberAxis->setLineWidth(lineWidth());
    if (m_textColor.isValid())
        m_numberAxis->setLineColor(m_textColor);
}

int CBarBase::getTopAxisSpace(QPainter& painter, CAxis* axis, int width)
{
    const CEdgeOfPicture edge = edgeOfPicture(*axis, m_height);
    const int position = scalePixels(m_positionY, m_scale);
    // Only lying bars have an axis at the top, and it is their value axis.
    const CAxisSpace result =
        isFixedPosition(position, m_height)
            ? fixedNearSpace(position, edge)
            : freeSpace(m_numberAxis->getHeightForWidth(painter, width), edge);
    m_topAxisSpace = result.space;
    return result.thickness;
}

int CBarBase::getBottomAxisSpace(QPainter& painter, CAxis* axis, int width)
{
    const CEdgeOfPicture edge = edgeOfPicture(*axis, m_height);
    const int position = scalePixels(m_positionY, m_scale);
    const CAxisSpace result = isFixedPosition(position, m_height)
                                  ? fixedFarSpace(position, edge)
                                  : freeSpace(axis->getHeightForWidth(painter, width), edge);
    m_bottomAxisSpace = result.space;
    return result.thickness;
}

int CBarBase::getLeftAxisSpace(QPainter& painter, CAxis* axis, int height)
{
    const CEdgeOfPicture edge = edgeOfPicture(*axis, m_width);
    const int position = scalePixels(m_positionX, m_scale);
    const CAxisSpace result = isFixedPosition(position, m_width)
                                  ? fixedNearSpace(position, edge)
                                  : freeSpace(axis->getWidthForHeight(painter, height), edge);
    m_leftAxisSpace = result.space;
    return result.thickness;
}

void CBarBase::initBarLabelBoundingRect(QPainter& painter)
{
    QSize largest(0, 0);
    for (const CBarGraphItem* item : m_selectedItems) {
        CBarTextLabel label(item->value(), PlainNumber, locale());
        largest = largest.expandedTo(label.getBoundingRect(painter).size());
    }
    m_barLabelRect = QRect(QPoint(0, 0), largest);
}

void CBarBase::setHorizontalAxis(CAxis::Properties properties, const QString& title)
{
    m_horizontalAxisTitle = title;
    m_horizontalAxisProperties = properties;
}

void CBarBase::setVerticalAxis(CAxis::Properties properties, const QString& title)
{
    m_verticalAxisTitle = title;
    m_verticalAxisProperties = properties;
}

void CBarBase::setBarWidth(int width)
{
    m_barWidth = std::max(width, 0);
}

CAxis::Properties CBarBase::horizontalAxisProperties() const
{
    return m_horizontalAxisProperties;
}

CAxis::Properties CBarBase::verticalAxisProperties() const
{
    return m_verticalAxisProperties;
}

int CBarBase::scaledMargin() const
{
    return scalePixels(m_margin, m_scale);
}

void CBarBase::resetAxisSpaces()
{
    const int margin = scaledMargin();
    m_topAxisSpace = margin;
    m_bottomAxisSpace = margin;
    m_leftAxisSpace = margin;
    m_rightAxisSpace = margin;
}

CEdgeOfPicture CBarBase::edgeOfPicture(const CAxis& axis, int extent) const
{
    const CAxis::LegendLocation location = axis.legendLocation();
    const bool isTopOrLeft = location == CAxis::Top || location == CAxis::Left;
    return {extent, scaledMargin(), lineShare(axis.lineWidth(), isTopOrLeft)};
}

int CBarBase::lineWidth() const
{
    return std::max(m_scale, 1);
}

} // namespace tovangl
