// SPDX-License-Identifier: MIT
// The regions of a chart as an HTML image map.
#include "common/image_map.h"

#include "common/html_text.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <utility>

namespace tovangl::program {

namespace {

// Rounds to a tenth of a pixel, which keeps the outline's error far below a pixel.
std::string decimal(double number)
{
    constexpr int kDecimals = 1;
    std::array<char, 32> text{};
    const auto end =
        std::to_chars(text.begin(), text.end(), number, std::chars_format::fixed, kDecimals);
    return {text.data(), end.ptr};
}

} // namespace

CImageMap::CImageMap(std::string name)
    : m_name(std::move(name))
{}

void CImageMap::addRectangle(const Rectangle& rectangle, const RegionLink& link)
{
    if (rectangle.width <= 0 || rectangle.height <= 0)
        return;
    const std::int64_t right = std::int64_t{rectangle.x} + rectangle.width;
    const std::int64_t bottom = std::int64_t{rectangle.y} + rectangle.height;
    addArea("rect",
            std::to_string(rectangle.x) + ',' + std::to_string(rectangle.y) + ',' +
                std::to_string(right) + ',' + std::to_string(bottom),
            link);
}

void CImageMap::addSlice(const Slice& slice, const RegionLink& link)
{
    std::string coordinates;
    for (const Point& point : getPolygon(slice)) {
        if (!coordinates.empty())
            coordinates += ',';
        coordinates += decimal(point.x) + ',' + decimal(point.y);
    }
    if (!coordinates.empty())
        addArea("poly", coordinates, link);
}

std::string CImageMap::html() const
{
    return "<map name=\"" + m_name + "\">\n" + m_areas + "</map>\n";
}

void CImageMap::addArea(const char* shape, const std::string& coordinates, const RegionLink& link)
{
    m_areas += "<area" + htmlAttribute("shape", shape) + htmlAttribute("coords", coordinates) +
               htmlAttribute("href", link.target) + htmlAttribute("title", link.title) +
               htmlAttribute("alt", link.text) + ">\n";
}

} // namespace tovangl::program
