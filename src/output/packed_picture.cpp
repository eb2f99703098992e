// SPDX-License-Identifier: MIT
// A picture's rows in the form that a PNG file compresses.
#include "output/packed_picture.h"

#include "deflate/deflate_codes.h"
#include "output/opacity.h"
#include "output/picture_colors.h"
#include "output/pixel_blocks.h"

#include <QImage>

#include <algorithm>
#include <array>
#include <cstring>

namespace tovangl {

namespace {

using Byte = unsigned char;

constexpr int kDeepestPalette = 8; // bits of an index
constexpr std::size_t kFilterBytes = 1;
constexpr std::size_t kChannels = 3; // red, green and blue
constexpr std::size_t kChannelsWithAlpha = 4;

// What a run of still rows adds to a file, and what it takes to find where to insert it, pays from
// about here on.
constexpr std::size_t kLeastStillBytes = 32 * 1024;

// Reads pixels from the picture's own memory and writes packed rows without alpha into it. Such a
// row with its filter is at most as long as a row of pixels, so once a row has been read, packing
// it never overwrites unread pixels.
class CRowMemory
{
public:
    CRowMemory(QImage& picture, std::size_t rowBytes)
        : m_bits(picture.bits())
        , m_pixelStride(static_cast<std::size_t>(picture.bytesPerLine()))
        , m_packedStride(kFilterBytes + rowBytes)
        , m_rows(static_cast<std::size_t>(picture.height()))
    {}

    [[nodiscard]] const QRgb* pixels(std::size_t row) const
    {
        return reinterpret_cast<const QRgb*>(m_bits + m_pixelStride * row);
    }
    [[nodiscard]] Byte* packed(std::size_t row) const { return m_bits + m_packedStride * row; }
    [[nodiscard]] std::size_t packedStride() const { return m_packedStride; }
    [[nodiscard]] std::size_t rows() const { return m_rows; }

    [[nodiscard]] CByteRange allPacked() const { return {m_bits, m_packedStride * m_rows}; }
    [[nodiscard]] CByteRoom spare() const
    {
        const std::size_t used = m_packedStride * m_rows;
        return {m_bits + used, m_pixelStride * m_rows - used};
    }

private:
    Byte* m_bits; // borrowed from the picture
    std::size_t m_pixelStride;
    std::size_t m_packedStride;
    std::size_t m_rows;
};

// The indexes of a block's pixels; a shorter block is filled up with 0.
using IndexBlock = std::array<Byte, kBlockPixels>;

// Packs the given number of bits of each index into bytes, the first index into the highest bits.
template <int Depth>
void packIndexes(const IndexBlock& indexes, Byte* packed)
{
    constexpr std::size_t kIndexesPerByte = kBitsPerByte / Depth;
    for (std::size_t i = 0; i < indexes.size(); i += kIndexesPerByte) {
        unsigned bits = 0;
        for (std::size_t k = 0; k < kIndexesPerByte; ++k)
            bits = bits << Depth | indexes[i + k];
        *packed++ = static_cast<Byte>(bits);
    }
}

void packIndexes(const IndexBlock& indexes, std::size_t depth, Byte* packed)
{
    switch (depth) {
    case 1:
        return packIndexes<1>(indexes, packed);
    case 2:
        return packIndexes<2>(indexes, packed);
    case 4:
        return packIndexes<4>(indexes, packed);
    default:
        return packIndexes<8>(indexes, packed);
    }
}

// Replaces the pixels of a picture by palette indexes. It packs only the changed part of a row; the
// rest is still there from the row above.
class CPaletteWriter
{
public:
    CPaletteWriter(const CRowMemory& memory, int width, int depth, const CPictureColors& colors,
                   RowFilter filter)
        : m_memory(memory)
        , m_width(width)
        , m_depth(static_cast<std::size_t>(depth))
        , m_colors(colors)
        , m_filter(filter)
        , m_pixelsAbove(static_cast<std::size_t>(width))
        // The last block can be shorter than its packed form.
        , m_packed(rowBytes() + m_depth)
        , m_differences(m_filter == RowFilter::Up ? m_packed.size() : 0)
    {}

    void write()
    {
        for (std::size_t row = 0; row < m_memory.rows(); ++row) {
            if (m_colors.isRepeated[row])
                repeatRow(row);
            else
                writeRow(row);
        }
    }

private:
    [[nodiscard]] std::size_t rowBytes() const { return m_memory.packedStride() - kFilterBytes; }

