// SPDX-License-Identifier: MIT
/// @file
/// Bytes that somebody else owns.
#ifndef TOVANGL_DEFLATE_CBYTERANGE_H
#define TOVANGL_DEFLATE_CBYTERANGE_H

#include <cstddef>

namespace tovangl {

inline constexpr std::size_t kBitsPerByte = 8;

/// Bytes to be read.
struct CByteRange
{
    const unsigned char* data = nullptr; // borrowed
    std::size_t size = 0;
};

/// Memory to write to.
struct CByteRoom
{
    unsigned char* data = nullptr; // borrowed
    std::size_t size = 0;
};

} // namespace tovangl

#endif
