// SPDX-License-Identifier: MIT
/// @file
/// A picture's rows as a PNG file has them before they are compressed.
#ifndef TOVANGL_OUTPUT_PACKED_PICTURE_H
#define TOVANGL_OUTPUT_PACKED_PICTURE_H

#include "output/CByteRange.h"

#include <QRgb>

#include <vector>

class QImage;

namespace tovangl {

/// What goes before a row's bytes; the values are those of the file format.
enum class RowFilter : unsigned char
{
    None = 0, ///< the bytes themselves
    Up = 2    ///< what has to be added to the bytes above
};

/// The filter that makes the smaller file of a palette's rows. It never looks at them: what counts
/// is how long they are, and how many repeat the row above.
///
/// @param rowBytes   length of a packed row
/// @param repeated   rows that repeat the row above
/// @param others     all other rows
[[nodiscard]] RowFilter chooseFilter(std::size_t rowBytes, int repeated, int others);

/// The fewest bits, out of 1, 2, 4 and 8, that number so many colours.
[[nodiscard]] int paletteDepth(int colors);

struct CPackedPicture
{
    int width = 0;  // pixels
    int height = 0; // likewise
    int depth = 8;  // bits of a palette's index, or of one of the channels red, green and blue
    std::vector<QRgb> palette; ///< empty where the pixels are red, green and blue
    CByteRange rows;           ///< each one begins with its filter
    CByteRoom spare;           ///< what the rows have left of the picture's memory
};

/// Packs a picture as narrowly as its colours allow: a palette where at most 256 occur, else red,
/// green and blue.
///
/// @param picture  in ARGB32, and opaque. Its pixels are used up, because the rows are packed into
///                 its memory: no second picture is held. It must outlive the result.
[[nodiscard]] CPackedPicture packPicture(QImage& picture);

} // namespace tovangl

#endif
