// SPDX-License-Identifier: MIT
/// @file
/// The regions of a chart as an HTML image map.
#ifndef TOVANGL_COMMON_IMAGE_MAP_H
#define TOVANGL_COMMON_IMAGE_MAP_H

#include <tovangl/Rectangle.h>
#include <tovangl/Slice.h>

#include <string>

namespace tovangl::program {

/// The texts and the link of a region; plain text, not escaped yet.
struct RegionLink
{
    std::string target; ///< address of the page or place
    std::string title;  ///< shown while the pointer rests on the region
    std::string text;   ///< the region's alternative text
};

/// A map that an <img> names with usemap. Where regions overlap, the one added first wins.
class CImageMap
{
public:
    /// @param name  unique among the maps of a page; letters only
    explicit CImageMap(std::string name);

    /// Adds a region; a record that is all zero adds nothing.
    void addRectangle(const Rectangle& rectangle, const RegionLink& link);
    void addSlice(const Slice& slice, const RegionLink& link);

    [[nodiscard]] const std::string& name() const { return m_name; }
    [[nodiscard]] std::string html() const;

private:
    void addArea(const char* shape, const std::string& coordinates, const RegionLink& link);

    std::string m_name;
    std::string m_areas;
};

/// A picture that a map belongs to.
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

} // namespace tovangl::program

#endif
