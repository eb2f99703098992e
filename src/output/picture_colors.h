// SPDX-License-Identifier: MIT
/// @file
/// What the first reading of a picture tells: its colours, and the rows that repeat the row above.
#ifndef TOVANGL_OUTPUT_PICTURE_COLORS_H
#define TOVANGL_OUTPUT_PICTURE_COLORS_H

#include "output/CColorIndex.h"

#include <vector>

class QImage;

namespace tovangl {

struct CPictureColors
{
    bool areFew = false; ///< at most as many as a palette holds; the rest is valid only then
    CColorIndex index;   ///< all of them
    std::vector<bool> isRepeated; ///< for each row: whether it equals the row above
    int repeatedRows = 0;
};

/// Reads a picture in ARGB32 once. It stops as soon as there are too many colours for a palette.
[[nodiscard]] CPictureColors readColors(const QImage& picture);

} // namespace tovangl

#endif