    void repeatRow(std::size_t row)
    {
        Byte* const out = m_memory.packed(row);
        if (m_filter == RowFilter::None) {
            std::memcpy(out, m_memory.packed(row - 1), m_memory.packedStride());
        } else {
            *out = static_cast<Byte>(m_filter);
            std::memset(out + kFilterBytes, 0, rowBytes());
        }
    }

    void writeRow(std::size_t row)
    {
        const QRgb* const pixels = m_memory.pixels(row);
        std::fill(m_differences.begin(), m_differences.end(), Byte{0});
        const auto visit = [this, pixels](int begin, int end) {
            packBlock(pixels, begin, end);
            return true;
        };
        if (row == 0)
            visitAllBlocks(m_width, visit);
        else
            visitChangedBlocks(pixels, m_pixelsAbove.data(), m_width, visit);
        std::copy_n(pixels, m_pixelsAbove.size(), m_pixelsAbove.begin());

        const std::vector<Byte>& bytes = m_filter == RowFilter::Up ? m_differences : m_packed;
        Byte* const out = m_memory.packed(row);
        *out = static_cast<Byte>(m_filter);
        std::copy_n(bytes.begin(), rowBytes(), out + kFilterBytes);
    }

    void packBlock(const QRgb* pixels, int begin, int end)
    {
        IndexBlock indexes{};
        Byte index = 0;
        for (int x = begin; x < end; ++x) {
            if (x == begin || pixels[x] != pixels[x - 1])
                index = static_cast<Byte>(m_colors.index.numberOf(pixels[x]));
            indexes[static_cast<std::size_t>(x - begin)] = index;
        }
        std::array<Byte, kBlockPixels> packed; // a depth below 8 fills only a part
        packIndexes(indexes, m_depth, packed.data());
        storeBlock(packed.data(), static_cast<std::size_t>(begin / kBlockPixels) * m_depth);
    }

    void storeBlock(const Byte* packed, std::size_t place)
    {
        for (std::size_t i = 0; i < m_depth; ++i) {
            if (m_filter == RowFilter::Up)
                m_differences[place + i] = static_cast<Byte>(packed[i] - m_packed[place + i]);
            m_packed[place + i] = packed[i];
        }
    }

