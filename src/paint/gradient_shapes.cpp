// SPDX-License-Identifier: MIT
// Shapes filled and outlined with gradients.
#include "paint/gradient_shapes.h"

#include "layout/CPieLayout.h"

#include <QColor>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <QPen>

namespace tovangl {
namespace cdraw {

namespace {

constexpr double kHalfPixel = 0.5;  // of an outline one pixel wide, puts it on pixel centres
constexpr double kQuarterTurn = 90; // degrees

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
QPainterPath makeRoundRectPath(const QRect& window, int radius, int lineWidth)
{
    const double left = window.left();
    const double top = window.top();
    const double width = window.width() - lineWidth;
    const double height = window.height() - lineWidth;
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

QLinearGradient gradientOver(const QRect& rect, const CVerticalFade& colors)
{
    QLinearGradient gradient(rect.bottomLeft(), rect.topLeft());
    gradient.setColorAt(0, colors.bottom);
    gradient.setColorAt(1, colors.top);
    return gradient;
}

} // namespace

void drawGradientRoundRect(QPainter& painter, int radius, const QGradient& fill,
                           const QGradient& outline, int lineWidth)
{
    // Deliberate: the translation stays in force when the function returns.
    painter.translate(kHalfPixel * lineWidth, kHalfPixel * lineWidth);
    const QPainterPath path = makeRoundRectPath(painter.window(), radius, lineWidth);
    painter.fillPath(path, QBrush(fill));
    QPainterPathStroker stroker;
    stroker.setWidth(lineWidth);
    painter.fillPath(stroker.createStroke(path), QBrush(outline));
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

void drawGradientBackground(QPainter& painter, const CPieBackground& background, int scale)
{
    const QRect window = painter.window();
    drawGradientRoundRect(painter, CPieBackground::kCornerRadius * scale,
                          gradientOver(window, background.fill),
                          gradientOver(window, background.border), scale);
}

} // namespace cdraw
} // namespace tovangl
