// SPDX-License-Identifier: MIT
/// @file
/// A picture's rows in the form that a PNG file compresses.
#ifndef TOVANGL_OUTPUT_PACKED_PICTURE_H
#define TOVANGL_OUTPUT_PACKED_PICTURE_H

#include "deflate/CByteRange.h"
#include "deflate/CMatchFinder.h"
#include <tovangl/Compression.h>

#include <QRgb>

#include <memory>
#include <vector>

class QImage;

namespace tovangl {

/// The filter byte before each row; the values are those of the file format.
enum class RowFilter : unsigned char
{
    None = 0, ///< the bytes themselves
    Up = 2    ///< the differences from the bytes above
};

/// The filter that makes palette rows compress better, where a compressor looks for repetitions at
/// any distance. It depends only on their length and on how many of them repeat the row above.
///
/// @param rowBytes  length of a packed row
/// @param repeated  rows that repeat the row above
/// @param others    all other rows
[[nodiscard]] RowFilter chooseFilter(std::size_t rowBytes, int repeated, int others);

/// The smallest of 1, 2, 4 and 8 bits that can number that many colours.
[[nodiscard]] int paletteDepth(int colors);

/// Rows below each other, by their number from 0 at the top.
struct CRowRun
{
    std::size_t first = 0;
    std::size_t count = 0;
};

/// Rows that repeat the row above, and are nothing but zeros behind the filter Up.
struct CStillRows
{
    std::size_t stride = 0; ///< bytes of a row, with its filter
    std::vector<CRowRun> runs;
};

/// The long runs of rows that repeat the row above, if they are most of the picture.
///
/// @param isRepeated  for each row: whether it repeats the row above
/// @param stride      bytes of a row, with its filter
[[nodiscard]] CStillRows findStillRows(const std::vector<bool>& isRepeated, std::size_t stride);

struct CPackedPicture
{
    int width = 0;             // pixels
    int height = 0;            // likewise
    int depth = 8;             // bits of a palette's index, or of a channel
    std::vector<QRgb> palette; ///< empty if the pixels are channels; opaque colours come last
    bool hasAlpha = false;     ///< the channels are red, green, blue and alpha; else without alpha
    CByteRange rows;           ///< each one begins with its filter
    CStillRows stillRows;      ///< what findStillRows() finds; none without the filter Up
    CRowShape shape;           ///< of the rows
    CByteRoom spare;           ///< the part of the picture's memory that the rows do not need
    std::unique_ptr<unsigned char[]> ownMemory; ///< that of the rows where the picture's is short
};

/// Packs a picture as narrowly as its colours allow: as a palette if it has at most 256 colours,
/// otherwise as red, green and blue, with alpha only if a pixel is not opaque.
///
/// @param picture      in ARGB32. Its pixels are overwritten, because its memory takes what is made
///                     of them, to avoid a second picture. It must outlive the result.
/// @param compression  Fast looks for repetitions of pixels, and gets rows without a filter
[[nodiscard]] CPackedPicture packPicture(QImage& picture, Compression compression);

} // namespace tovangl

#endif
