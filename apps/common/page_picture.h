// SPDX-License-Identifier: MIT
/// @file
/// A chart's picture in a page.
#ifndef TOVANGL_COMMON_PAGE_PICTURE_H
#define TOVANGL_COMMON_PAGE_PICTURE_H

#include "common/image_map.h"

#include <string>
#include <vector>

namespace tovangl::program {

/// What the styles of a page say about its pictures.
[[nodiscard]] std::string pictureStyle();

/// A picture of pixels that a map belongs to.
struct MappedPicture
{
    std::string source;    ///< address of the picture
    std::string sourceSet; ///< from denseSource(); may be empty
    int width;             ///< in pixels of the page: a map does not scale with its picture
    int height;
    std::string description; ///< the picture's alternative text; plain text
};

/// Says that the same picture with so many pixels, each way, for each pixel of the page is there
/// for dense displays.
///
/// @param address  without white space
[[nodiscard]] std::string denseSource(const std::string& address, int density);

/// The picture with its map.
[[nodiscard]] std::string mappedPictureHtml(const MappedPicture& picture, const CImageMap& map);

/// An SVG picture as a part of the page: it brings its links and its description along.
[[nodiscard]] std::string embeddedSvgHtml(const std::string& svg);

/// An SVG picture with other texts for the pointer to show on its items.
///
/// @param titles  plain text, one for each item of the chart
[[nodiscard]] std::string withItemTitles(std::string svg, const std::vector<std::string>& titles);

} // namespace tovangl::program

#endif
