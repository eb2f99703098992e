// SPDX-License-Identifier: MIT
/// @file
/// Finds what has changed from one row of a picture to the next, eight pixels at a time.
#ifndef TOVANGL_OUTPUT_PIXEL_BLOCKS_H
#define TOVANGL_OUTPUT_PIXEL_BLOCKS_H

#include <QRgb>

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace tovangl {

/// The smallest number of pixels that fills whole bytes at every palette depth.
inline constexpr int kBlockPixels = 8;

/// Calls visit(begin, end) for every block in which a row differs from the other, from left to
/// right, until a call returns false. The last block can be shorter.
///
/// @return false if a call returned false
template <typename Visit>
bool visitChangedBlocks(const QRgb* row, const QRgb* other, int width, Visit visit)
{
    constexpr int kPartPixels = 8 * kBlockPixels; // compared at once, because most are equal
    const auto areEqual = [row, other](int begin, int end) {
        const auto bytes = static_cast<std::size_t>(end - begin) * sizeof(QRgb);
        return std::memcmp(row + begin, other + begin, bytes) == 0;
    };
    for (int part = 0; part < width; part += kPartPixels) {
        const int partEnd = std::min(part + kPartPixels, width);
        if (areEqual(part, partEnd))
            continue;
        for (int x = part; x < partEnd; x += kBlockPixels) {
            const int end = std::min(x + kBlockPixels, partEnd);
            if (!areEqual(x, end) && !visit(x, end))
                return false;
        }
    }
    return true;
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
