// SPDX-License-Identifier: MIT
/// @file
/// Finds the last block of a deflate stream.
#ifndef TOVANGL_DEFLATE_LAST_BLOCK_H
#define TOVANGL_DEFLATE_LAST_BLOCK_H

#include "deflate/CByteRange.h"

namespace tovangl {

/// Places in a stream, in bits from its beginning.
struct CLastBlock
{
    std::size_t begin = 0; ///< its first bit, which says that it is the last one
    std::size_t end = 0;   ///< behind its last bit
};

/// Reads a whole deflate stream to find its last block: only block by block can one get there. With
/// that, another stream can follow in its place, as zlib's example gzjoin does it.
///
/// @param stream  without a zlib header
[[nodiscard]] CLastBlock findLastBlock(CByteRange stream);

} // namespace tovangl

#endif
