// SPDX-License-Identifier: MIT
/// @file
/// Numbers of bytes: added without overflow, and written for people.
#ifndef TOVANGL_DU_BYTE_TEXT_H
#define TOVANGL_DU_BYTE_TEXT_H

#include <cstdint>
#include <string>

namespace tovangl::program {

/// The sum of two sizes, both 0 or more; the greatest number if the sum overflows. Files with holes
/// can have any apparent size.
[[nodiscard]] long addBytes(long a, long b);

/// 1,234,567
[[nodiscard]] std::string formatCount(std::uint64_t count);

/// 1 byte, 999 bytes, 1.5 KB, 146 KB, 1,000.0 KB: as in the pictures, with a kilo of 1024 and no
/// decimal after three digits. 0 or more bytes.
[[nodiscard]] std::string formatBytes(long bytes);

/// 23.4 %; a share above 0 that would round to 0 is "under 0.1 %".
///
/// @param whole  above 0
[[nodiscard]] std::string formatShare(long part, long whole);

/// "1 file", "2 files": the count with the matching form of the noun.
[[nodiscard]] std::string formatNumberOf(std::uint64_t count, const std::string& one,
                                         const std::string& many);

} // namespace tovangl::program

#endif
