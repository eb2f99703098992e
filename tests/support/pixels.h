// SPDX-License-Identifier: MIT
/// @file
/// Paints small pictures and looks at their pixels.
#ifndef TOVANGL_SUPPORT_PIXELS_H
#define TOVANGL_SUPPORT_PIXELS_H

#include <QImage>
#include <QPainter>
#include <QRect>

namespace tovangl {

inline constexpr QRgb kWhitePixel = 0xffffffff;
inline constexpr QRgb kBlackPixel = 0xff000000;
inline constexpr QRgb kRedPixel = 0xffff0000;
inline constexpr QRgb kBluePixel = 0xff0000ff;

/// A white picture after paint(QPainter&).
template <typename Paint>
[[nodiscard]] QImage painted(int width, int height, const Paint& paint)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(kWhitePixel);
    QPainter painter(&image);
    paint(painter);
    painter.end();
    return image;
}

/// The smallest rectangle around all pixels for which isPart(QRgb) holds.
template <typename Test>
[[nodiscard]] QRect extentWhere(const QImage& image, const Test& isPart)
{
    QRect extent;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (isPart(image.pixel(x, y)))
                extent |= QRect(x, y, 1, 1);
        }
    }
    return extent;
}

/// Around all pixels of a colour.
[[nodiscard]] inline QRect extentOf(const QImage& image, QRgb color)
{
    return extentWhere(image, [color](QRgb pixel) { return pixel == color; });
}

/// Around all pixels that are not white.
[[nodiscard]] inline QRect inkOf(const QImage& image)
{
    return extentWhere(image, [](QRgb pixel) { return pixel != kWhitePixel; });
}

/// Whether a part of the picture has one colour throughout.
[[nodiscard]] inline bool isFilled(const QImage& image, const QRect& rect, QRgb color)
{
    const QImage part = image.copy(rect);
    return extentWhere(part, [color](QRgb pixel) { return pixel != color; }).isNull();
}

/// Likewise for a row or a column between two places, first and last included.
[[nodiscard]] inline bool isRow(const QImage& image, int y, int left, int right, QRgb color)
{
    return isFilled(image, QRect(QPoint(left, y), QPoint(right, y)), color);
}

[[nodiscard]] inline bool isColumn(const QImage& image, int x, int top, int bottom, QRgb color)
{
    return isFilled(image, QRect(QPoint(x, top), QPoint(x, bottom)), color);
}

/// Whether everything outside the rectangle is white.
[[nodiscard]] inline bool isWhiteOutside(const QImage& image, const QRect& rect)
{
    const QRect ink = inkOf(image);
    return ink.isNull() || rect.contains(ink);
}

} // namespace tovangl

#endif
