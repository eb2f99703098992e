// SPDX-License-Identifier: MIT
// Encodes any pixels, and holds what two decoders get out of the file against them.
#include "failed_promise.h"
#include "output/png_decoders.h"
#include "seeded_fault.h"

#include <fuzzer/FuzzedDataProvider.h>

namespace tovangl {
namespace {

constexpr int kLongestSide = 700; // pixels
constexpr QRgb kOpaque = 0xff000000;

// A colour out of the input, or, where few are wanted, one of so many.
QRgb readColor(FuzzedDataProvider& input, unsigned colors, bool areOpaque)
{
    constexpr unsigned kSpread = 2654435769U; // no two small numbers give the same colour
    const auto number = input.ConsumeIntegral<unsigned>();
    const QRgb color = number % colors * kSpread;
    return areOpaque ? kOpaque | color >> 8 : color;
}

// Runs of pixels, single ones, and rows that repeat the row above, as the input says.
QImage readPicture(FuzzedDataProvider& input)
{
    const int width = input.ConsumeIntegralInRange(1, kLongestSide);
    const int height = input.ConsumeIntegralInRange(1, kLongestSide);
    const unsigned colors = input.ConsumeIntegralInRange(1U, 1U << 24);
    const bool areOpaque = input.ConsumeBool();
    QImage picture(width, height, QImage::Format_ARGB32);
    QRgb color = readColor(input, colors, areOpaque);
    for (int y = 0; y < height; ++y) {
        const bool isRepeated = y > 0 && input.ConsumeBool();
        for (int x = 0; x < width; ++x) {
            if (isRepeated)
                color = picture.pixel(x, y - 1);
            else if (input.ConsumeBool())
                color = readColor(input, colors, areOpaque);
            picture.setPixel(x, y, color);
        }
    }
    return picture;
}

} // namespace
} // namespace tovangl

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace tovangl;
    FuzzedDataProvider input(data, size);
    const Compression compression = input.ConsumeBool() ? Compression::Fast : Compression::Balanced;
    const QImage picture = readPicture(input);
    QImage copy = picture.copy();
    if (isFaultSeeded())
        copy.setPixel(0, 0, copy.pixel(0, 0) ^ 1U);
    require(decodesTo(encodePng(copy, compression), picture), "a file holds the picture's pixels");
    return 0;
}
