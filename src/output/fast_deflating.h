// SPDX-License-Identifier: MIT
/// @file
/// The quickest compressor there is. It is there only where the library was built with ISA-L.
#ifndef TOVANGL_OUTPUT_FAST_DEFLATING_H
#define TOVANGL_OUTPUT_FAST_DEFLATING_H

#include "output/CByteRange.h"

namespace tovangl {

/// Whether deflateFast() ever compresses anything.
[[nodiscard]] bool canDeflateFast();

/// Compresses into a zlib stream.
///
/// @return the stream's length; 0 where it does not fit, or where there is no such compressor
[[nodiscard]] std::size_t deflateFast(CByteRange bytes, CByteRoom room);

} // namespace tovangl

#endif
