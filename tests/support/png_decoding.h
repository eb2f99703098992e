// SPDX-License-Identifier: MIT
/// @file
/// From exported bytes back to pixels.
#ifndef TOVANGL_SUPPORT_PNG_DECODING_H
#define TOVANGL_SUPPORT_PNG_DECODING_H

#include <QImage>

#include <string>

namespace tovangl {

/// The picture in ARGB32, so that pictures compare equal where their pixels do, whatever the format
/// that they were saved in. Null where the bytes are no PNG picture.
[[nodiscard]] QImage decodePng(const std::string& bytes);

} // namespace tovangl

#endif
