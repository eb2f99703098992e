// SPDX-License-Identifier: MIT
/// @file
/// How hard a chart's PNG file is compressed.
#ifndef TOVANGL_COMPRESSION_H
#define TOVANGL_COMPRESSION_H

#include <tovangl/Export.h>

namespace tovangl {

/// The choice between small files and a short time. The pixels are the same either way.
enum class Compression
{
    Balanced, ///< small files, which is the default
    Fast      ///< files of about the same size, seldom twice as large, in about half the time;
              ///< the same files as Balanced where a large picture has more than 256 colours
};

/// The name of the compressor that Compression::Fast uses in this build of the library: "tovangl",
/// which is one of the library's own.
///
/// @return a string that lives as long as the process; never null
TOVANGL_EXPORT const char* fastCompressor() noexcept;

} // namespace tovangl

#endif
