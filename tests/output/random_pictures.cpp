// SPDX-License-Identifier: MIT
// Pictures that are told by numbers: made of runs and repeated rows, as charts are.
#include "output/random_pictures.h"

#include <algorithm>
#include <cstring>
#include <random>
#include <vector>

namespace tovangl {

namespace {

constexpr QRgb kOpaque = 0xff000000;
constexpr unsigned kLongestRun = 40; // pixels

QRgb anyColor(std::mt19937& random)
{
    return kOpaque | static_cast<QRgb>(random());
}

QRgb* rowOf(QImage& image, int y)
{
    return reinterpret_cast<QRgb*>(image.scanLine(y));
}

void fillWithRuns(std::mt19937& random, const std::vector<QRgb>& palette, QRgb* row, int width)
{
    unsigned left = 0;
    QRgb color = 0;
    for (int x = 0; x < width; ++x, --left) {
        if (left == 0) {
            left = 1 + static_cast<unsigned>(random()) % kLongestRun;
            color = palette[random() % palette.size()];
        }
        row[x] = color;
    }
}

} // namespace

QImage randomPicture(unsigned seed, int width, int height, int colors)
{
    std::mt19937 random(seed);
    std::vector<QRgb> palette(static_cast<std::size_t>(colors));
    for (QRgb& color : palette)
        color = anyColor(random);
    QImage image(width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y) {
        if (y > 0 && random() % 2 == 0)
            std::memcpy(rowOf(image, y), rowOf(image, y - 1),
                        static_cast<std::size_t>(width) * sizeof(QRgb));
        else
            fillWithRuns(random, palette, rowOf(image, y), width);
    }
    return image;
}

QImage pictureOfColors(int colors)
{
    QImage image(colors, 1, QImage::Format_ARGB32);
    for (int x = 0; x < colors; ++x)
        image.setPixel(x, 0, qRgb(x % 256, x / 256, 7));
    return image;
}

QImage noise(unsigned seed, int width, int height)
{
    std::mt19937 random(seed);
    QImage image(width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y) {
        QRgb* const row = rowOf(image, y);
        std::generate(row, row + width, [&random] { return anyColor(random); });
    }
    return image;
}

} // namespace tovangl
