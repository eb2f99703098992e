// SPDX-License-Identifier: MIT
// A chart's picture in a page.
#include "common/page_picture.h"

#include "common/html_text.h"

#include <string_view>

namespace tovangl::program {

namespace {

std::string pictureHtml(const std::string& picture)
{
    return "<div class=\"picture\">" + picture + "</div>\n";
}

} // namespace

std::string pictureStyle()
{
    return ".picture { overflow-x: auto; }\n"
           ".picture img, .picture svg { display: block; border: 0; }\n";
}

std::string denseSource(const std::string& address, int density)
{
    return address + ' ' + std::to_string(density) + 'x';
}

std::string mappedPictureHtml(const MappedPicture& picture, const CImageMap& map)
{
    const std::string dense =
        picture.sourceSet.empty() ? "" : htmlAttribute("srcset", picture.sourceSet);
    return pictureHtml("<img" + htmlAttribute("src", picture.source) + dense +
                       htmlAttribute("width", std::to_string(picture.width)) +
                       htmlAttribute("height", std::to_string(picture.height)) +
                       htmlAttribute("usemap", '#' + map.name()) +
                       htmlAttribute("alt", picture.description) + '>') +
           map.html();
}

std::string embeddedSvgHtml(const std::string& svg)
{
    return pictureHtml(svg);
}

std::string withItemTitles(std::string svg, const std::vector<std::string>& titles)
{
    constexpr std::string_view kTitle = "<title>";
    for (std::size_t i = 0; i < titles.size(); ++i) {
        // Quotes are escaped in all texts of the picture.
        const std::size_t item = svg.find('-' + std::to_string(i) + "\" class=\"item\"");
        if (item == std::string::npos) // it is not drawn
            continue;
        const std::size_t begin = svg.find(kTitle, item) + kTitle.size();
        svg.replace(begin, svg.find('<', begin) - begin, escapeHtml(titles[i]));
    }
    return svg;
}

} // namespace tovangl::program
