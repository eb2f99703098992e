// SPDX-License-Identifier: MIT
// A text with its final wording and place.
#include "layout/CPlacedText.h"

#include "base/pixel_arithmetic.h"

#include <cmath>

namespace tovangl {

namespace {

// A rectangle by its corner and size, in a number type wide enough not to overflow.
template <typename N>
struct CExtent
{
    N left, top, width, height;
};

CExtent<std::int64_t> extentOf(const QRect& rect)
{
    return {rect.left(), rect.top(), inclusiveExtent(rect.left(), rect.right()),
            inclusiveExtent(rect.top(), rect.bottom())};
}

CExtent<double> extentOf(const QRectF& rect)
{
    return {rect.left(), rect.top(), rect.width(), rect.height()};
}

QRect wholePixels(const CExtent<std::int64_t>& extent)
{
    return QRect(QPoint(clampToInt(extent.left), clampToInt(extent.top)),
                 QPoint(clampToInt(extent.left + extent.width - 1),
                        clampToInt(extent.top + extent.height - 1)));
}

QRect wholePixels(const CExtent<double>& extent)
{
    const auto nearest = [](double value) {
        return std::int64_t{truncateToInt(std::round(value))};
    };
    return wholePixels(CExtent<std::int64_t>{nearest(extent.left), nearest(extent.top),
                                             nearest(extent.width), nearest(extent.height)});
}

template <typename R>
QRect covered(const R& room, bool isTurned, const QPoint& origin)
{
    auto extent = extentOf(room);
    extent.left += origin.x();
    extent.top += origin.y();
    if (isTurned) {
        extent.top -= extent.width;
        std::swap(extent.width, extent.height);
    }
    return wholePixels(extent);
}

} // namespace

QRectF toRoom(const QRect& rect)
{
    const auto extent = extentOf(rect);
    return QRectF(rect.left(), rect.top(), static_cast<double>(extent.width),
                  static_cast<double>(extent.height));
}

QRectF roomWithSlack(const CPlacedText& text)
{
    if (text.alignment & Qt::AlignRight)
        return text.room.adjusted(-text.slack, 0, 0, 0);
    if (text.alignment & Qt::AlignHCenter)
        return text.room.adjusted(-text.slack / 2, 0, text.slack / 2, 0);
    return text.room.adjusted(0, 0, text.slack, 0);
}

QRect coveredPixels(const QRect& room, bool isTurned, const QPoint& origin)
{
    return covered(room, isTurned, origin);
}

QRect coveredPixels(const QRectF& room, bool isTurned, const QPoint& origin)
{
    return covered(room, isTurned, origin);
}

} // namespace tovangl
