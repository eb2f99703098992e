// SPDX-License-Identifier: MIT
/// @file
/// Encodes bytes for use in a URL.
#ifndef TOVANGL_COMMON_BASE64_H
#define TOVANGL_COMMON_BASE64_H

#include <string>
#include <string_view>

namespace tovangl::program {

/// The bytes in base 64 with the alphabet of RFC 4648, section 4, padded to groups of four.
[[nodiscard]] std::string encodeBase64(std::string_view bytes);

} // namespace tovangl::program

#endif
