// SPDX-License-Identifier: MIT
// The fastest compressor available, by ISA-L.
#include "output/fast_deflating.h"

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
    work.stream.end_of_stream = 1;
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
    stream.avail_in = static_cast<std::uint32_t>(bytes.size);
    stream.next_out = room.data;
    stream.avail_out = static_cast<std::uint32_t>(room.size);
    const bool isDone =
        isal_deflate(&stream) == COMP_OK && stream.internal_state.state == ZSTATE_END;
    return isDone ? stream.total_out : 0;
}

} // namespace tovangl
