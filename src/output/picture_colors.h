// SPDX-License-Identifier: MIT
/// @file
/// What one pass over a picture finds: its colours, and the rows that repeat the row above.
#ifndef TOVANGL_OUTPUT_PICTURE_COLORS_H
#define TOVANGL_OUTPUT_PICTURE_COLORS_H

#include "output/CColorIndex.h"

#include <vector>

class QImage;

namespace tovangl {

struct CPictureColors
{
    bool areFew = false;          ///< they fit into a palette; only then is the rest valid
    CColorIndex index;            ///< all colours; the opaque ones have the greatest numbers
    std::vector<bool> isRepeated; ///< for each row: whether it equals the row above
    int repeatedRows = 0;
};

/// Reads an ARGB32 picture once. It stops as soon as it finds too many colours for a palette.
[[nodiscard]] CPictureColors readColors(const QImage& picture);

} // namespace tovangl

#endif
