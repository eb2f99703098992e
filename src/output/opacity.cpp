// SPDX-License-Identifier: MIT
// Whether colours and pictures cover what is behind them.
#include "output/opacity.h"

#include <QImage>

#include <algorithm>
#include <array>

namespace tovangl {

namespace {

// As many pixels as fill the registers of a processor; they are asked together.
constexpr int kPartPixels = 16;
using Part = std::array<QRgb, kPartPixels>;

bool isOpaqueRow(const QRgb* row, int width)
{
    constexpr QRgb kAllBits = 0xffffffff;
    Part common; // the bits that all pixels so far have, by their place in a part
    common.fill(kAllBits);
    int x = 0;
    for (; x + kPartPixels <= width; x += kPartPixels) {
        for (int i = 0; i < kPartPixels; ++i)
            common[static_cast<std::size_t>(i)] &= row[x + i];
    }
    const auto isOpaquePixel = [](QRgb color) { return isOpaque(color); };
    return std::all_of(row + x, row + width, isOpaquePixel) &&
           std::all_of(common.begin(), common.end(), isOpaquePixel);
}

} // namespace

bool isOpaque(const QImage& picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        const auto* const row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        if (!isOpaqueRow(row, picture.width()))
            return false;
    }
    return true;
}

} // namespace tovangl
