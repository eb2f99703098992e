// SPDX-License-Identifier: MIT
// The label of a slice: its texts, their extent and their place.
#include "pie/CPieTextLabel.h"

#include "core/CPieBaseItem.h"
#include "draw/circle_geometry.h"
#include "pie/pie_geometry.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tovangl {

namespace {

constexpr double kPi = 3.14159265358979323846;

// The text's top stands this much above the place that would centre it on its line; pixels at
// every scale.
constexpr double kLabelRaise = 1.0;

// Deliberate: the angle is negated, because y grows downward on the picture.
double screenRadians(int arc)
{
    return -arc * kPi / cdraw::kHalfCircle;
}

QLatin1String unitName()
{
    return QLatin1String("B");
}

} // namespace

thread_local bool CPieTextLabel::m_canDrawSizeLabel = true;

CPieTextLabel::CPieTextLabel(CPieBaseItem* item, const QLocale* locale, bool withSize)
    : CTextLabel(locale)
    , m_withSize(withSize)
    , m_arc(cdraw::normalizeArc(item->startAngle() + item->spanAngle() / 2))
    , m_arcSin(std::sin(screenRadians(m_arc)))
    , m_arcCos(std::cos(screenRadians(m_arc)))
{
    m_nameLabel = std::make_unique<PartLabel>(item, locale);
    m_sizeLabel = std::make_unique<PartLabel>(withSize ? getSizeText(item) : QString(), locale);
    m_canDrawSizeLabel = true;
}

CPieTextLabel::~CPieTextLabel() = default;

void CPieTextLabel::setBold(bool bold)
{
    CTextLabel::setBold(bold);
    m_nameLabel->setBold(bold);
    m_sizeLabel->setBold(bold);
}

void CPieTextLabel::setShortFromLeft(bool shortFromLeft)
{
    CTextLabel::setShortFromLeft(shortFromLeft);
    m_nameLabel->setShortFromLeft(shortFromLeft);
    m_sizeLabel->setShortFromLeft(shortFromLeft);
}

CGraph1dItem* CPieTextLabel::getItem() const
{
    return m_nameLabel->getItem();
}

QString CPieTextLabel::getText() const
{
    return m_nameLabel->getText() + m_sizeLabel->getText();
}

QRectF CPieTextLabel::getBoundingRect(QPainter& painter)
{
    const QRectF name = m_nameLabel->getBoundingRect(painter);
    const QRectF size = m_sizeLabel->getBoundingRect(painter);
    double width = name.width() + (m_canDrawSizeLabel ? size.width() : 0.0);
    // Deliberate: a size that is not drawn still counts with its height.
    double height = std::max(name.height(), size.height());

    const QRectF room = getBoundingRectAdjustedToGraphBoundary();
    if (room.width() > 0 && room.height() > 0) {
        width = std::min(width, room.width());
        height = std::min(height, room.height());
    }
    m_rect = QRectF(0, 0, width, height);
    return m_rect;
}

QRectF CPieTextLabel::getBoundingRect() const
{
    return m_rect;
}

QString CPieTextLabel::debug() const
{
    return QString(QLatin1String("%1: arc: %2, lblCPoint: %3, %4"))
        .arg(getText(), QString::number(m_arc), QString::number(m_labelPos.x()),
             QString::number(m_labelPos.y()));
}

void CPieTextLabel::initPosition(double innerRadius, double outerRadius)
{
    m_beamStart = innerRadius * direction();
    m_elbow = outerRadius * direction();

    const int sign = isOnRightHalf() ? 1 : -1;
    const double lineLength = sign * double{kLabelLineLength} * m_scale;
    const double gap = sign * double{kLabelGap} * m_scale;
    m_lineEnd = QPointF(m_elbow.x() + lineLength, m_elbow.y());
    m_labelPos = QPointF(m_elbow.x() + lineLength + gap,
                         m_elbow.y() - m_labelRect.height() * 0.5 - kLabelRaise);
}

bool CPieTextLabel::isTextLabelShortenCorrectly(QPainter& painter) const
{
    const double room = getBoundingRectAdjustedToGraphBoundary().width() -
                        m_sizeLabel->getBoundingRect(painter).width();
    const bool fits = m_nameLabel->canFit(room, painter);
    m_canDrawSizeLabel = m_canDrawSizeLabel && fits;
    return fits;
}

QPointF CPieTextLabel::getPosition() const
{
    return isOnRightHalf() ? m_labelPos : m_labelPos - QPointF(m_rect.width(), 0);
}

void CPieTextLabel::updateArrangedPosition(double x, double y)
{
    // Deliberate: beam and elbow stay, so the text line runs slanted from there to its moved end.
    const QPointF distance(x - m_elbow.x(), y - m_elbow.y());
    m_labelPos += distance;
    m_lineEnd += distance;
}

QString CPieTextLabel::getSizeText(const CPieBaseItem* item) const
{
    QString number = numberToText(item->value(), PrefixedOneDecimal);
    // A prefix brings its own space.
    if (number.at(number.size() - 1).isDigit())
        number += QLatin1Char(' ');
    return QLatin1String(" [") + number + unitName() + QLatin1Char(']');
}

QString CPieTextLabel::getLabelText(const CPieBaseItem* item, bool withSize) const
{
    return withSize ? item->text() + getSizeText(item) : item->text();
}

QRectF CPieTextLabel::getBoundingRectAdjustedToGraphBoundary() const
{
    QRectF rect = m_labelRect;
    rect.setWidth(isOnRightHalf() ? m_rightBoundary - m_labelPos.x()
                                  : m_labelPos.x() - m_leftBoundary);
    return rect;
}

void CPieTextLabel::setBoundaries(int left, int right)
{
    m_leftBoundary = left;
    m_rightBoundary = right;
}

void CPieTextLabel::setTextColor(const QColor& color)
{
    m_nameLabel->setColor(color);
    m_sizeLabel->setColor(color);
}

bool CPieTextLabel::isOnRightHalf() const
{
    return isRightHalf(m_arc);
}

// Nothing, where sizes are not drawn.
QRectF CPieTextLabel::measureSizeLabel(QPainter& painter) const
{
    return m_canDrawSizeLabel ? m_sizeLabel->getBoundingRect(painter) : QRectF();
}

// Puts the size behind the name; the name gives way where both do not fit.
CPieTextLabel::CParts CPieTextLabel::placeParts(QPainter& painter)
{
    const QRectF name = m_nameLabel->getBoundingRect(painter);
    const QRectF size = measureSizeLabel(painter);
    const QRectF room = getBoundingRectAdjustedToGraphBoundary();
    double nameWidth = name.width();
    if (nameWidth + size.width() > room.width()) {
        nameWidth = room.width() - size.width();
        m_rect = room;
    }

    const double nameX =
        isOnRightHalf() ? m_labelPos.x() : m_labelPos.x() - size.width() - nameWidth;
    const double sizeX = isOnRightHalf() ? nameX + nameWidth : m_labelPos.x() - size.width();
    CParts parts;
    parts.origin = QPointF(nameX, m_labelPos.y());
    parts.name = QRectF(nameX + name.x(), m_labelPos.y() + name.y(), nameWidth, name.height());
    parts.size = QRectF(sizeX + size.x(), m_labelPos.y() + size.y(), size.width(), size.height());
    return parts;
}

} // namespace tovangl
