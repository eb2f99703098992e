// SPDX-License-Identifier: MIT
// Straight shapes without antialiasing, filled pixel by pixel.
#include "paint/aliased_shapes.h"

#include <QColor>
#include <QPainter>
#include <QPen>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace tovangl {
namespace cdraw {

namespace {

constexpr int kOpaque = 255;
// The path rasterizer supports no coordinates beyond this.
constexpr int kLargestPathCoord = 32767;
constexpr int kWidestFilledPen = 4; // pixels

// Whether the edges of a stroke lie between pixels. With an odd pen width they run through the
// middle of pixels, and rounding decides; the rasterizer treats the width 1 specially.
constexpr bool hasExactEdges(int width)
{
    return width == 1 || (width > 0 && width % 2 == 0 && width <= kWidestFilledPen);
}

QPen solidPen(const QColor& color, int width)
{
    return QPen(QBrush(color), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
}

bool isWhole(double value)
{
    return std::floor(value) == value;
}

// Whether filling gives the same pixels as stroking along the edges of a rectangle, which can be
// flat. A stroke that crosses the picture's edge can lose a corner pixel, so only shapes inside the
// picture are filled.
bool canFill(const QPainter& painter, const QRect& rect, int width)
{
    const QTransform& transform = painter.worldTransform();
    const QRect window = painter.window();
    if (painter.testRenderHint(QPainter::Antialiasing) ||
        transform.type() > QTransform::TxTranslate || !isWhole(transform.dx()) ||
        !isWhole(transform.dy()) || window.width() > kLargestPathCoord ||
        window.height() > kLargestPathCoord || !hasExactEdges(width))
        return false;
    return QRectF(window.adjusted(width, width, -width, -width))
        .contains(QRectF(rect).translated(transform.dx(), transform.dy()));
}

bool isOpaque(const QColor& color)
{
    return color.isValid() && color.alpha() == kOpaque;
}

void strokeRect(QPainter& painter, const QRect& rect, const QColor& fill, const QColor& outline,
                int outlineWidth)
{
    painter.setBrush(QBrush(fill, Qt::SolidPattern));
    painter.setPen(solidPen(outline, outlineWidth));
    painter.drawRects(&rect, 1);
}

void strokeLine(QPainter& painter, const QPoint& from, const QPoint& to, const QColor& color,
                int width)
{
    painter.setPen(solidPen(color, width));
    painter.drawLine(from, to);
}

// The pixels from the first to the last column and row; none if the last is before the first.
void fillPixels(QPainter& painter, int left, int top, int right, int bottom, const QColor& color)
{
    if (left <= right && top <= bottom)
        painter.fillRect(QRect(QPoint(left, top), QPoint(right, bottom)), color);
}

} // namespace

void drawOutlinedRect(QPainter& painter, const QRect& rect, const QColor& fill,
                      const QColor& outline, int outlineWidth)
{
    if (!rect.isValid() || !isOpaque(fill) || !isOpaque(outline) ||
        !canFill(painter, rect, outlineWidth)) {
        strokeRect(painter, rect, fill, outline, outlineWidth);
        return;
    }
    const int before = outlineWidth / 2;
    const int behind = (outlineWidth - 1) / 2;
    const int right = rect.right() + 1;
    const int bottom = rect.bottom() + 1;
    // Filling everything in the outline's colour first would be simpler, but paints most pixels
    // twice.
    const int innerTop = rect.top() + behind + 1;
    const int innerBottom = bottom - before - 1;
    const int innerLeft = rect.left() + behind + 1;
    const int innerRight = right - before - 1;
    const int outerLeft = rect.left() - before;
    const int outerRight = right + behind;
    fillPixels(painter, outerLeft, rect.top() - before, outerRight, innerTop - 1, outline);
    fillPixels(painter, outerLeft, innerBottom + 1, outerRight, bottom + behind, outline);
    fillPixels(painter, outerLeft, innerTop, innerLeft - 1, innerBottom, outline);
    fillPixels(painter, innerRight + 1, innerTop, outerRight, innerBottom, outline);
    fillPixels(painter, innerLeft, innerTop, innerRight, innerBottom, fill);
}

void drawStraightLine(QPainter& painter, const QPoint& from, const QPoint& to, const QColor& color,
                      int width)
{
    const QPoint first(std::min(from.x(), to.x()), std::min(from.y(), to.y()));
    const QPoint last(std::max(from.x(), to.x()), std::max(from.y(), to.y()));
    const bool isStraight = (first.x() == last.x()) != (first.y() == last.y());
    if (!isStraight || !isOpaque(color) || !canFill(painter, QRect(first, last), width)) {
        strokeLine(painter, from, to, color, width);
        return;
    }
    const int before = width / 2;
    const int behind = (width - 1) / 2;
    fillPixels(painter, first.x() - before, first.y() - before, last.x() + behind,
               last.y() + behind, color);
}

} // namespace cdraw
} // namespace tovangl
