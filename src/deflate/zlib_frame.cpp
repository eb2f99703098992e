// SPDX-License-Identifier: MIT
// What a zlib stream has around its blocks.
#include "deflate/zlib_frame.h"

#include <libdeflate.h>

namespace tovangl {

void beginZlibStream(CBitWriter& out)
{
    constexpr unsigned kHeader = 0x9c78; // deflate, a window of 32 KB, the default level
    out.put(kHeader, 16);
}

std::size_t endZlibStream(CBitWriter& out, CByteRange bytes)
{
    constexpr std::uint32_t kNothingBefore = 1;
    out.align();
    const std::uint32_t checksum = libdeflate_adler32(kNothingBefore, bytes.data, bytes.size);
    for (int shift = 24; shift >= 0; shift -= 8)
        out.put(checksum >> shift, 8);
    return out.isFull() ? 0 : out.position() / kBitsPerByte;
}

} // namespace tovangl
