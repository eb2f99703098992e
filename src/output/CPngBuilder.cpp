// SPDX-License-Identifier: MIT
// Puts the chunks of a PNG file around the compressed rows.
#include "output/CPngBuilder.h"

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
constexpr unsigned kDeflate = 0;
constexpr unsigned kFilterByRow = 0;
constexpr unsigned kNotInterlaced = 0;

// Every picture declares 100 dots per inch, the resolution of Qt 5's offscreen platform. Other
// versions and platforms have other resolutions, and a file must not depend on them.
constexpr std::size_t kDotsPerMetre = 3937;
constexpr unsigned kUnitIsMetre = 1;

std::size_t fileBytes(const CPackedPicture& picture, std::size_t rows)
{
    const std::size_t palette =
        picture.palette.empty() ? 0 : kChunkFrame + kBytesPerColor * picture.palette.size();
    return kSignature.size() + kChunkFrame + kHeaderBytes + palette + kChunkFrame +
           kResolutionBytes + kChunkFrame + rows + kChunkFrame;
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
    writeResolution();
    beginChunk("IDAT", 0);
}

CByteRoom CPngBuilder::room() const
{
    return {m_next, m_room};
}

CPngFile CPngBuilder::finish(std::size_t size)
{
    unsigned char* const rows = m_next;
    m_next = rows - kTypeBytes - sizeof(std::uint32_t);
    beginChunk("IDAT", size);
    m_next = rows + size;
    endChunk();
    beginChunk("IEND", 0);
    endChunk();
    CPngFile file;
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
    writeByte(picture.palette.empty() ? kTrueColorType : kPaletteType);
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
