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

// Any red, green and blue, and each third kind of alpha in turn.
QRgb anyTranslucentColor(std::mt19937& random, std::size_t number)
{
    constexpr QRgb kNoAlpha = 0x00ffffff;
    const auto color = static_cast<QRgb>(random());
    if (number % 3 == 0)
        return color | kOpaque;
    return number % 3 == 1 ? color : color & kNoAlpha;
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

QImage pictureOfRuns(std::mt19937& random, const std::vector<QRgb>& palette, int width, int height)
{
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

template <typename Draw>
QImage noiseOf(int width, int height, Draw drawColor)
{
    QImage image(width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y) {
        QRgb* const row = rowOf(image, y);
        std::generate(row, row + width, drawColor);
    }
    return image;
}

} // namespace

QImage randomPicture(unsigned seed, int width, int height, int colors)
{
    std::mt19937 random(seed);
    std::vector<QRgb> palette(static_cast<std::size_t>(colors));
    for (QRgb& color : palette)
        color = anyColor(random);
    return pictureOfRuns(random, palette, width, height);
}

QImage translucentPicture(unsigned seed, int width, int height, int colors)
{
    std::mt19937 random(seed);
    std::vector<QRgb> palette;
    while (palette.size() < static_cast<std::size_t>(colors))
        palette.push_back(anyTranslucentColor(random, palette.size()));
    return pictureOfRuns(random, palette, width, height);
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
    return noiseOf(width, height, [&random] { return anyColor(random); });
}

QImage translucentNoise(unsigned seed, int width, int height)
{
    std::mt19937 random(seed);
    return noiseOf(width, height, [&random] { return static_cast<QRgb>(random()); });
}

} // namespace tovangl
