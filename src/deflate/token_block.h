// SPDX-License-Identifier: MIT
/// @file
/// Writes bytes and repetitions of earlier bytes as a block of a deflate stream.
#ifndef TOVANGL_DEFLATE_TOKEN_BLOCK_H
#define TOVANGL_DEFLATE_TOKEN_BLOCK_H

#include "deflate/CBitWriter.h"

#include <cstdint>
#include <vector>

namespace tovangl {

/// A byte, or a match: bytes that repeat those before them.
struct CToken
{
    std::uint16_t length = 0; ///< of the match; 0 for a byte
    std::uint16_t value = 0;  ///< the byte, or how far back the match begins
};

/// Writes a block with the codes that suit these tokens.
///
/// @param isLast  whether the stream ends with it
void writeTokens(CBitWriter& out, const std::vector<CToken>& tokens, bool isLast);

} // namespace tovangl

#endif
