// SPDX-License-Identifier: MIT
// Tells whether two pictures show the same shapes in nearly the same places.
#include "pdf/shape_comparison.h"

#include <QColor>

#include <algorithm>
#include <array>

namespace tovangl {

namespace {

constexpr int kTolerance = 16; // of a channel: antialiasing is not everywhere the same

std::array<int, 3> channels(QRgb color)
{
    return {qRed(color), qGreen(color), qBlue(color)};
}

const QRgb* rowOf(const QImage& image, int y)
{
    return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

bool isStray(const QImage& image, int x, int y, const QImage& other, int distance)
{
    std::array<int, 3> least{255, 255, 255};
    std::array<int, 3> greatest{0, 0, 0};
    for (int row = std::max(y - distance, 0); row <= std::min(y + distance, other.height() - 1);
         ++row) {
        for (int column = std::max(x - distance, 0);
             column <= std::min(x + distance, other.width() - 1); ++column) {
            const auto near = channels(rowOf(other, row)[column]);
            for (std::size_t i = 0; i < near.size(); ++i) {
                least[i] = std::min(least[i], near[i]);
                greatest[i] = std::max(greatest[i], near[i]);
            }
        }
    }
    const auto own = channels(rowOf(image, y)[x]);
    for (std::size_t i = 0; i < own.size(); ++i) {
        if (own[i] < least[i] - kTolerance || own[i] > greatest[i] + kTolerance)
            return true;
    }
    return false;
}

int countIn(const QImage& image, const QImage& other, int distance)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        const QRgb* own = rowOf(image, y);
        const QRgb* facing = rowOf(other, y);
        for (int x = 0; x < image.width(); ++x)
            count += own[x] != facing[x] && isStray(image, x, y, other, distance) ? 1 : 0;
    }
    return count;
}

} // namespace

int countStrayPixels(const QImage& a, const QImage& b, int distance)
{
    if (a.size() != b.size())
        return a.width() * a.height() + b.width() * b.height();
    return countIn(a, b, distance) + countIn(b, a, distance);
}

} // namespace tovangl
