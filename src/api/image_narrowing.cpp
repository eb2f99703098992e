// SPDX-License-Identifier: MIT
// Makes a picture as narrow as its pixels allow before it is saved.
#include "api/image_narrowing.h"

#include "api/CColorIndex.h"

#include <QImage>

#include <algorithm>
#include <cstring>
#include <vector>

namespace tovangl {

namespace {

constexpr QRgb kAlphaMask = 0xff000000;

// The end of the run of equal pixels that begins at x.
int findRunEnd(const QRgb* row, int x, int end)
{
    const QRgb color = row[x];
    do
        ++x;
    while (x < end && row[x] == color);
    return x;
}

// The pixels in which two rows of a picture differ, from begin to before end.
struct CChangedPixels
{
    int begin;
    int end;
};

CChangedPixels findChangedPixels(const QRgb* row, const QRgb* other, int width)
{
    int begin = 0;
    while (begin < width && row[begin] == other[begin])
        ++begin;
    int end = width;
    while (end > begin && row[end - 1] == other[end - 1])
        --end;
    return {begin, end};
}

// Replaces the pixels of an ARGB32 picture by indexes into a palette, in place and row by row.
//
// An index row is at most as long as a pixel row, so the indexes never reach pixels that are still
// to be read. Most rows of a chart repeat the row above, or most of it; only what has changed is
// looked up.
class CPaletteWriter
{
public:
    explicit CPaletteWriter(QImage& image)
        : m_bits(image.bits())
        , m_pixelStride(image.bytesPerLine())
        , m_width(image.width())
        , m_height(image.height())
        , m_indexStride((image.width() + kRowAlignment - 1) / kRowAlignment * kRowAlignment)
        , m_pixelsAbove(static_cast<std::size_t>(image.width()))
        , m_indexes(static_cast<std::size_t>(image.width()))
    {}

    // False, and the pixels as they were, where there are too many colours for a palette.
    [[nodiscard]] bool write()
    {
        if (!hasFewColors())
            return false;
        for (int y = 0; y < m_height; ++y) {
            if (!writeRow(y)) {
                restoreRows(y);
                return false;
            }
        }
        return true;
    }

    // The picture that was written. It uses the memory of the one that it replaces.
    [[nodiscard]] QImage image() const
    {
        QImage image(m_bits, m_width, m_height, m_indexStride, QImage::Format_Indexed8);
        image.setColorTable(m_colors.colors());
        return image;
    }

private:
    static constexpr int kRowAlignment = 4; // bytes

    [[nodiscard]] QRgb* pixelRow(int y) const
    {
        return reinterpret_cast<QRgb*>(m_bits + m_pixelStride * y);
    }
    [[nodiscard]] uchar* indexRow(int y) const
    {
        return m_bits + std::ptrdiff_t{m_indexStride} * y;
    }

    // Looks at some rows only, before any is written: it finds nearly every picture of too many
    // colours, and then nothing need be put back.
    bool hasFewColors()
    {
        constexpr int kSampledRows = 16; // one of so many
        for (int y = kSampledRows / 2; y < m_height; y += kSampledRows) {
            const QRgb* const row = pixelRow(y);
            for (int x = 0; x < m_width; x = findRunEnd(row, x, m_width)) {
                if (m_colors.add(row[x]) == CColorIndex::kFull)
                    return false;
            }
        }
        return true;
    }

    bool writeRow(int y)
    {
        const QRgb* const row = pixelRow(y);
        const std::size_t bytes = m_pixelsAbove.size() * sizeof(QRgb);
        if (y == 0 || std::memcmp(row, m_pixelsAbove.data(), bytes) != 0) {
            const CChangedPixels changed =
                y == 0 ? CChangedPixels{0, m_width}
                       : findChangedPixels(row, m_pixelsAbove.data(), m_width);
            if (!indexPixels(row, changed))
                return false;
            std::memcpy(m_pixelsAbove.data(), row, bytes);
        }
        std::memcpy(indexRow(y), m_indexes.data(), m_indexes.size());
        return true;
    }

    bool indexPixels(const QRgb* row, const CChangedPixels& changed)
    {
        for (int x = changed.begin; x < changed.end;) {
            const int index = m_colors.add(row[x]);
            if (index == CColorIndex::kFull)
                return false;
            const int end = findRunEnd(row, x, changed.end);
            std::fill(m_indexes.begin() + x, m_indexes.begin() + end, static_cast<uchar>(index));
            x = end;
        }
        return true;
    }

    // Puts the pixels of the first rows back, from the last of them to the first.
    void restoreRows(int count)
    {
        for (int y = count - 1; y >= 0; --y) {
            std::memcpy(m_indexes.data(), indexRow(y), m_indexes.size());
            std::transform(m_indexes.begin(), m_indexes.end(), pixelRow(y),
                           [this](uchar index) { return m_colors.colorAt(index); });
        }
    }

    uchar* m_bits;                // borrowed from the picture
    std::ptrdiff_t m_pixelStride; // bytes
    int m_width;
    int m_height;
    int m_indexStride; // bytes
    CColorIndex m_colors;
    std::vector<QRgb> m_pixelsAbove; // the row above, as it was
    std::vector<uchar> m_indexes;    // the row in work
};

bool isOpaque(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto* const row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        QRgb common = kAlphaMask;
        for (int x = 0; x < image.width(); ++x)
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
    CPaletteWriter palette(image);
    if (palette.write())
        return palette.image();
    if (!isOpaque(image))
        return image;
    return QImage(image.bits(), image.width(), image.height(),
                  static_cast<int>(image.bytesPerLine()), QImage::Format_RGB32);
}

} // namespace tovangl
