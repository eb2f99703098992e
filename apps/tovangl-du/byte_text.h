// SPDX-License-Identifier: MIT
/// @file
/// Numbers of bytes: added without overflow, and written for people.
#ifndef TOVANGL_DU_BYTE_TEXT_H
#define TOVANGL_DU_BYTE_TEXT_H

#include <cstdint>
#include <string>

namespace tovangl::program {

/// The sum of two sizes, both 0 or more; the greatest number where that does not hold it. Files
/// with holes can claim any size.
[[nodiscard]] long addBytes(long a, long b);

/// 1,234,567
[[nodiscard]] std::string formatCount(std::uint64_t count);

/// 1 byte, 999 bytes, 1.5 KB, 146 KB, 1,000.0 KB: as the pictures have it, with a kilo of 1024 and
/// no decimal behind three digits. 0 or more bytes.
[[nodiscard]] std::string formatBytes(long bytes);

/// 23.4 %; what would round to nothing, but is not, is "under 0.1 %".
///
/// @param whole  above 0
[[nodiscard]] std::string formatShare(long part, long whole);

/// "1 file", "2 files": the count with the noun that goes with it.
[[nodiscard]] std::string formatNumberOf(std::uint64_t count, const std::string& one,
                                         const std::string& many);

} // namespace tovangl::program

#endif
