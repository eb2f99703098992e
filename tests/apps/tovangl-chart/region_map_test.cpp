// SPDX-License-Identifier: MIT
#include "tovangl-chart/region_map.h"

#include <gtest/gtest.h>
#include <limits>
#include <nlohmann/json.hpp>

namespace tovangl::program {
namespace {

constexpr Rectangle kFirst = {1, 2, 3, 4};
constexpr Rectangle kSecond = {5, 6, 7, 8};
constexpr Rectangle kNone = {0, 0, 0, 0};

ChartItems itemsOf(std::initializer_list<long> values)
{
    ChartItems items;
    for (long value : values)
        items.push_back({value, "x", std::nullopt, std::nullopt});
    return items;
}

TEST(RegionMap, HoldsEveryItemWithItsRectangles)
{
    const ChartItems items{{7, "a \"b\"", std::nullopt, std::nullopt},
                           {std::numeric_limits<long>::max(), "\xc3\xa9", std::nullopt, {}}};
    ChartRegions regions;
    regions.kind = "bars";
    regions.size = {640, 480};
    regions.captions = {kFirst, kNone};
    regions.description = "Bar chart.";
    regions.bars = std::list<Rectangle>{kSecond, kNone};
    const auto map = nlohmann::json::parse(regionMapJson(items, regions));
    EXPECT_EQ(map, nlohmann::json::parse(R"({
        "chart": "bars", "description": "Bar chart.", "width": 640, "height": 480,
        "items": [
            {"value": 7, "caption": "a \"b\"",
             "captionRectangle": {"x": 1, "y": 2, "width": 3, "height": 4},
             "barRectangle": {"x": 5, "y": 6, "width": 7, "height": 8}},
            {"value": 9223372036854775807, "caption": "é",
             "captionRectangle": null, "barRectangle": null}
        ]})"));
}

TEST(RegionMap, OnlyAnItemThatLeadsToAnAddressHasALink)
{
    ChartItems items = itemsOf({1, 2});
    items[1].link = "a.html?b&c#\"d\"";
    ChartRegions regions;
    regions.captions = {kFirst, kSecond};
    const auto map = nlohmann::json::parse(regionMapLine(items, regions));
    EXPECT_FALSE(map["items"][0].contains("link"));
    EXPECT_EQ(map["items"][1]["link"], "a.html?b&c#\"d\"");
}

TEST(RegionMap, APieHasSlicesAndNoBars)
{
    ChartRegions regions;
    regions.captions = {kFirst, kNone};
    regions.slices = {{1.5, 2.0, 300.0, 300.25, 180.0, 90.5}, {0, 0, 0, 0, 0, 0}};
    const auto map = nlohmann::json::parse(regionMapJson(itemsOf({1, 0}), regions));
    EXPECT_FALSE(map["items"][0].contains("barRectangle"));
    EXPECT_EQ(map["items"][0]["slice"], nlohmann::json::parse(R"({
        "x": 1.5, "y": 2.0, "width": 300.0, "height": 300.25, "start": 180.0, "span": 90.5})"));
    EXPECT_TRUE(map["items"][1]["slice"].is_null());
}

TEST(RegionMap, BarsHaveNoSlices)
{
    ChartRegions regions;
    regions.captions = {kFirst};
    regions.bars = std::list<Rectangle>{kSecond};
    const auto map = nlohmann::json::parse(regionMapJson(itemsOf({1}), regions));
    EXPECT_FALSE(map["items"][0].contains("slice"));
}

TEST(RegionMap, ATitleHasItsPlace)
{
    ChartRegions regions;
    regions.title = "Sales";
    regions.titleRectangle = kFirst;
    const auto map = nlohmann::json::parse(regionMapJson({}, regions));
    EXPECT_EQ(map["title"], "Sales");
    EXPECT_EQ(map["titleRectangle"],
              nlohmann::json::parse(R"({"x": 1, "y": 2, "width": 3, "height": 4})"));
}

TEST(RegionMap, ATitleWithoutRoomHasNoPlace)
{
    ChartRegions regions;
    regions.title = "Sales";
    EXPECT_TRUE(nlohmann::json::parse(regionMapJson({}, regions))["titleRectangle"].is_null());
}

TEST(RegionMap, TheOthersHaveTheLastRegions)
{
    ChartRegions regions;
    regions.others = OthersItem{"rest", 3, 12};
    regions.captions = {kNone, kFirst};
    regions.bars = std::list<Rectangle>{kNone, kSecond};
    const auto map = nlohmann::json::parse(regionMapJson(itemsOf({1}), regions));
    EXPECT_TRUE(map["items"][0]["barRectangle"].is_null());
    EXPECT_EQ(map["others"], nlohmann::json::parse(R"({"count": 3, "value": 12, "caption": "rest",
        "captionRectangle": {"x": 1, "y": 2, "width": 3, "height": 4},
        "barRectangle": {"x": 5, "y": 6, "width": 7, "height": 8}})"));
}

TEST(RegionMap, TheOthersHaveTheirLink)
{
    ChartRegions regions;
    regions.others = OthersItem{"rest", 3, 12, "rest.html?a&b"};
    regions.captions = {kFirst};
    const auto map = nlohmann::json::parse(regionMapLine({}, regions));
    EXPECT_EQ(map["others"]["link"], "rest.html?a&b");
}

TEST(RegionMap, OthersThatGatherNothingAreNull)
{
    ChartRegions regions;
    regions.others = OthersItem{"rest", 0, 0};
    regions.captions = {kNone};
    regions.slices = {{0, 0, 0, 0, 0, 0}};
    EXPECT_EQ(nlohmann::json::parse(regionMapJson({}, regions))["others"],
              nlohmann::json::parse(R"({"count": 0, "value": null, "caption": "rest",
                  "captionRectangle": null, "slice": null})"));
}

TEST(RegionMap, NamesOnlyTheTitleAndTheOthersThatAreThere)
{
    const auto map = nlohmann::json::parse(regionMapJson({}, {}));
    for (const char* key : {"title", "titleRectangle", "others"})
        EXPECT_FALSE(map.contains(key)) << key;
}

TEST(RegionMap, AnEmptyChartHasNoItems)
{
    const auto map = nlohmann::json::parse(regionMapJson({}, {}));
    EXPECT_EQ(map["items"], nlohmann::json::array());
}

} // namespace
} // namespace tovangl::program
