// SPDX-License-Identifier: MIT
// The label of a slice while the layout places it.
#include "layout/CPieTextLabel.h"

#include "base/circle_geometry.h"
#include "layout/pie_geometry.h"
#include "text/number_text.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tovangl {

namespace {

constexpr double kPi = 3.14159265358979323846;

// The text's top stands this much above the place that would centre it on its line; pixels at
// every scale.
constexpr double kLabelRaise = 1.0;

int middleOf(const CSliceAngles& angles)
{
    return cdraw::normalizeArc(angles.start + angles.span / 2);
}

// Deliberate: the angle is negated, because y grows downward on the picture.
QPointF directionOf(int arc)
{
    const double radians = -arc * kPi / cdraw::kHalfCircle;
    return QPointF(std::cos(radians), std::sin(radians));
}

} // namespace

QString getSizeText(long long value, const QString& unit, const QLocale& locale, const CKilo& kilo)
{
    QString number = numberText(value, PrefixedOneDecimal, locale, kilo);
    // A prefix brings its own space, and no unit needs none.
    if (!unit.isEmpty() && number.at(number.size() - 1).isDigit())
        number += QLatin1Char(' ');
    return QLatin1String(" [") + number + unit + QLatin1Char(']');
}

CPieTextLabel::CPieTextLabel(const CPieSlice& slice, CTextLabel name, CTextLabel size,
                             const CPieLabelFrame& frame)
    : m_name(std::move(name))
    , m_size(std::move(size))
    , m_frame(frame)
    , m_arc(middleOf(slice.angles))
    , m_direction(directionOf(m_arc))
{
    m_lines.item = slice.item;
}

void CPieTextLabel::initBoundingRect(bool isSizeShown)
{
    const QRectF& name = m_name.getBoundingRect();
    const QRectF& size = m_size.getBoundingRect();
    double width = name.width() + (isSizeShown ? size.width() : 0.0);
    // Deliberate: the height of the size counts even if the size is not drawn.
    double height = std::max(name.height(), size.height());

    const QRectF room = getBoundingRectAdjustedToGraphBoundary();
    if (room.width() > 0 && room.height() > 0) {
        width = std::min(width, room.width());
        height = std::min(height, room.height());
    }
    m_rect = QRectF(0, 0, width, height);
}

void CPieTextLabel::initPosition(double innerRadius, double outerRadius)
{
    const int sign = isOnRightHalf() ? 1 : -1;
    const double lineLength = sign * double{kLabelLineLength} * m_frame.scale;
    const double gap = sign * double{kLabelGap} * m_frame.scale;

    const QPointF elbow = outerRadius * m_direction;
    m_lines.beamStart = innerRadius * m_direction;
    m_lines.elbow = elbow;
    m_lines.lineEnd = QPointF(elbow.x() + lineLength, elbow.y());
    m_lines.labelPos =
        QPointF(elbow.x() + lineLength + gap, elbow.y() - m_labelRect.height() * 0.5 - kLabelRaise);
}

bool CPieTextLabel::isTextLabelShortenCorrectly(CTextMeasurer& measurer) const
{
    const double room =
        getBoundingRectAdjustedToGraphBoundary().width() - m_size.getBoundingRect().width();
    return m_name.canFit(room, measurer);
}

QPointF CPieTextLabel::getPosition() const
{
    const QPointF& anchor = m_lines.labelPos;
    return isOnRightHalf() ? anchor : anchor - QPointF(m_rect.width(), 0);
}

void CPieTextLabel::updateArrangedPosition(double x, double y)
{
    // Deliberate: beam and elbow stay, so the line from there to the moved text is slanted.
    const QPointF distance(x - m_lines.elbow.x(), y - m_lines.elbow.y());
    m_lines.labelPos += distance;
    m_lines.lineEnd += distance;
}

QRectF CPieTextLabel::getBoundingRectAdjustedToGraphBoundary() const
{
    const double anchor = m_lines.labelPos.x();
    QRectF rect = m_labelRect;
    rect.setWidth(isOnRightHalf() ? m_frame.reach - anchor : anchor + m_frame.reach);
    return rect;
}

bool CPieTextLabel::isOnRightHalf() const
{
    return isRightHalf(m_arc);
}

CPlacedPieLabel CPieTextLabel::withTexts(bool isSizeShown, const QColor& color,
                                         const QPoint& origin, CTextMeasurer& measurer) const
{
    CPlacedPieLabel label = m_lines;
    if (label.isHidden)
        return label;
    const auto add = [&](const QString& text, const QRectF& room) {
        // Deliberate: only horizontal alignment is set; texts hang from the top.
        label.texts.push_back({text, room, isOnRightHalf() ? Qt::AlignLeft : Qt::AlignRight, color,
                               m_name.style().isBold, false, QPointF(),
                               measurer.slack(room.width())});
    };
    const auto adjusted = [&](const CTextLabel& part, const QRectF& room) {
        return part.getAdjustedText(room.width(), measurer);
    };
    const CParts parts = placeParts(isSizeShown);
    if (isPaintedAsOne(parts, measurer)) {
        add(adjusted(m_name, parts.name) + adjusted(m_size, parts.size),
            parts.name.united(parts.size));
    } else {
        if (parts.name.isValid())
            add(adjusted(m_name, parts.name), parts.name);
        if (parts.size.isValid())
            add(adjusted(m_size, parts.size), parts.size);
    }
    label.itemRect = coveredPixels(parts.both, false, origin);
    return label;
}

// Where painted texts are not exactly as wide as measured, the size follows a name of one line
// wherever that ends, instead of at a place of its own.
bool CPieTextLabel::isPaintedAsOne(const CParts& parts, const CTextMeasurer& measurer) const
{
    return measurer.slack(parts.name.width()) > 0 && parts.name.isValid() && parts.size.isValid() &&
           m_name.getBoundingRect().height() <= m_size.getBoundingRect().height();
}

// Puts the size after the name; if both do not fit, the name is shortened.
CPieTextLabel::CParts CPieTextLabel::placeParts(bool isSizeShown) const
{
    const QRectF& name = m_name.getBoundingRect();
    const QRectF size = isSizeShown ? m_size.getBoundingRect() : QRectF();
    const QRectF room = getBoundingRectAdjustedToGraphBoundary();
    const bool isCut = name.width() + size.width() > room.width();
    const double nameWidth = isCut ? room.width() - size.width() : name.width();

    const QPointF& anchor = m_lines.labelPos;
    const double y = anchor.y();
    const double nameX = isOnRightHalf() ? anchor.x() : anchor.x() - size.width() - nameWidth;
    const double sizeX = isOnRightHalf() ? nameX + nameWidth : anchor.x() - size.width();
    CParts parts;
    parts.name = QRectF(nameX + name.x(), y + name.y(), nameWidth, name.height());
    parts.size = QRectF(sizeX + size.x(), y + size.y(), size.width(), size.height());
    parts.both = (isCut ? room : m_rect).translated(nameX, y);
    return parts;
}

} // namespace tovangl
