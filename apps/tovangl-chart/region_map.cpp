// SPDX-License-Identifier: MIT
// Where each item was drawn, as JSON.
#include "tovangl-chart/region_map.h"

#include <nlohmann/json.hpp>

namespace tovangl::program {

namespace {

// Keys keep the order in which they are written.
using Json = nlohmann::ordered_json;

constexpr int kIndent = 2;

Json regionJson(const Rectangle& rectangle)
{
    if (rectangle.width == 0 || rectangle.height == 0)
        return nullptr;
    return {{"x", rectangle.x},
            {"y", rectangle.y},
            {"width", rectangle.width},
            {"height", rectangle.height}};
}

Json regionJson(const Slice& slice)
{
    if (slice.span == 0.0)
        return nullptr;
    return {{"x", slice.x},           {"y", slice.y},         {"width", slice.width},
            {"height", slice.height}, {"start", slice.start}, {"span", slice.span}};
}

void addLink(Json& item, const std::string& link)
{
    if (!link.empty())
        item["link"] = link;
}

Json itemJson(const ChartItem& item)
{
    Json json = {{"value", item.value}, {"caption", item.caption}};
    addLink(json, item.link);
    return json;
}

Json itemsJson(const ChartItems& items)
{
    Json result = Json::array();
    for (const ChartItem& item : items)
        result.push_back(itemJson(item));
    return result;
}

/// Gives every item its region, and the others theirs.
template <typename Regions>
void addRegions(Json& items, Json& others, const char* key, const Regions& regions)
{
    auto region = regions.begin();
    for (Json& item : items)
        item[key] = regionJson(*region++);
    if (!others.is_null())
        others[key] = regionJson(*region);
}

Json othersJson(const std::optional<OthersItem>& others)
{
    if (!others)
        return nullptr;
    Json json = {{"count", others->count}, {"value", nullptr}, {"caption", others->caption}};
    if (others->count > 0)
        json["value"] = others->value;
    addLink(json, others->link);
    return json;
}

Json regionMap(const ChartItems& items, const ChartRegions& regions)
{
    Json itemList = itemsJson(items);
    Json others = othersJson(regions.others);
    addRegions(itemList, others, "captionRectangle", regions.captions);
    if (regions.bars)
        addRegions(itemList, others, "barRectangle", *regions.bars);
    if (regions.slices)
        addRegions(itemList, others, "slice", *regions.slices);
    Json map = {{"chart", regions.kind}, {"description", regions.description}};
    if (!regions.title.empty()) {
        map["title"] = regions.title;
        map["titleRectangle"] = regionJson(regions.titleRectangle);
    }
    map["width"] = regions.size.width;
    map["height"] = regions.size.height;
    map["items"] = std::move(itemList);
    if (!others.is_null())
        map["others"] = std::move(others);
    return map;
}

} // namespace

std::string regionMapJson(const ChartItems& items, const ChartRegions& regions)
{
    return regionMap(items, regions).dump(kIndent) + '\n';
}

std::string regionMapLine(const ChartItems& items, const ChartRegions& regions)
{
    return regionMap(items, regions).dump();
}

} // namespace tovangl::program
