// SPDX-License-Identifier: MIT
// Compresses the rows of one picture.
#include "output/CDeflater.h"

#include "output/fast_deflating.h"
#include "output/piecewise_deflating.h"

#include <libdeflate.h>
#include <new>
#include <utility>

namespace tovangl {

namespace {

// Small pictures can afford a longer search, which saves an eighth of the file and costs a tenth of
// a millisecond. In large ones it takes long in the antialiased edges of pies, and gains little.
constexpr std::size_t kSmallPicture = 128 * 1024; // bytes of packed rows
constexpr std::size_t kLargePicture = 512 * 1024;
constexpr int kSmallPictureLevel = 7;
constexpr int kMiddlePictureLevel = 6;
constexpr int kLargePictureLevel = 5;

// Level 1 is no faster on charts: in runs of equal bytes its steps depend on each other.
constexpr int kQuickestLevel = 2;

// With less room, the fast compressor is not even tried.
constexpr std::size_t kLeastRoom = 4096; // bytes

int levelFor(std::size_t bytes, Compression compression)
{
    if (compression == Compression::Fast)
        return kQuickestLevel;
    if (bytes < kSmallPicture)
        return kSmallPictureLevel;
    return bytes < kLargePicture ? kMiddlePictureLevel : kLargePictureLevel;
}

} // namespace

void CDeflater::CFree::operator()(libdeflate_compressor* compressor) const
{
    libdeflate_free_compressor(compressor);
}

// Small pictures take next to no time either way, and libdeflate makes smaller files.
bool isForDeflateFast(std::size_t bytes, Compression compression)
{
    return compression == Compression::Fast && bytes >= kSmallPicture && canDeflateFast();
}

CDeflater::CDeflater(const CPackedPicture& picture, Compression compression)
    : m_bytes(picture.rows)
    , m_compression(compression)
    , m_still(picture.stillRows)
    , m_reach(picture.reach)
{}

CDeflater::CDeflater(CByteRange bytes, Compression compression, CStillRows still)
    : m_bytes(bytes)
    , m_compression(compression)
    , m_still(std::move(still))
{}

std::size_t CDeflater::deflate(CByteRoom room)
{
    if (isForDeflateFast(m_bytes.size, m_compression) && room.size >= kLeastRoom) {
        if (const std::size_t size = deflateFast(m_bytes, m_reach, room))
            return size;
    }
    if (!m_still.runs.empty()) {
        if (const std::size_t size = deflatePieces(compressor(), m_bytes, m_still, room))
            return size;
    }
    return libdeflate_zlib_compress(compressor(), m_bytes.data, m_bytes.size, room.data, room.size);
}

std::size_t CDeflater::bound()
{
    return libdeflate_zlib_compress_bound(compressor(), m_bytes.size);
}

libdeflate_compressor* CDeflater::compressor()
{
    if (!m_compressor)
        m_compressor.reset(libdeflate_alloc_compressor(levelFor(m_bytes.size, m_compression)));
    if (!m_compressor)
        throw std::bad_alloc();
    return m_compressor.get();
}

const char* fastCompressor() noexcept
{
    return canDeflateFast() ? "ISA-L" : "libdeflate";
}

} // namespace tovangl
