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

/// The left edges of the items' bars.
std::vector<int> barPositions(std::initializer_list<long> values, double threshold,
                              std::list<Rectangle> bars)
{
    std::vector<int> result;
    for (const Rectangle& bar : barsOfItems(itemsOf(values), {std::move(bars), threshold}))
        result.push_back(bar.x);
    return result;
}

TEST(BarsOfItems, WithoutAThresholdEveryItemHasItsBar)
{
    EXPECT_EQ(barPositions({1, 0, 3}, 0, {kFirst, kNone, kSecond}), (std::vector<int>{1, 0, 5}));
}

TEST(BarsOfItems, ItemsBelowTheThresholdHaveNone)
{
    EXPECT_EQ(barPositions({10, 80, 10, 100}, 10, {kFirst, kSecond}),
              (std::vector<int>{0, 1, 0, 5}));
}

TEST(BarsOfItems, AShareAtTheThresholdCounts)
{
    EXPECT_EQ(barPositions({25, 75}, 25, {kFirst, kSecond}), (std::vector<int>{1, 5}));
}

TEST(BarsOfItems, NegativeValuesCountByTheirMagnitude)
{
    EXPECT_EQ(barPositions({-90, 10}, 50, {kFirst}), (std::vector<int>{1, 0}));
}

TEST(BarsOfItems, ANegativeThresholdActsAsNone)
{
    EXPECT_EQ(barPositions({0, 1}, -5, {kFirst, kSecond}), (std::vector<int>{1, 5}));
}

TEST(BarsOfItems, ExtremeValuesDoNotWrap)
{
    const long least = std::numeric_limits<long>::min();
    EXPECT_EQ(barPositions({least, least, 1}, 1, {kFirst, kSecond}), (std::vector<int>{1, 5, 0}));
}

TEST(BarsOfItems, AChartThatDidNotFitHasNoBars)
{
    EXPECT_EQ(barPositions({1, 2}, 0, {}), (std::vector<int>{0, 0}));
}

TEST(RegionMap, HoldsEveryItemWithItsRectangles)
{
    const ChartItems items{{7, "a \"b\"", std::nullopt, std::nullopt},
                           {std::numeric_limits<long>::max(), "\xc3\xa9", std::nullopt, {}}};
    ChartRegions regions;
    regions.kind = "bars";
    regions.size = {640, 480};
    regions.captions = {kFirst, kNone};
    regions.bars = DrawnBars{{kSecond, kNone}, 0};
    const auto map = nlohmann::json::parse(regionMapJson(items, regions));
    EXPECT_EQ(map, nlohmann::json::parse(R"({
        "chart": "bars", "width": 640, "height": 480,
        "items": [
            {"value": 7, "caption": "a \"b\"",
             "captionRectangle": {"x": 1, "y": 2, "width": 3, "height": 4},
             "barRectangle": {"x": 5, "y": 6, "width": 7, "height": 8}},
            {"value": 9223372036854775807, "caption": "é",
             "captionRectangle": null, "barRectangle": null}
        ]})"));
}

TEST(RegionMap, APieHasNoBars)
{
    ChartRegions regions;
    regions.captions = {kFirst};
    const auto map = nlohmann::json::parse(regionMapJson(itemsOf({1}), regions));
    EXPECT_FALSE(map["items"][0].contains("barRectangle"));
}

TEST(RegionMap, AnEmptyChartHasNoItems)
{
    const auto map = nlohmann::json::parse(regionMapJson({}, {}));
    EXPECT_EQ(map["items"], nlohmann::json::array());
}

} // namespace
} // namespace tovangl::program
