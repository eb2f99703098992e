// SPDX-License-Identifier: MIT
/// @file
/// What the tests of regions have in common: pictures of public charts, and their records.
#ifndef TOVANGL_REGIONS_REGION_TEST_CHARTS_H
#define TOVANGL_REGIONS_REGION_TEST_CHARTS_H

#include "support/public_records.h"
#include <tovangl/tovangl.h>

#include <QImage>

#include <ostream>
#include <vector>

namespace tovangl {

inline constexpr Color kRed = {200, 30, 30};
inline constexpr Color kGreen = {30, 160, 30};
inline constexpr Color kBlue = {30, 30, 200};

inline constexpr Rectangle kNoRectangle = {0, 0, 0, 0};
inline constexpr Slice kNoSlice = {0, 0, 0, 0, 0, 0};

inline bool operator==(const Slice& a, const Slice& b)
{
    return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height &&
           a.start == b.start && a.span == b.span;
}

inline std::ostream& operator<<(std::ostream& stream, const Slice& slice)
{
    return stream << '(' << slice.x << ' ' << slice.y << ' ' << slice.width << ' ' << slice.height
                  << ' ' << slice.start << ' ' << slice.span << ')';
}

/// Renders as a host does, through PNG bytes.
inline QImage render(Graph& graph, int width, int height)
{
    unsigned char* data = nullptr;
    int size = 0;
    graph.createPixmap(width, height, &data, &size);
    return QImage::fromData(data, size, "PNG");
}

inline QImage renderForPrint(Graph& graph, int width, int height, int factor)
{
    unsigned char* data = nullptr;
    int size = 0;
    graph.createPixmapForPrinter(width, height, factor, &data, &size);
    return QImage::fromData(data, size, "PNG");
}

/// The colour of a pixel.
inline Color colorAt(const QImage& image, double x, double y)
{
    const QRgb pixel = image.pixel(static_cast<int>(x), static_cast<int>(y));
    return Color{qRed(pixel), qGreen(pixel), qBlue(pixel)};
}

inline bool operator==(const Color& a, const Color& b)
{
    return a.red == b.red && a.green == b.green && a.blue == b.blue;
}

inline std::ostream& operator<<(std::ostream& stream, const Color& color)
{
    return stream << color.red << ',' << color.green << ',' << color.blue;
}

template <typename T>
std::vector<T> copied(const std::list<T>* list)
{
    return {list->begin(), list->end()};
}

} // namespace tovangl

#endif
