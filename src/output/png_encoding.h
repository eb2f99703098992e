// SPDX-License-Identifier: MIT
/// @file
/// Turns a painted picture into the bytes of a PNG file.
#ifndef TOVANGL_OUTPUT_PNG_ENCODING_H
#define TOVANGL_OUTPUT_PNG_ENCODING_H

#include "output/CPngBuilder.h"
#include <tovangl/Compression.h>

class QImage;

namespace tovangl {

/// The file, out of which a decoder gets exactly the picture's pixels. It depends on these and on
/// the setting alone. Only std::bad_alloc can leave this call.
///
/// @param picture  in ARGB32, and opaque. Its pixels are used up: what is needed on the way to the
///                 file is written over them.
/// @return no bytes, but no null pointer either, where the picture is null
[[nodiscard]] CPngFile encodePng(QImage& picture, Compression compression);

} // namespace tovangl

#endif