    const CRowMemory& m_memory;
    int m_width;
    std::size_t m_depth; // also the bytes of a packed block
    const CPictureColors& m_colors;
    RowFilter m_filter;
    std::vector<QRgb> m_pixelsAbove; // those of the last row that was not a repetition
    std::vector<Byte> m_packed;      // that row packed, with the changes so far; at first zeros
    std::vector<Byte> m_differences; // what Up writes for the current row
};

std::vector<QRgb> paletteOf(const CColorIndex& index)
{
    std::vector<QRgb> palette;
    palette.reserve(static_cast<std::size_t>(index.count()));
    for (int number = 0; number < index.count(); ++number)
        palette.push_back(index.colorAt(number));
    return palette;
}

CPackedPicture packPalette(QImage& picture, const CPictureColors& colors, Compression compression)
{
    CPackedPicture packed;
    packed.depth = paletteDepth(colors.index.count());
    packed.palette = paletteOf(colors.index);
    const auto bits =
        static_cast<std::size_t>(picture.width()) * static_cast<std::size_t>(packed.depth);
    const std::size_t rowBytes = (bits + kBitsPerByte - 1) / kBitsPerByte;
    const CRowMemory memory(picture, rowBytes);
    const RowFilter filter =
        compression == Compression::Fast
            ? RowFilter::None
            : chooseFilter(rowBytes, colors.repeatedRows, picture.height() - colors.repeatedRows);
    CPaletteWriter(memory, picture.width(), packed.depth, colors, filter).write();
    packed.rows = memory.allPacked();
    packed.shape.stride = memory.packedStride();
    if (filter == RowFilter::Up)
        packed.stillRows = findStillRows(colors.isRepeated, memory.packedStride());
    packed.spare = memory.spare();
    return packed;
}

// Writes red, green and blue.
void packColor(QRgb pixel, Byte* packed)
{
    packed[0] = static_cast<Byte>(qRed(pixel));
    packed[1] = static_cast<Byte>(qGreen(pixel));
    packed[2] = static_cast<Byte>(qBlue(pixel));
}

void packChannels(const QRgb* pixels, std::size_t count, Byte* packed)
{
    for (std::size_t x = 0; x < count; ++x, packed += kChannels)
        packColor(pixels[x], packed);
}

void packChannelsWithAlpha(const QRgb* pixels, std::size_t count, Byte* packed)
{
    for (std::size_t x = 0; x < count; ++x, packed += kChannelsWithAlpha) {
        packColor(pixels[x], packed);
        packed[kChannels] = static_cast<Byte>(qAlpha(pixels[x]));
    }
}

CPackedPicture packTrueColor(QImage& picture)
{
    const auto width = static_cast<std::size_t>(picture.width());
    const CRowMemory memory(picture, width * kChannels);
    std::vector<Byte> row(width * kChannels);
    for (std::size_t y = 0; y < memory.rows(); ++y) {
        packChannels(memory.pixels(y), width, row.data());
        Byte* const out = memory.packed(y);
        *out = static_cast<Byte>(RowFilter::None);
        std::copy(row.begin(), row.end(), out + kFilterBytes);
    }
    CPackedPicture packed;
    packed.rows = memory.allPacked();
    packed.shape = {kChannels, memory.packedStride()};
    packed.spare = memory.spare();
    return packed;
}

// With its filter, a packed row is longer than a row of pixels. The rows get memory of their own,
// and the picture's is free for what comes of them.
CPackedPicture packTrueColorWithAlpha(QImage& picture)
{
    const auto width = static_cast<std::size_t>(picture.width());
    const auto height = static_cast<std::size_t>(picture.height());
    const std::size_t stride = kFilterBytes + width * kChannelsWithAlpha;
    CPackedPicture packed;
    packed.hasAlpha = true;
    packed.ownMemory = std::make_unique<Byte[]>(stride * height);
    packed.rows = {packed.ownMemory.get(), stride * height};
    packed.shape = {kChannelsWithAlpha, stride};
    packed.spare = {picture.bits(), static_cast<std::size_t>(picture.bytesPerLine()) * height};
    for (int y = 0; y < picture.height(); ++y) {
        Byte* const out = packed.ownMemory.get() + stride * static_cast<std::size_t>(y);
        *out = static_cast<Byte>(RowFilter::None);
        const auto* const pixels = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        packChannelsWithAlpha(pixels, width, out + kFilterBytes);
    }
    return packed;
}

CPackedPicture packManyColors(QImage& picture)
{
    return isOpaque(picture) ? packTrueColor(picture) : packTrueColorWithAlpha(picture);
}

} // namespace

// A compressor writes a match for every 258 bytes. Unfiltered, the matches of a repeated row encode
// the distance to the row above, and each costs about a byte more than a match in the zeros that Up
// produces; Up itself costs two matches a row. In the other rows Up costs about half a byte a
// match. Both figures were measured on 1,500 charts.
RowFilter chooseFilter(std::size_t rowBytes, int repeated, int others)
{
    constexpr double kMatchBytes = kLongestMatch;
    constexpr double kMatchesOfUp = 2;    // a repeated row
    constexpr double kLossInOthers = 0.5; // bytes a match
    const double matches = static_cast<double>(rowBytes) / kMatchBytes;
    const bool isWorthIt = repeated * (matches - kMatchesOfUp) > kLossInOthers * others * matches;
    return isWorthIt ? RowFilter::Up : RowFilter::None;
}

int paletteDepth(int colors)
{
    int depth = 1;
    while (depth < kDeepestPalette && 1 << depth < colors)
        depth *= 2;
    return depth;
}

CStillRows findStillRows(const std::vector<bool>& isRepeated, std::size_t stride)
{
    CStillRows still{stride, {}};
    std::size_t stillRows = 0;
    const auto addRun = [&still, &stillRows](CRowRun& run) {
        if (run.count * still.stride >= kLeastStillBytes) {
            still.runs.push_back(run);
            stillRows += run.count;
        }
        run = CRowRun();
    };
    CRowRun run;
    for (std::size_t row = 0; row < isRepeated.size(); ++row) {
        if (!isRepeated[row])
            addRun(run);
        else if (run.count++ == 0)
            run.first = row;
    }
    addRun(run);
    if (2 * stillRows < isRepeated.size())
        still.runs.clear();
    return still;
}

CPackedPicture packPicture(QImage& picture, Compression compression)
{
    const CPictureColors colors = readColors(picture);
    CPackedPicture packed =
        colors.areFew ? packPalette(picture, colors, compression) : packManyColors(picture);
    packed.width = picture.width();
    packed.height = picture.height();
    return packed;
}

} // namespace tovangl
