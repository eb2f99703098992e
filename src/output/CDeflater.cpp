// SPDX-License-Identifier: MIT
// Compresses the rows of one picture.
#include "output/CDeflater.h"

#include "deflate/row_deflating.h"
#include "output/piecewise_deflating.h"

#include <libdeflate.h>
#include <new>
#include <utility>

namespace tovangl {

namespace {

// Small pictures can afford a longer search, which saves an eighth of the file and costs a tenth of
// a millisecond. In large ones it takes long, and gains little.
constexpr std::size_t kSmallPicture = 128 * 1024; // bytes of packed rows
constexpr std::size_t kLargePicture = 512 * 1024;
constexpr int kSmallPictureLevel = 7;
constexpr int kMiddlePictureLevel = 6;
constexpr int kLargePictureLevel = 5;

// For large pictures that do not repeat, which nothing makes smaller.
constexpr int kQuickestLevel = 2;

// Of so many bytes, one is in the stream of a crowded picture.
constexpr std::size_t kCrowded = 20;

// Labels that lie upon each other repeat in ways that only a longer search finds: without it, one
// file of 2,000 small charts was half as large again as Qt's. In small pictures it takes no time.
bool isCrowded(std::size_t bytes, std::size_t stream)
{
    return bytes < kSmallPicture && stream * kCrowded > bytes;
}

// In large pictures of many colours it takes a quarter of the time, and all files together are as
// large as by the longer search, within a fiftieth.
bool isOwnCompressorBest(std::size_t bytes, CRowShape shape)
{
    return bytes >= kSmallPicture && shape.pixelBytes > 1;
}

int levelFor(std::size_t bytes, Compression compression)
{
    if (bytes < kSmallPicture)
        return kSmallPictureLevel;
    if (compression == Compression::Fast)
        return kQuickestLevel;
    return bytes < kLargePicture ? kMiddlePictureLevel : kLargePictureLevel;
}

} // namespace

void CDeflater::CFree::operator()(libdeflate_compressor* compressor) const
{
    libdeflate_free_compressor(compressor);
}

CDeflater::CDeflater(const CPackedPicture& picture, Compression compression)
    : m_bytes(picture.rows)
    , m_compression(compression)
    , m_still(picture.stillRows)
    , m_shape(picture.shape)
{}

CDeflater::CDeflater(CByteRange bytes, Compression compression, CStillRows still)
    : m_bytes(bytes)
    , m_compression(compression)
    , m_still(std::move(still))
{}

std::size_t CDeflater::deflate(CByteRoom room)
{
    if (m_compression == Compression::Fast || isOwnCompressorBest(m_bytes.size, m_shape)) {
        const std::size_t size = deflateRows(m_bytes, m_shape, room);
        if (size > 0 && !isCrowded(m_bytes.size, size))
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
    return "tovangl";
}

} // namespace tovangl
