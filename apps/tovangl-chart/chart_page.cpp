// SPDX-License-Identifier: MIT
// A chart as one page.
#include "tovangl-chart/chart_page.h"

#include "common/base64.h"
#include "common/html_text.h"
#include "common/page_frame.h"
#include "common/page_picture.h"
#include "tovangl-chart/picture_format.h"

namespace tovangl::program {

namespace {

constexpr const char* kGenerator = "tovangl-chart";
constexpr const char* kMapName = "chart";

constexpr const char* kStyle =
    R"(body { margin: 0 auto; max-width: 832px; padding: 0 16px; color: #222; background: #fff;
       font: 15px/1.45 sans-serif; }
h1 { font-size: 22px; overflow-wrap: anywhere; }
table { border-collapse: collapse; width: 100%; margin: 16px 0; font-size: 14px; }
th, td { padding: 2px 8px; text-align: right; border-bottom: 1px solid #e4e4e4; }
th { font-weight: normal; color: #666; }
th:first-child, td:first-child { width: 99%; text-align: left; overflow-wrap: anywhere; }
tr:target { background: #fff3c4; }
)";

// The colours of the pictures in the theme dark.
constexpr const char* kDarkStyle =
    R"(@media (prefers-color-scheme: dark) {
:root { color-scheme: dark; }
body { color: #e6e9ef; background: #1b1f27; }
th { color: #aab4c4; }
th, td { border-color: #3a4354; }
tr:target { background: #3a4354; }
}
)";

// Others that gather nothing have no row, and their regions are empty.
ChartItems rowsOf(const ChartItems& items, const ChartRegions& regions)
{
    ChartItems rows = items;
    if (regions.others && regions.others->count > 0)
        rows.push_back(
            {regions.others->value, regions.others->caption, {}, {}, regions.others->link});
    return rows;
}

RegionLink linkOf(const ChartItems& rows, std::size_t index)
{
    const std::string text =
        displayName(rows[index].caption) + ": " + std::to_string(rows[index].value);
    return {rows[index].link.empty() ? '#' + itemAnchor(index) : rows[index].link, text, text};
}

// Where regions overlap, the first one wins, so captions come before bars and slices: that is what
// the reader points at.
CImageMap imageMap(const ChartItems& rows, const ChartRegions& regions)
{
    CImageMap map(kMapName);
    const auto addAll = [&](const auto& list, auto add) {
        auto region = list.begin();
        for (std::size_t i = 0; i < rows.size(); ++i)
            (map.*add)(*region++, linkOf(rows, i));
    };
    addAll(regions.captions, &CImageMap::addRectangle);
    if (regions.bars)
        addAll(*regions.bars, &CImageMap::addRectangle);
    if (regions.slices)
        addAll(*regions.slices, &CImageMap::addSlice);
    return map;
}

std::string tableHtml(const ChartItems& rows)
{
    std::string html = "<table>\n<thead><tr><th>Item</th><th>Value</th></tr></thead>\n<tbody>\n";
    for (std::size_t i = 0; i < rows.size(); ++i)
        html += "<tr id=\"" + itemAnchor(i) + "\"><td><bdi>" +
                escapeHtml(displayName(rows[i].caption)) + "</bdi></td><td>" +
                std::to_string(rows[i].value) + "</td></tr>\n";
    return html + "</tbody>\n</table>\n";
}

std::string addressOf(const std::string& png)
{
    return "data:image/png;base64," + encodeBase64(png);
}

MappedPicture mappedPicture(const ChartPictures& pictures, const ChartRegions& regions)
{
    MappedPicture picture{addressOf(pictures.shown), "", regions.size.width, regions.size.height,
                          regions.description};
    if (pictures.dense)
        picture.sourceSet = denseSource(addressOf(pictures.dense->png), pictures.dense->density);
    return picture;
}

std::string styleHtml(const ChartPictures& pictures)
{
    return std::string("<style>\n") + kStyle + pictureStyle() +
           (pictures.followsDisplay ? kDarkStyle : "") + "</style>";
}

std::string pictureHtml(const ChartPictures& pictures, const ChartItems& rows,
                        const ChartRegions& regions)
{
    return pictures.shownFormat == PictureFormat::Svg
               ? embeddedSvgHtml(pictures.shown)
               : mappedPictureHtml(mappedPicture(pictures, regions), imageMap(rows, regions));
}

} // namespace

std::string itemAnchor(std::size_t index)
{
    return "item-" + std::to_string(index + 1);
}

bool isPageName(std::string_view name)
{
    return hasEnding(name, ".html") || hasEnding(name, ".htm");
}

std::string chartPageHtml(const std::string& title, const ChartPictures& pictures,
                          const ChartItems& items, const ChartRegions& regions)
{
    const std::string heading = escapeHtml(displayName(title));
    const ChartItems rows = rowsOf(items, regions);
    const std::string body =
        "<h1>" + heading + "</h1>\n" + pictureHtml(pictures, rows, regions) + tableHtml(rows);
    return pageHtml({kGenerator, heading, styleHtml(pictures), body});
}

} // namespace tovangl::program
