// SPDX-License-Identifier: MIT
/// @file
/// The fastest compressor. It is available only if the library was built with ISA-L.
#ifndef TOVANGL_OUTPUT_FAST_DEFLATING_H
#define TOVANGL_OUTPUT_FAST_DEFLATING_H

#include "output/CByteRange.h"

namespace tovangl {

/// Whether the compressor of deflateFast() is available.
[[nodiscard]] bool canDeflateFast();

/// How far back it looks for bytes that come again. A distance takes the more bits the larger it
/// is, and in a run of equal bytes it does not find the nearest one.
enum class Reach
{
    Near, ///< runs of a colour, or of the filter Up's zeros: 512 bytes
    Far   ///< rows above: as far as the format allows
};

/// Compresses into a zlib stream.
///
/// @return the stream's length; 0 if it does not fit, or if there is no such compressor
[[nodiscard]] std::size_t deflateFast(CByteRange bytes, Reach reach, CByteRoom room);

} // namespace tovangl

#endif
