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

// The stream and the work buffer of its level, which is as small as it can be without making files
// larger. Together they are too large for the stack of a host's thread.
struct CWork
{
    isal_zstream stream;
    std::array<std::uint8_t, ISAL_DEF_LVL1_SMALL> levelRoom;
};

void prepare(CWork& work)
{
    isal_deflate_init(&work.stream);
    work.stream.level = kLevel;
    work.stream.level_buf = work.levelRoom.data();
    work.stream.level_buf_size = static_cast<std::uint32_t>(work.levelRoom.size());
    work.stream.gzip_flag = IGZIP_ZLIB;
    work.stream.end_of_stream = 1;
}

} // namespace

bool canDeflateFast()
{
    return true;
}

std::size_t deflateFast(CByteRange bytes, CByteRoom room)
{
    const auto work = std::make_unique<CWork>();
    isal_zstream& stream = work->stream;
    prepare(*work);
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
