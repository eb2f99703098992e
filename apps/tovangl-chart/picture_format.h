// SPDX-License-Identifier: MIT
/// @file
/// The formats of pictures.
#ifndef TOVANGL_CHART_PICTURE_FORMAT_H
#define TOVANGL_CHART_PICTURE_FORMAT_H

#include <string_view>

namespace tovangl::program {

enum class PictureFormat
{
    Png,
    Svg,
    Pdf
};

/// The regions of a PDF page are given in pixels, of which a point has so many each way.
inline constexpr int kPixelsPerPoint = 4;

/// Reads "png", "svg" or "pdf".
[[nodiscard]] PictureFormat parsePictureFormat(std::string_view text);

/// The name that parsePictureFormat() reads, which is also the ending of such files.
[[nodiscard]] const char* formatName(PictureFormat format);

/// The format that a file of that name has: SVG or PDF if it ends in ".svg" or ".pdf", in upper or
/// lower case.
[[nodiscard]] PictureFormat formatOfName(std::string_view name);

/// Whether a file name ends in an ending, which is in lower case, in upper or lower case.
[[nodiscard]] bool hasEnding(std::string_view name, std::string_view ending);

} // namespace tovangl::program

#endif
