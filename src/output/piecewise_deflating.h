// SPDX-License-Identifier: MIT
/// @file
/// Compresses rows of which many repeat the row above.
#ifndef TOVANGL_OUTPUT_PIECEWISE_DEFLATING_H
#define TOVANGL_OUTPUT_PIECEWISE_DEFLATING_H

#include "output/packed_picture.h"

struct libdeflate_compressor;

namespace tovangl {

/// Compresses the rows of a picture into a zlib stream. Its still rows become blocks of their own,
/// which the compressor does not see; the pieces between them become one stream.
///
/// @param picture  with at least one run of still rows
/// @return the stream's length; 0 if it does not fit
[[nodiscard]] std::size_t deflatePieces(libdeflate_compressor* compressor, CByteRange rows,
                                        const CStillRows& still, CByteRoom room);

} // namespace tovangl

#endif
