// SPDX-License-Identifier: MIT
// Makes the picture that a chart is drawn into.
#include "output/raster_surface.h"

#include <QColor>
#include <QImage>

#include <algorithm>
#include <cstdint>
#include <limits>

namespace tovangl {

namespace {

constexpr int kLargestSide = 1000000; // pixels
constexpr std::int64_t kBytesPerPixel = 4;
constexpr std::int64_t kLargestPicture = std::numeric_limits<std::int32_t>::max(); // bytes
constexpr int kLargestPaintedSide = 32767;                                         // pixels

} // namespace

bool isRasterSize(int width, int height)
{
    if (width < 1 || height < 1 || width > kLargestSide || height > kLargestSide)
        return false;
    return kBytesPerPixel * width * height <= kLargestPicture;
}

QImage makeRasterSurface(int width, int height)
{
    return isRasterSize(width, height) ? QImage(width, height, QImage::Format_ARGB32) : QImage();
}

void fillBeyondPainters(QImage& image, const QColor& color)
{
    if (std::max(image.width(), image.height()) > kLargestPaintedSide)
        image.fill(color);
}

} // namespace tovangl
