// SPDX-License-Identifier: MIT
// Two decoders that share no code, behind one kind of call.
#include "output/png_decoders.h"

#include <memory>
#include <png.h>
#include <spng.h>
#include <vector>

namespace tovangl {

namespace {

constexpr std::size_t kChannels = 4; // red, green, blue, alpha

QImage imageOf(const std::vector<unsigned char>& rgba, int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32);
    const unsigned char* next = rgba.data();
    for (int y = 0; y < height; ++y) {
        auto* const row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x, next += kChannels)
            row[x] = qRgba(next[0], next[1], next[2], next[3]);
    }
    return image;
}

} // namespace

QImage decodeWithLibpng(const CPictureFile& file)
{
    png_image head{};
    head.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_memory(&head, file.data.get(), file.size))
        return QImage();
    head.format = PNG_FORMAT_RGBA;
    std::vector<unsigned char> pixels(PNG_IMAGE_SIZE(head));
    const bool isRead = png_image_finish_read(&head, nullptr, pixels.data(), 0, nullptr);
    if (!isRead || PNG_IMAGE_FAILED(head) || head.warning_or_error != 0)
        return QImage();
    return imageOf(pixels, static_cast<int>(head.width), static_cast<int>(head.height));
}

QImage decodeWithSpng(const CPictureFile& file)
{
    const std::unique_ptr<spng_ctx, void (*)(spng_ctx*)> decoder(spng_ctx_new(0), spng_ctx_free);
    spng_set_crc_action(decoder.get(), SPNG_CRC_ERROR, SPNG_CRC_ERROR);
    spng_ihdr head{};
    std::size_t size = 0;
    if (spng_set_png_buffer(decoder.get(), file.data.get(), file.size) != 0 ||
        spng_get_ihdr(decoder.get(), &head) != 0 ||
        spng_decoded_image_size(decoder.get(), SPNG_FMT_RGBA8, &size) != 0)
        return QImage();
    std::vector<unsigned char> pixels(size);
    if (spng_decode_image(decoder.get(), pixels.data(), size, SPNG_FMT_RGBA8, SPNG_DECODE_TRNS) !=
            0 ||
        spng_decode_chunks(decoder.get()) != 0)
        return QImage();
    return imageOf(pixels, static_cast<int>(head.width), static_cast<int>(head.height));
}

bool decodesTo(const CPictureFile& file, const QImage& picture)
{
    return decodeWithLibpng(file) == picture && decodeWithSpng(file) == picture;
}

} // namespace tovangl
