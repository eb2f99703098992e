// SPDX-License-Identifier: MIT
// One text of a chart, in whole pixels or in fractions.
#include "labels/CTextLabel.h"

#include "core/CGlobal.h"
#include "core/CGraph1dItem.h"
#include "core/pixel_arithmetic.h"
#include "core/qt_versions.h"
#include "draw/CPainterSaver.h"
#include "draw/text_fitting.h"

#include <QLocale>
#include <QPainter>
#include <QTextOption>
#include <QTransform>

#include <cmath>

namespace tovangl {

namespace {

constexpr double kReadingUpward = -90.0; // degrees

// Edges in image pixels, computed wide and clamped when they become a rectangle.
template <typename N>
struct CEdges
{
    N left, top, width, height;
};

// All that differs between the two kinds of label.
template <typename R>
struct CLabelGeometry;

template <>
struct CLabelGeometry<QRect>
{
    using Number = std::int64_t;
    // Right and bottom edges are pixels of the rectangle.
    static constexpr Number kInclusive = 1;

    static QRectF drawnRect(const QRect& rect)
    {
        return QRectF(rect.left(), rect.top(),
                      static_cast<double>(extent(rect.left(), rect.right())),
                      static_cast<double>(extent(rect.top(), rect.bottom())));
    }
    static CEdges<Number> edges(const QRect& rect)
    {
        return {rect.left(), rect.top(), extent(rect.left(), rect.right()),
                extent(rect.top(), rect.bottom())};
    }
    static QRect pixelRect(const CEdges<Number>& edges)
    {
        return QRect(QPoint(clampToInt(edges.left), clampToInt(edges.top)),
                     QPoint(clampToInt(edges.left + edges.width - 1),
                            clampToInt(edges.top + edges.height - 1)));
    }
    // A rectangle with that corner, whose width and height are exchanged.
    static QRect transposed(const QPoint& corner, const QRect& rect)
    {
        const CEdges<Number> old = edges(rect);
        return pixelRect({corner.x(), corner.y(), old.height, old.width});
    }
    static Number extent(Number first, Number last) { return last - first + kInclusive; }
};

template <>
struct CLabelGeometry<QRectF>
{
    using Number = double;

