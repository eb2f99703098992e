// SPDX-License-Identifier: MIT
/// @file
/// Symbols and codes of deflate streams, as RFC 1951 defines them.
#ifndef TOVANGL_DEFLATE_DEFLATE_CODES_H
#define TOVANGL_DEFLATE_DEFLATE_CODES_H

#include <array>
#include <cstddef>
#include <vector>

namespace tovangl {

inline constexpr std::size_t kShortestMatch = 3; // bytes
inline constexpr std::size_t kLongestMatch = 258;
inline constexpr std::size_t kFarthestMatch = 32 * 1024;

// Symbols below the end of a block are bytes, those above it lengths of matches.
inline constexpr std::size_t kEndOfBlock = 256;
inline constexpr std::size_t kLongestLength = 285; // the symbol of the longest match
inline constexpr std::size_t kSymbols = kLongestLength + 1;
inline constexpr std::size_t kDistances = 30;

inline constexpr int kLongestCode = 15; // bits

/// A code as it is written, its first bit lowest.
struct CCode
{
    unsigned bits = 0;
    int length = 0; ///< 0: the symbol does not occur
};

template <std::size_t N>
using Codes = std::array<CCode, N>;

/// A number as a symbol, and bits that tell apart the numbers that share it.
struct CNumber
{
    unsigned symbol = 0;
    unsigned extra = 0;
    int extraBits = 0;
};

/// @param length  kShortestMatch to kLongestMatch
[[nodiscard]] CNumber lengthNumber(std::size_t length);

/// @param distance  1 to kFarthestMatch
[[nodiscard]] CNumber distanceNumber(std::size_t distance);

/// Gives codes of the same length numbers that follow each other, after the shorter ones.
void numberCodes(CCode* codes, std::size_t count);

/// Codes that take the fewest bits for symbols that occur so often.
///
/// @param longest  no code is longer; in bits
void makeCodes(const std::vector<unsigned>& frequencies, int longest, CCode* codes);

} // namespace tovangl

#endif
