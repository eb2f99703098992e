// SPDX-License-Identifier: MIT
/// @file
/// Finds what has changed from one row of a picture to the next, eight pixels at a time.
#ifndef TOVANGL_OUTPUT_PIXEL_BLOCKS_H
#define TOVANGL_OUTPUT_PIXEL_BLOCKS_H

#include <QRgb>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace tovangl {

/// As many pixels as fill whole bytes at every depth of a palette.
inline constexpr int kBlockPixels = 8;

/// Whether two blocks are equal: in words of two pixels, because most are.
[[nodiscard]] inline bool areEqualBlocks(const QRgb* a, const QRgb* b)
{
    constexpr std::size_t kWords = kBlockPixels * sizeof(QRgb) / sizeof(std::uint64_t);
    std::uint64_t wordsOfA[kWords];
    std::uint64_t wordsOfB[kWords];
    std::memcpy(wordsOfA, a, sizeof wordsOfA);
    std::memcpy(wordsOfB, b, sizeof wordsOfB);
    std::uint64_t difference = 0;
    for (std::size_t i = 0; i < kWords; ++i)
        difference |= wordsOfA[i] ^ wordsOfB[i];
    return difference == 0;
}

/// Calls visit(begin, end) for every block in which a row differs from the other, from left to
/// right, until a call returns false. The last block may be shorter.
///
/// @return whether no call has returned false
template <typename Visit>
bool visitChangedBlocks(const QRgb* row, const QRgb* other, int width, Visit visit)
{
    int x = 0;
    for (; x + kBlockPixels <= width; x += kBlockPixels) {
        if (!areEqualBlocks(row + x, other + x) && !visit(x, x + kBlockPixels))
            return false;
    }
    return std::equal(row + x, row + width, other + x) || visit(x, width);
}

/// The same for all blocks of a row.
template <typename Visit>
bool visitAllBlocks(int width, Visit visit)
{
    for (int x = 0; x < width; x += kBlockPixels) {
        if (!visit(x, std::min(x + kBlockPixels, width)))
            return false;
    }
    return true;
}

} // namespace tovangl

#endif
