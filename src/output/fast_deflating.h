// SPDX-License-Identifier: MIT
/// @file
/// The fastest compressor. It is available only if the library was built with ISA-L.
#ifndef TOVANGL_OUTPUT_FAST_DEFLATING_H
#define TOVANGL_OUTPUT_FAST_DEFLATING_H

#include "output/CByteRange.h"

namespace tovangl {

/// Whether the compressor of deflateFast() is available.
[[nodiscard]] bool canDeflateFast();

/// Compresses into a zlib stream.
///
/// @return the stream's length; 0 if it does not fit, or if there is no such compressor
[[nodiscard]] std::size_t deflateFast(CByteRange bytes, CByteRoom room);

} // namespace tovangl

#endif
