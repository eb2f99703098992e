// SPDX-License-Identifier: MIT
/// @file
/// Compresses the rows of a chart in a short time.
#ifndef TOVANGL_DEFLATE_ROW_DEFLATING_H
#define TOVANGL_DEFLATE_ROW_DEFLATING_H

#include "deflate/CMatchFinder.h"

namespace tovangl {

/// Compresses rows into a zlib stream, where bytes repeat those on their left, those above or
/// others, as in charts. The stream depends on the bytes and their shape alone.
///
/// @return the stream's length; 0 if it does not fit, or if bytes do not repeat
[[nodiscard]] std::size_t deflateRows(CByteRange rows, CRowShape shape, CByteRoom room);

} // namespace tovangl

#endif
