// SPDX-License-Identifier: MIT
// Puts the chunks of a PNG file around the compressed rows.
#include "output/CPngBuilder.h"

#include "output/opacity.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <libdeflate.h>
#include <utility>

namespace tovangl {

namespace {

constexpr std::array<unsigned char, 8> kSignature = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
constexpr std::size_t kTypeBytes = 4;
constexpr std::size_t kChunkFrame = 4 + kTypeBytes + 4; // length, type and checksum
constexpr std::size_t kHeaderBytes = 13;
constexpr std::size_t kResolutionBytes = 9;
constexpr std::size_t kBytesPerColor = 3;

// Pixel types, and the only methods that the format defines.
constexpr unsigned kPaletteType = 3;
constexpr unsigned kTrueColorType = 2;
constexpr unsigned kTrueColorWithAlphaType = 6;
constexpr unsigned kDeflate = 0;
constexpr unsigned kFilterByRow = 0;
constexpr unsigned kNotInterlaced = 0;

// Every picture declares 100 dots per inch, the resolution of Qt 5's offscreen platform. Other
// versions and platforms have other resolutions, and a file must not depend on them.
constexpr std::size_t kDotsPerMetre = 3937;
constexpr unsigned kUnitIsMetre = 1;

unsigned pixelType(const CPackedPicture& picture)
{
    if (!picture.palette.empty())
        return kPaletteType;
    return picture.hasAlpha ? kTrueColorWithAlphaType : kTrueColorType;
}

// How many colours a file says the alpha of: all others are opaque.
std::size_t countTranslucent(const std::vector<QRgb>& palette)
{
    const auto firstOpaque =
        std::find_if(palette.begin(), palette.end(), [](QRgb color) { return isOpaque(color); });
    return static_cast<std::size_t>(firstOpaque - palette.begin());
}

std::size_t paletteBytes(const std::vector<QRgb>& palette)
{
    if (palette.empty())
        return 0;
    const std::size_t translucent = countTranslucent(palette);
    const std::size_t transparency = translucent == 0 ? 0 : kChunkFrame + translucent;
    return kChunkFrame + kBytesPerColor * palette.size() + transparency;
}

std::size_t fileBytes(const CPackedPicture& picture, std::size_t rows)
{
    return kSignature.size() + kChunkFrame + kHeaderBytes + paletteBytes(picture.palette) +
           kChunkFrame + kResolutionBytes + kChunkFrame + rows + kChunkFrame;
}

} // namespace

CPngBuilder::CPngBuilder(const CPackedPicture& picture, std::size_t room)
    : m_room(room)
    // Deliberate: make_unique would first fill all of it with zeros.
    , m_data(new unsigned char[fileBytes(picture, room)])
    , m_next(std::copy(kSignature.begin(), kSignature.end(), m_data.get()))
{
    writeHeader(picture);
    if (!picture.palette.empty())
        writePalette(picture.palette);
    if (countTranslucent(picture.palette) > 0)
        writeTransparency(picture.palette);
    writeResolution();
    beginChunk("IDAT", 0);
}

CByteRoom CPngBuilder::room() const
{
    return {m_next, m_room};
}

CPictureFile CPngBuilder::finish(std::size_t size)
{
    unsigned char* const rows = m_next;
    m_next = rows - kTypeBytes - sizeof(std::uint32_t);
    beginChunk("IDAT", size);
    m_next = rows + size;
    endChunk();
    beginChunk("IEND", 0);
    endChunk();
    CPictureFile file;
    file.size = static_cast<std::size_t>(m_next - m_data.get());
    file.data = std::move(m_data);
    return file;
}

void CPngBuilder::writeHeader(const CPackedPicture& picture)
{
    beginChunk("IHDR", kHeaderBytes);
    writeNumber(static_cast<std::size_t>(picture.width));
    writeNumber(static_cast<std::size_t>(picture.height));
    writeByte(static_cast<unsigned>(picture.depth));
    writeByte(pixelType(picture));
    writeByte(kDeflate);
    writeByte(kFilterByRow);
    writeByte(kNotInterlaced);
    endChunk();
}

void CPngBuilder::writePalette(const std::vector<QRgb>& palette)
{
    beginChunk("PLTE", kBytesPerColor * palette.size());
    for (const QRgb color : palette) {
        writeByte(static_cast<unsigned>(qRed(color)));
        writeByte(static_cast<unsigned>(qGreen(color)));
        writeByte(static_cast<unsigned>(qBlue(color)));
    }
    endChunk();
}

void CPngBuilder::writeTransparency(const std::vector<QRgb>& palette)
{
    const std::size_t count = countTranslucent(palette);
    beginChunk("tRNS", count);
    for (std::size_t number = 0; number < count; ++number)
        writeByte(static_cast<unsigned>(qAlpha(palette[number])));
    endChunk();
}

void CPngBuilder::writeResolution()
{
    beginChunk("pHYs", kResolutionBytes);
    writeNumber(kDotsPerMetre);
    writeNumber(kDotsPerMetre);
    writeByte(kUnitIsMetre);
    endChunk();
}

void CPngBuilder::beginChunk(const char* type, std::size_t size)
{
    writeNumber(size);
    m_checked = m_next;
    m_next = std::copy_n(type, kTypeBytes, m_next);
}

void CPngBuilder::endChunk()
{
    constexpr std::uint32_t kNothingBefore = 0;
    writeNumber(
        libdeflate_crc32(kNothingBefore, m_checked, static_cast<std::size_t>(m_next - m_checked)));
}

void CPngBuilder::writeByte(unsigned value)
{
    *m_next++ = static_cast<unsigned char>(value);
}

// The most significant byte goes first.
void CPngBuilder::writeNumber(std::size_t value)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        *m_next++ = static_cast<unsigned char>(value >> shift);
}

} // namespace tovangl
