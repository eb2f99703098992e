// SPDX-License-Identifier: MIT
/// @file
/// A whole chart as data: its kind, size, items and settings, as one JSON object.
#ifndef TOVANGL_CHART_CHART_DESCRIPTION_H
#define TOVANGL_CHART_CHART_DESCRIPTION_H

#include "tovangl-chart/ChartItem.h"
#include "tovangl-chart/given_settings.h"
#include "tovangl-chart/option_values.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace tovangl::program {

/// A kind of chart, by the name of its command.
struct ChartKind
{
    const char* name;
    Setting::Chart bit;
};

inline constexpr std::array<ChartKind, 3> kChartKinds{
    {{"pie", Setting::Pie}, {"bars", Setting::VerticalBars}, {"hbars", Setting::HorizontalBars}}};

/// The keys of a chart that are no settings.
namespace chart_key {
inline constexpr const char* kChart = "chart";
inline constexpr const char* kId = "id";
inline constexpr const char* kWidth = "width";
inline constexpr const char* kHeight = "height";
inline constexpr const char* kPrint = "print";
inline constexpr const char* kItems = "items";
} // namespace chart_key

/// The keys of an item.
namespace item_key {
inline constexpr const char* kValue = "value";
inline constexpr const char* kCaption = "caption";
inline constexpr const char* kColor = "color";
inline constexpr const char* kOutline = "outline";
inline constexpr const char* kLink = "link";
} // namespace item_key

/// The longest side of a picture, and the greatest factor for print.
inline constexpr long kGreatestSide = 1'000'000;

/// An id becomes a file's name: no separators, nothing hidden, nothing that looks like an option.
inline constexpr std::size_t kLongestId = 200; // bytes
inline constexpr std::string_view kIdFirst =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_";
inline constexpr std::string_view kIdOthers = ".-"; ///< allowed too, after the first character

struct ChartDescription
{
    ChartKind kind = kChartKinds[0];
    std::string id; ///< empty: none
    PictureSize size;
    std::optional<int> printFactor;
    ChartItems items;
    GivenSettings settings;
};

/// Reads a chart: {"chart": "pie", "items": [{"value": 1200, "caption": "Rent"}], "title": "May"}.
///
/// Every setting of the library's table is a key: true or false for a Boolean, a number for a Whole
/// and a Real, and text for all others. What a text or a link may be is the chart's affair. Throws
/// CFailure with the place as a JSON pointer, and the reason: /items/3/value: 1.5 is not a whole
/// number of 64 bits.
[[nodiscard]] ChartDescription parseDescription(std::string_view json);

} // namespace tovangl::program

#endif
