// SPDX-License-Identifier: MIT
/// @file
/// Turns a painted picture into the bytes of a PNG file.
#ifndef TOVANGL_OUTPUT_PNG_ENCODING_H
#define TOVANGL_OUTPUT_PNG_ENCODING_H

#include "output/CPictureFile.h"
#include <tovangl/Compression.h>

class QImage;

namespace tovangl {

/// The file, from which a decoder gets exactly the picture's pixels. It depends only on them and on
/// the setting. Only std::bad_alloc can leave this call.
///
/// @param picture  in ARGB32. Its pixels are overwritten with intermediate data.
/// @return for a null picture no bytes, but a pointer that is not null
[[nodiscard]] CPictureFile encodePng(QImage& picture, Compression compression);

} // namespace tovangl

#endif
