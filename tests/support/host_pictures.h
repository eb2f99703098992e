// SPDX-License-Identifier: MIT
/// @file
/// What a host gets from a chart: pictures, and records as values.
#ifndef TOVANGL_SUPPORT_HOST_PICTURES_H
#define TOVANGL_SUPPORT_HOST_PICTURES_H

#include "support/public_records.h"
#include <tovangl/Color.h>
#include <tovangl/Graph.h>
#include <tovangl/Slice.h>

#include <QImage>

#include <list>
#include <ostream>
#include <vector>

namespace tovangl {

inline constexpr Rectangle kNoRectangle = {0, 0, 0, 0};
inline constexpr Slice kNoSlice = {0, 0, 0, 0, 0, 0};

/// The bytes of a picture, which the chart keeps.
struct CHostPicture
{
    unsigned char* data = nullptr;
    int size = -1;

    [[nodiscard]] QImage decoded() const
    {
        return QImage::fromData(data, size, "PNG").convertToFormat(QImage::Format_ARGB32);
    }
};

inline CHostPicture exported(Graph& graph, int width, int height)
{
    CHostPicture picture;
    graph.createPixmap(width, height, &picture.data, &picture.size);
    return picture;
}

inline CHostPicture printed(Graph& graph, int width, int height, int factor)
{
    CHostPicture picture;
    graph.createPixmapForPrinter(width, height, factor, &picture.data, &picture.size);
    return picture;
}

inline QImage render(Graph& graph, int width = 400, int height = 300)
{
    return exported(graph, width, height).decoded();
}

/// The colour of a pixel.
inline Color colorAt(const QImage& image, double x, double y)
{
    const QRgb pixel = image.pixel(static_cast<int>(x), static_cast<int>(y));
    return Color{qRed(pixel), qGreen(pixel), qBlue(pixel)};
}

template <typename T>
std::vector<T> copied(const std::list<T>* list)
{
    return {list->begin(), list->end()};
}

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

inline bool operator==(const Color& a, const Color& b)
{
    return a.red == b.red && a.green == b.green && a.blue == b.blue;
}

inline std::ostream& operator<<(std::ostream& stream, const Color& color)
{
    return stream << color.red << ',' << color.green << ',' << color.blue;
}

} // namespace tovangl

#endif
