// SPDX-License-Identifier: MIT
// Makes a picture as narrow as its pixels allow before it is saved.
#include "api/image_narrowing.h"

#include "api/CColorIndex.h"

#include <QImage>

#include <cstring>
#include <vector>

namespace tovangl {

namespace {

constexpr QRgb kAlphaMask = 0xff000000;

// The rows of an ARGB32 picture.
class CPixelRows
{
public:
    explicit CPixelRows(QImage& image)
        : m_bits(image.bits())
        , m_stride(image.bytesPerLine())
        , m_width(image.width())
        , m_height(image.height())
    {}

    [[nodiscard]] const QRgb* row(int y) const
    {
        return reinterpret_cast<const QRgb*>(m_bits + m_stride * y);
    }
    [[nodiscard]] std::size_t rowBytes() const
    {
        return static_cast<std::size_t>(m_width) * sizeof(QRgb);
    }
    [[nodiscard]] int width() const { return m_width; }
    [[nodiscard]] int height() const { return m_height; }

private:
    const uchar* m_bits;
    std::ptrdiff_t m_stride; // bytes
    int m_width;
    int m_height;
};

// The end of the run of equal pixels that begins at x.
int findRunEnd(const QRgb* row, int x, int width)
{
    constexpr int kStep = 4;
    const QRgb color = row[x];
    ++x;
    while (x + kStep <= width) {
        const QRgb difference =
            (row[x] ^ color) | (row[x + 1] ^ color) | (row[x + 2] ^ color) | (row[x + 3] ^ color);
        if (difference != 0)
            break;
        x += kStep;
    }
    while (x < width && row[x] == color)
        ++x;
    return x;
}

bool addRowColors(CColorIndex& colors, const QRgb* row, int width)
{
    for (int x = 0; x < width; x = findRunEnd(row, x, width)) {
        if (!colors.add(row[x]))
            return false;
    }
    return true;
}

// Collects the colours of a picture; stops where they are too many for a palette.
bool addColors(CColorIndex& colors, const CPixelRows& pixels)
{
    for (int y = 0; y < pixels.height(); ++y) {
        const bool isRepeated =
            y > 0 && std::memcmp(pixels.row(y), pixels.row(y - 1), pixels.rowBytes()) == 0;
        if (!isRepeated && !addRowColors(colors, pixels.row(y), pixels.width()))
            return false;
    }
    return true;
}

void writeIndexes(const CColorIndex& colors, const QRgb* row, int width, uchar* indexes)
{
    for (int x = 0; x < width;) {
        const int end = findRunEnd(row, x, width);
        std::memset(indexes + x, colors.indexOf(row[x]), static_cast<std::size_t>(end - x));
        x = end;
    }
}

// An index row is at most as long as the pixel row that it replaces, so the indexes never reach
// pixels that are still to be read. The row in work is copied before it is overwritten.
QImage writePalette(const CColorIndex& colors, QImage& image)
{
    constexpr int kRowAlignment = 4; // bytes
    const CPixelRows pixels(image);
    const int stride = (image.width() + kRowAlignment - 1) / kRowAlignment * kRowAlignment;
    uchar* const indexes = image.bits();
    std::vector<QRgb> row(static_cast<std::size_t>(image.width()));
    for (int y = 0; y < image.height(); ++y) {
        uchar* const target = indexes + std::ptrdiff_t{stride} * y;
        if (y > 0 && std::memcmp(pixels.row(y), row.data(), pixels.rowBytes()) == 0) {
            std::memmove(target, target - stride, static_cast<std::size_t>(image.width()));
        } else {
            std::memcpy(row.data(), pixels.row(y), pixels.rowBytes());
            writeIndexes(colors, row.data(), image.width(), target);
        }
    }
    QImage narrow(indexes, image.width(), image.height(), stride, QImage::Format_Indexed8);
    narrow.setColorTable(colors.colors());
    return narrow;
}

bool isOpaque(const CPixelRows& pixels)
{
    for (int y = 0; y < pixels.height(); ++y) {
        const QRgb* const row = pixels.row(y);
        QRgb common = kAlphaMask;
        for (int x = 0; x < pixels.width(); ++x)
            common &= row[x];
        if (common != kAlphaMask)
            return false;
    }
    return true;
}

} // namespace

QImage narrowImage(QImage& image)
{
    if (image.isNull() || image.format() != QImage::Format_ARGB32)
        return image;
    CColorIndex colors;
    const CPixelRows pixels(image);
    if (addColors(colors, pixels))
        return writePalette(colors, image);
    if (!isOpaque(pixels))
        return image;
    return QImage(image.bits(), image.width(), image.height(),
                  static_cast<int>(image.bytesPerLine()), QImage::Format_RGB32);
}

} // namespace tovangl
