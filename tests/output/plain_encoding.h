// SPDX-License-Identifier: MIT
/// @file
/// The plain way to a PNG file, which the library's own encoder is held against.
#ifndef TOVANGL_OUTPUT_PLAIN_ENCODING_H
#define TOVANGL_OUTPUT_PLAIN_ENCODING_H

#include <QByteArray>
#include <QImage>

namespace tovangl {

/// The file that Qt writes, with the default quality, of a palette of 8 bits where at most 256
/// colours occur, and else without an alpha channel.
[[nodiscard]] QByteArray encodePlainly(const QImage& picture);

} // namespace tovangl

#endif
