// SPDX-License-Identifier: MIT
// Where each item was drawn, as JSON.
#include "tovangl-chart/region_map.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace tovangl::program {

namespace {

// The order of keys is the order of writing.
using Json = nlohmann::ordered_json;

constexpr int kIndent = 2;

__extension__ using WideUnsigned = unsigned __int128;

WideUnsigned magnitudeOf(long value)
{
    const auto bits = static_cast<unsigned long>(value);
    return value < 0 ? 0UL - bits : bits;
}

Json rectangleJson(const Rectangle& rectangle)
{
    if (rectangle.width == 0 || rectangle.height == 0)
        return nullptr;
    return {{"x", rectangle.x},
            {"y", rectangle.y},
            {"width", rectangle.width},
            {"height", rectangle.height}};
}

Json itemJson(const ChartItem& item, const Rectangle& caption)
{
    return {{"value", item.value},
            {"caption", item.caption},
            {"captionRectangle", rectangleJson(caption)}};
}

void addBars(Json& itemList, const ChartItems& items, const DrawnBars& bars)
{
    const std::vector<Rectangle> rectangles = barsOfItems(items, bars);
    for (std::size_t i = 0; i < items.size(); ++i)
        itemList[i]["barRectangle"] = rectangleJson(rectangles[i]);
}

} // namespace

// The library leaves the bars below the threshold out of its list, so its rule is needed to know
// whose they are.
std::vector<Rectangle> barsOfItems(const ChartItems& items, const DrawnBars& bars)
{
    WideUnsigned total = 0;
    for (const ChartItem& item : items)
        total += magnitudeOf(item.value);
    const double threshold = bars.threshold < 0 ? 0 : bars.threshold;

    std::vector<Rectangle> result(items.size(), Rectangle{0, 0, 0, 0});
    auto next = bars.rectangles.begin();
    for (std::size_t i = 0; i < items.size() && next != bars.rectangles.end(); ++i) {
        const auto magnitude = static_cast<double>(magnitudeOf(items[i].value));
        const double share = total == 0 ? 0 : magnitude * 100.0 / static_cast<double>(total);
        if (share >= threshold)
            result[i] = *next++;
    }
    return result;
}

std::string regionMapJson(const ChartItems& items, const ChartRegions& regions)
{
    Json itemList = Json::array();
    auto caption = regions.captions.begin();
    for (const ChartItem& item : items)
        itemList.push_back(itemJson(item, *caption++));
    if (regions.bars)
        addBars(itemList, items, *regions.bars);
    const Json map = {{"chart", regions.kind},
                      {"width", regions.size.width},
                      {"height", regions.size.height},
                      {"items", std::move(itemList)}};
    return map.dump(kIndent) + '\n';
}

} // namespace tovangl::program
