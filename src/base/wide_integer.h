// SPDX-License-Identifier: MIT
/// @file
/// Integers wide enough for sums and products of 64-bit values.
#ifndef TOVANGL_BASE_WIDE_INTEGER_H
#define TOVANGL_BASE_WIDE_INTEGER_H

#include <cstdint>

namespace tovangl {

__extension__ typedef __int128 WideInt;
__extension__ typedef unsigned __int128 WideUnsigned;

/// The distance of a value from zero; exact for the most negative value too.
[[nodiscard]] constexpr std::uint64_t magnitudeOf(long long value)
{
    const auto bits = static_cast<std::uint64_t>(value);
    return value < 0 ? 0 - bits : bits;
}

} // namespace tovangl

#endif
