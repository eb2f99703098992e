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

} // namespace tovangl::program

#endif
