// SPDX-License-Identifier: MIT
/// @file
/// Begins a block of a deflate stream that has codes of its own.
#ifndef TOVANGL_DEFLATE_BLOCK_HEADER_H
#define TOVANGL_DEFLATE_BLOCK_HEADER_H

#include "deflate/CBitWriter.h"
#include "deflate/deflate_codes.h"

namespace tovangl {

/// The codes of a block.
struct CBlockCodes
{
    Codes<kSymbols> symbols{};     ///< of bytes, of its end and of the lengths of matches
    Codes<kDistances> distances{}; ///< at least one
};

/// Writes what comes before the symbols: that codes follow, and how long each of them is.
///
/// @param isLast  whether the stream ends with this block
void writeBlockHeader(CBitWriter& out, const CBlockCodes& codes, bool isLast);

} // namespace tovangl

#endif
