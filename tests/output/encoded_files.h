// SPDX-License-Identifier: MIT
/// @file
/// Files of pictures, and what is in them.
#ifndef TOVANGL_OUTPUT_ENCODED_FILES_H
#define TOVANGL_OUTPUT_ENCODED_FILES_H

#include "output/png_encoding.h"

#include <QImage>

#include <string>

namespace tovangl {

/// The file of a picture, which keeps its pixels.
[[nodiscard]] CPictureFile encoded(const QImage& picture, Compression compression);

[[nodiscard]] std::string bytesOf(const CPictureFile& file);

/// The bytes of a chunk, without its length and its check; empty where there is none.
[[nodiscard]] std::string chunkOf(const std::string& file, const std::string& type);

} // namespace tovangl

#endif
