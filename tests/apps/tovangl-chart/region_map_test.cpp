// SPDX-License-Identifier: MIT
#include "tovangl-chart/region_map.h"

#include <gtest/gtest.h>
#include <limits>
#include <nlohmann/json.hpp>

namespace tovangl::program {
namespace {

using nlohmann::json;

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

class RegionMap : public ::testing::Test
{
protected:
    [[nodiscard]] json mapOf(const ChartItems& items) const
    {
        return json::parse(regionMapJson(items, regions));
    }

    ChartRegions regions;
};

TEST_F(RegionMap, HoldsEveryItemWithItsRectangles)
{
    const ChartItems items{{7, "a \"b\"", std::nullopt, std::nullopt},
                           {std::numeric_limits<long>::max(), "\xc3\xa9", std::nullopt, {}}};
    regions.kind = "bars";
    regions.size = {640, 480};
    regions.captions = {kFirst, kNone};
    regions.description = "Bar chart.";
    regions.bars = std::list<Rectangle>{kSecond, kNone};
    const auto map = mapOf(items);
    EXPECT_EQ(map, json::parse(R"({
        "chart": "bars", "description": "Bar chart.", "width": 640, "height": 480,
        "items": [
            {"value": 7, "caption": "a \"b\"",
             "captionRectangle": {"x": 1, "y": 2, "width": 3, "height": 4},
             "barRectangle": {"x": 5, "y": 6, "width": 7, "height": 8}},
            {"value": 9223372036854775807, "caption": "é",
             "captionRectangle": null, "barRectangle": null}
        ]})"));
}

TEST_F(RegionMap, OnlyAnItemThatLeadsToAnAddressHasALink)
{
    ChartItems items = itemsOf({1, 2});
    items[1].link = "a.html?b&c#\"d\"";
    regions.captions = {kFirst, kSecond};
    const auto map = json::parse(regionMapLine(items, regions));
    EXPECT_FALSE(map["items"][0].contains("link"));
    EXPECT_EQ(map["items"][1]["link"], "a.html?b&c#\"d\"");
}

TEST_F(RegionMap, APieHasSlicesAndNoBars)
{
    regions.captions = {kFirst, kNone};
    regions.slices = {{1.5, 2.0, 300.0, 300.25, 180.0, 90.5}, {0, 0, 0, 0, 0, 0}};
    const auto map = mapOf(itemsOf({1, 0}));
    EXPECT_FALSE(map["items"][0].contains("barRectangle"));
    EXPECT_EQ(map["items"][0]["slice"], json::parse(R"({
        "x": 1.5, "y": 2.0, "width": 300.0, "height": 300.25, "start": 180.0, "span": 90.5})"));
    EXPECT_TRUE(map["items"][1]["slice"].is_null());
}

TEST_F(RegionMap, BarsHaveNoSlices)
{
    regions.captions = {kFirst};
    regions.bars = std::list<Rectangle>{kSecond};
    const auto map = mapOf(itemsOf({1}));
    EXPECT_FALSE(map["items"][0].contains("slice"));
}

TEST_F(RegionMap, ATitleHasItsPlace)
{
    regions.title = "Sales";
    regions.titleRectangle = kFirst;
    const auto map = mapOf({});
    EXPECT_EQ(map["title"], "Sales");
    EXPECT_EQ(map["titleRectangle"], json::parse(R"({"x": 1, "y": 2, "width": 3, "height": 4})"));
}

TEST_F(RegionMap, ATitleWithoutRoomHasNoPlace)
{
    regions.title = "Sales";
    EXPECT_TRUE(mapOf({})["titleRectangle"].is_null());
}

TEST_F(RegionMap, TheOthersHaveTheLastRegions)
{
    regions.others = OthersItem{"rest", 3, 12};
    regions.captions = {kNone, kFirst};
    regions.bars = std::list<Rectangle>{kNone, kSecond};
    const auto map = mapOf(itemsOf({1}));
    EXPECT_TRUE(map["items"][0]["barRectangle"].is_null());
    EXPECT_EQ(map["others"], json::parse(R"({"count": 3, "value": 12, "caption": "rest",
        "captionRectangle": {"x": 1, "y": 2, "width": 3, "height": 4},
        "barRectangle": {"x": 5, "y": 6, "width": 7, "height": 8}})"));
}

TEST_F(RegionMap, TheOthersHaveTheirLink)
{
    regions.others = OthersItem{"rest", 3, 12, "rest.html?a&b"};
    regions.captions = {kFirst};
    const auto map = json::parse(regionMapLine({}, regions));
    EXPECT_EQ(map["others"]["link"], "rest.html?a&b");
}

TEST_F(RegionMap, OthersThatGatherNothingAreNull)
{
    regions.others = OthersItem{"rest", 0, 0};
    regions.captions = {kNone};
    regions.slices = {{0, 0, 0, 0, 0, 0}};
    EXPECT_EQ(mapOf({})["others"], json::parse(R"({"count": 0, "value": null, "caption": "rest",
                  "captionRectangle": null, "slice": null})"));
}

TEST_F(RegionMap, NamesOnlyTheTitleAndTheOthersThatAreThere)
{
    const auto map = mapOf({});
    for (const char* key : {"title", "titleRectangle", "others"})
        EXPECT_FALSE(map.contains(key)) << key;
}

TEST_F(RegionMap, AnEmptyChartHasNoItems)
{
    const auto map = mapOf({});
    EXPECT_EQ(map["items"], json::array());
}

} // namespace
} // namespace tovangl::program