    static QRectF drawnRect(const QRectF& rect) { return rect; }
    static CEdges<Number> edges(const QRectF& rect)
    {
        return {rect.left(), rect.top(), rect.width(), rect.height()};
    }
    static QRect pixelRect(const CEdges<Number>& edges)
    {
        return CLabelGeometry<QRect>::pixelRect(
            {nearest(edges.left), nearest(edges.top), nearest(edges.width), nearest(edges.height)});
    }
    static QRectF transposed(const QPointF& corner, const QRectF& rect)
    {
        return QRectF(corner, QSizeF(rect.height(), rect.width()));
    }
    // Halves away from zero.
    static std::int64_t nearest(double value) { return truncateToInt(std::round(value)); }
};

// A text turned upward covers the rectangle's height to the right of its left edge, and its width
// above its top edge.
template <typename R>
QRect turnedPixelRect(const R& rect, int dx, int dy)
{
    using Geometry = CLabelGeometry<R>;
    const auto edges = Geometry::edges(rect);
    return Geometry::pixelRect(
        {edges.left + dx, edges.top + dy - edges.width, edges.height, edges.width});
}

template <typename R>
QRect movedPixelRect(const R& rect, int dx, int dy)
{
    using Geometry = CLabelGeometry<R>;
    const auto edges = Geometry::edges(rect);
    return Geometry::pixelRect({edges.left + dx, edges.top + dy, edges.width, edges.height});
}

} // namespace

void applyBold(QPainter& painter, bool bold)
{
    if (!bold)
        return;
    QFont font = painter.font();
    font.setWeight(QFont::Bold);
    painter.setFont(font);
}

template <typename P, typename R>
CTextLabel<P, R>::CTextLabel(const QLocale* locale)
    : m_locale(locale)
{}

template <typename P, typename R>
CTextLabel<P, R>::CTextLabel(CGraph1dItem* item, const QLocale* locale)
    : m_text(item ? item->text() : QString())
    , m_item(item)
    , m_locale(locale)
{}

template <typename P, typename R>
CTextLabel<P, R>::CTextLabel(const QString& text, const QLocale* locale)
    : m_text(text)
    , m_locale(locale)
{}

template <typename P, typename R>
CTextLabel<P, R>::CTextLabel(long long value, NumberFormat format, const QLocale* locale)
    : m_value(value)
    , m_locale(locale)
{
    m_text = numberToText(value, format);
}

template <typename P, typename R>
CTextLabel<P, R>::~CTextLabel() = default;

template <typename P, typename R>
void CTextLabel<P, R>::setBold(bool bold)
{
    m_bold = bold;
}

template <typename P, typename R>
void CTextLabel<P, R>::setShortFromLeft(bool shortFromLeft)
{
    m_shortFromLeft = shortFromLeft;
}

template <typename P, typename R>
CGraph1dItem* CTextLabel<P, R>::getItem() const
{
    return m_item;
}

template <typename P, typename R>
QString CTextLabel<P, R>::getText() const
{
    return m_text;
}

template <typename P, typename R>
long long CTextLabel<P, R>::getValue() const
{
    return m_value;
}

template <typename P, typename R>
int CTextLabel<P, R>::getOverlapRemovalPriority() const
{
    // Deliberate: every label has the same priority.
    return 1;
}

template <typename P, typename R>
R CTextLabel<P, R>::getBoundingRect(QPainter& painter)
{
    initBoundingRect(painter);
    return m_boundingRect;
}

template <typename P, typename R>
R CTextLabel<P, R>::getBoundingRect() const
{
    return m_boundingRect;
}

template <typename P, typename R>
void CTextLabel<P, R>::draw(QPainter& painter, const R& rect, const QTextOption& option)
{
    setItemRect(painter, rect);
    if (m_hidden || !rect.isValid())
        return;
    initBoundingRect(painter);
    if (m_rotated)
        drawRotated(painter, CLabelGeometry<R>::transposed(rect.topLeft(), rect), option);
    else
        drawNormally(painter, rect, option);
}

template <typename P, typename R>
QString CTextLabel<P, R>::debug() const
{
    return getText();
}

template <typename P, typename R>
QString CTextLabel<P, R>::getAdjustedText(const QString& text, double width,
                                          QPainter& painter) const
{
    QString shortened = text;
    cdraw::shortenText(shortened, width, painter, m_shortFromLeft, cdraw::kStripSpaces);
    return shortened;
}

template <typename P, typename R>
void CTextLabel<P, R>::drawNormally(QPainter& painter, const R& rect, const QTextOption& option)
{
    const CPainterSaver saver(painter);
    applyBold(painter, m_bold);
    const QRectF room = CLabelGeometry<R>::drawnRect(rect);
    const QString text = fitsAsMeasured(room.width())
                             ? getText()
                             : getAdjustedText(getText(), room.width(), painter);
    painter.setPen(m_color);
    qt::drawText(painter, room, cdraw::measuredPart(text), option);
}

template <typename P, typename R>
void CTextLabel<P, R>::drawRotated(QPainter& painter, const R& rect, const QTextOption& option)
{
    const CPainterSaver saver(painter);
    painter.translate(rect.topLeft());
    painter.rotate(kReadingUpward);
    drawNormally(painter, CLabelGeometry<R>::transposed(P(0, 0), rect), option);
}

template <typename P, typename R>
void CTextLabel<P, R>::setItemRect(QPainter& painter, const R& rect)
{
    CGraph1dItem* item = getItem();
    if (!item)
        return;
    if (m_hidden) {
        item->setItemRect(QRect());
        return;
    }
    const int dx = truncateToInt(painter.worldTransform().dx());
    const int dy = truncateToInt(painter.worldTransform().dy());
    item->setItemRect(m_rotated ? turnedPixelRect(rect, dx, dy) : movedPixelRect(rect, dx, dy));
}

template <typename P, typename R>
void CTextLabel<P, R>::initBoundingRect(QPainter& painter)
{
    if (m_boundingRectReady)
        return;
    const CPainterSaver saver(painter);
    applyBold(painter, m_bold);
    // Deliberate: the text is measured as it stands at the origin, one line for each line break,
    // whatever alignment it is drawn with later.
    m_boundingRect = qt::measureText(painter, R(), cdraw::measuredPart(getText()));
    m_boundingRectReady = true;
}

template <typename P, typename R>
bool CTextLabel<P, R>::canFit(double width, QPainter& painter) const
{
    if (fitsAsMeasured(width))
        return true;
    const auto canShorten = [&] {
        return cdraw::canShortenText(getText(), width, painter, m_shortFromLeft,
                                     cdraw::kStripSpaces);
    };
    // Saving costs more than a plain label's answer, which a scale wants for each of its numbers.
    if (!m_bold)
        return canShorten();
    const CPainterSaver saver(painter);
    applyBold(painter, m_bold);
    return canShorten();
}

template <typename P, typename R>
bool CTextLabel<P, R>::fitsAsMeasured(double width) const
{
    return m_boundingRectReady && m_boundingRect.width() <= width;
}

template <typename P, typename R>
QString CTextLabel<P, R>::numberToText(long long value, int format) const
{
    return numberText(value, format, *m_locale, getGlobal()->kilo());
}

template class CTextLabel<QPoint, QRect>;
template class CTextLabel<QPointF, QRectF>;

} // namespace tovangl
