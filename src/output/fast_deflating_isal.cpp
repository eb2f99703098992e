// SPDX-License-Identifier: MIT
// The fastest compressor available, by ISA-L.
#include "output/fast_deflating.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <isa-l/igzip_lib.h>
#include <memory>

namespace tovangl {

namespace {

// Higher levels take longer and gain nothing on charts, as measured.
constexpr std::uint32_t kLevel = 1;

constexpr std::uint16_t kNearBits = 9; // of a distance: 512 bytes
constexpr std::uint16_t kFarBits = 15;

// Literals and matches that get codes of their own. With fewer, codes fit better and take longer.
constexpr std::size_t kTokensOfBlock = 8 * 1024;
constexpr std::size_t kLevelRoom =
    ISAL_DEF_LVL1_REQ + kTokensOfBlock * ISAL_DEF_LVL1_TOKEN_SIZE; // bytes
static_assert(kLevelRoom >= ISAL_DEF_LVL1_MIN);

// At the beginning of a stream, ISA-L's loop for many bytes hashes an address of its own instead of
// the bytes, so that files would depend on where its memory is. A few bytes go to another loop.
constexpr std::size_t kFirstBytes = 8;

// The stream and the work buffer of its level. Together they are too large for the stack of a
// host's thread.
struct CWork
{
    isal_zstream stream;
    std::array<std::uint8_t, kLevelRoom> levelRoom;
};

void prepare(CWork& work, Reach reach)
{
    isal_deflate_init(&work.stream);
    work.stream.level = kLevel;
    work.stream.level_buf = work.levelRoom.data();
    work.stream.level_buf_size = static_cast<std::uint32_t>(work.levelRoom.size());
    work.stream.hist_bits = reach == Reach::Near ? kNearBits : kFarBits;
    work.stream.gzip_flag = IGZIP_ZLIB;
}

// Compresses all but the first bytes after these.
int deflate(isal_zstream& stream, std::size_t bytes)
{
    const std::size_t first = std::min(bytes, kFirstBytes);
    stream.avail_in = static_cast<std::uint32_t>(first);
    stream.flush = SYNC_FLUSH;
    if (const int error = isal_deflate(&stream))
        return error;
    stream.avail_in += static_cast<std::uint32_t>(bytes - first);
    stream.flush = NO_FLUSH;
    stream.end_of_stream = 1;
    return isal_deflate(&stream);
}

} // namespace

bool canDeflateFast()
{
    return true;
}

std::size_t deflateFast(CByteRange bytes, Reach reach, CByteRoom room)
{
    const auto work = std::make_unique<CWork>();
    isal_zstream& stream = work->stream;
    prepare(*work, reach);
    // The interface lacks const, but only reads the bytes.
    stream.next_in = const_cast<std::uint8_t*>(bytes.data);
    stream.next_out = room.data;
    stream.avail_out = static_cast<std::uint32_t>(room.size);
    const bool isDone =
        deflate(stream, bytes.size) == COMP_OK && stream.internal_state.state == ZSTATE_END;
    return isDone ? stream.total_out : 0;
}

} // namespace tovangl
