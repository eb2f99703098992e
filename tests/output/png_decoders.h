// SPDX-License-Identifier: MIT
/// @file
/// Two decoders that share no code, behind one kind of call.
#ifndef TOVANGL_OUTPUT_PNG_DECODERS_H
#define TOVANGL_OUTPUT_PNG_DECODERS_H

#include "output/png_encoding.h"

#include <QImage>

namespace tovangl {

/// The picture in ARGB32; null where the decoder refuses the file or warns of it.
[[nodiscard]] QImage decodeWithLibpng(const CPictureFile& file);
[[nodiscard]] QImage decodeWithSpng(const CPictureFile& file);

/// Whether both decoders give exactly these pixels.
[[nodiscard]] bool decodesTo(const CPictureFile& file, const QImage& picture);

} // namespace tovangl

#endif
