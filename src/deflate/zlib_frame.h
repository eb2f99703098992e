// SPDX-License-Identifier: MIT
/// @file
/// What a zlib stream has around its blocks.
#ifndef TOVANGL_DEFLATE_ZLIB_FRAME_H
#define TOVANGL_DEFLATE_ZLIB_FRAME_H

#include "deflate/CBitWriter.h"

namespace tovangl {

void beginZlibStream(CBitWriter& out);

/// Writes the checksum behind the last block.
///
/// @param bytes  all that the blocks hold
/// @return the length of the stream in bytes; 0 if it did not fit
[[nodiscard]] std::size_t endZlibStream(CBitWriter& out, CByteRange bytes);

} // namespace tovangl

#endif
