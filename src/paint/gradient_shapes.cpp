// SPDX-License-Identifier: MIT
// Shapes filled and outlined with gradients.
#include "paint/gradient_shapes.h"

#include <QColor>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <QPen>

namespace tovangl {
namespace cdraw {

namespace {

constexpr double kHalfPixel = 0.5;    // puts one-pixel outlines on pixel centres
constexpr double kQuarterTurn = 90;   // degrees
constexpr int kBackgroundRadius = 11; // pixels at every scale

// An arc needs a square; without one, only the corner point is added.
void addCorner(QPainterPath& path, const QRectF& square, double startAngle, const QPointF& corner)
{
    if (square.isNull())
        path.lineTo(corner);
    else
        path.arcTo(square, startAngle, kQuarterTurn);
}

// Deliberate: the right and bottom sides lie at the window's width and height rather than at its
// edges, which differ if the window does not start at (0, 0).
QPainterPath makeRoundRectPath(const QRect& window, int radius)
{
    const double left = window.left();
    const double top = window.top();
    const double width = window.right() - window.left();
    const double height = window.bottom() - window.top();
    const double diameter = 2.0 * radius;
    const QSizeF square(diameter, diameter);

    QPainterPath path;
    path.moveTo(width, top + radius);
    addCorner(path, QRectF(QPointF(width - diameter, top), square), 0, QPointF(width, top));
    path.lineTo(left + radius, top);
    addCorner(path, QRectF(QPointF(left, top), square), 90, QPointF(left, top));
    path.lineTo(left, height - radius);
    addCorner(path, QRectF(QPointF(left, height - diameter), square), 180, QPointF(left, height));
    path.lineTo(left + radius, height);
    addCorner(path, QRectF(QPointF(width - diameter, height - diameter), square), 270,
              QPointF(width, height));
    path.closeSubpath();
    return path;
}

} // namespace

void drawGradientRoundRect(QPainter& painter, int radius, const QGradient& fill,
                           const QGradient& outline)
{
    // Deliberate: the translation stays in force when the function returns.
    painter.translate(kHalfPixel, kHalfPixel);
    const QPainterPath path = makeRoundRectPath(painter.window(), radius);
    painter.fillPath(path, QBrush(fill));
    painter.fillPath(QPainterPathStroker().createStroke(path), QBrush(outline));
}

void drawGradientLine(QPainter& painter, const QPoint& from, const QPoint& to,
                      const QGradient& gradient, int width)
{
    QPainterPath path(from);
    path.lineTo(to);

    QPainterPathStroker stroker;
    stroker.setCapStyle(Qt::SquareCap);
    stroker.setJoinStyle(Qt::MiterJoin);
    stroker.setWidth(width);
    painter.fillPath(stroker.createStroke(path), QBrush(gradient));
}

void drawDefaultGradientBackground(QPainter& painter)
{
    const QRect window = painter.window();
    QLinearGradient fill(window.bottomLeft(), window.topLeft());
    fill.setColorAt(0, QColor(232, 242, 255));
    fill.setColorAt(1, QColor(186, 209, 238));
    QLinearGradient outline(window.bottomLeft(), window.topLeft());
    outline.setColorAt(0, QColor(186, 194, 204));
    outline.setColorAt(1, QColor(149, 167, 190));
    drawGradientRoundRect(painter, kBackgroundRadius, fill, outline);
}

} // namespace cdraw
} // namespace tovangl
