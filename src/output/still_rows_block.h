// SPDX-License-Identifier: MIT
/// @file
/// Compresses rows of which it is known that they are all the same.
#ifndef TOVANGL_OUTPUT_STILL_ROWS_BLOCK_H
#define TOVANGL_OUTPUT_STILL_ROWS_BLOCK_H

#include "deflate/CBitWriter.h"

namespace tovangl {

/// Writes rows that repeat the row above as one block of a deflate stream: for each row its filter,
/// Up, and zeros. A general compressor looks at every byte; this takes a step for 258 of them.
///
/// The block is one of RFC 1951, with codes of its own (3.2.7).
///
/// @param rowBytes  of a row without its filter, at least 1
/// @param rows      at least 1
/// @param isLast    whether the stream ends with it
void writeStillRows(CBitWriter& out, std::size_t rowBytes, std::size_t rows, bool isLast);

} // namespace tovangl

#endif
