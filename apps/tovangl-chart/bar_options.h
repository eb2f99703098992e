// SPDX-License-Identifier: MIT
/// @file
/// The options that both bar charts have.
#ifndef TOVANGL_CHART_BAR_OPTIONS_H
#define TOVANGL_CHART_BAR_OPTIONS_H

#include "tovangl-chart/ChartItem.h"
#include "tovangl-chart/common_options.h"
#include <tovangl/AxisProperty.h>

#include <optional>
#include <string>

namespace tovangl::program {

struct AxisOptions
{
    std::optional<int> properties; // sum of AxisProperty bits
    std::optional<std::string> title;

    [[nodiscard]] bool isGiven() const { return properties || title; }

    /// What the axis shows. Giving a title also shows it.
    ///
    /// @param defaults  what it shows if the options do not say
    [[nodiscard]] int propertiesOr(int defaults) const;
};

struct BarOptions
{
    CommonOptions common;
    AxisOptions categoryAxis;
    std::optional<AxisPosition> position;
    std::optional<int> barWidth;
    std::optional<Color> textColor;
};

inline constexpr int kDefaultCategoryAxis =
    AxisProperty::ShowLine | AxisProperty::ShowLabels | AxisProperty::HideOverlapped;
inline constexpr int kDefaultValueAxis = kDefaultCategoryAxis | AxisProperty::UnitPrefixes;

/// The end of a command's help: what an axis can show.
inline constexpr const char* kAxisTeaching = R"(
Axis properties, joined by commas, replace what the axis shows by default:
  line, labels, title      show these; giving a title shows it too
  bold-labels, bold-title  in bold type
  prefixes                 12 K instead of 12,288 (the value axis of bars)
  hide-overlapped          thin out labels that would overlap
  shift-last               end the scale at the greatest value
  none                     show nothing)";

/// Adds "--NAME-axis" and "--NAME-title".
void addAxisOptions(CLI::App& command, const std::string& name, AxisOptions& options);

void addBarOptions(CLI::App& command, BarOptions& options);

/// Adds the items to the chart, and applies the settings that both charts share.
template <typename BarChart>
void applyBarOptions(BarChart& chart, const ChartItems& items, const BarOptions& options)
{
    applyCommonOptions(chart, options.common);
    if (options.position)
        chart.setPosition(options.position->x, options.position->y);
    if (options.barWidth)
        chart.setBarWidth(*options.barWidth);
    if (options.textColor)
        chart.setColor(*options.textColor);
    for (const ChartItem& item : items) {
        if (item.fill)
            chart.addItem(item.value, item.caption, *item.fill, item.outline.value_or(kNoColor));
        else
            chart.addItem(item.value, item.caption);
    }
}

} // namespace tovangl::program

#endif
