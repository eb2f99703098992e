// SPDX-License-Identifier: MIT
/// @file
/// What both commands of bar charts share.
#ifndef TOVANGL_CHART_BAR_RUN_H
#define TOVANGL_CHART_BAR_RUN_H

#include "tovangl-chart/chart_items.h"
#include "tovangl-chart/chart_run.h"

namespace tovangl::program {

/// The end of a command's help: what an axis can show.
inline constexpr const char* kAxisTeaching = R"(
Axis properties, joined by commas, replace what the axis shows by default:
  line, labels, title      show these; giving a title shows it too
  bold-labels, bold-title  in bold type
  prefixes                 12 K instead of 12,288 (the value axis of bars)
  hide-overlapped          thin out labels that would overlap
  shift-last               end the scale at the greatest value
  none                     show nothing)";

/// Does what the options of a bar chart's command ask for.
///
/// @param kind  the command's name
template <typename BarChart>
void runBarChart(const char* kind, const CommonOptions& options)
{
    BarChart chart(false);
    const ChartItems items = prepareChart(chart, options, LineColors::FillAndOutline);
    addItems(chart, items);
    drawChart(chart, kind, items, options,
              [&chart](ChartRegions& regions) { regions.bars = *chart.getItemBarRectangle(); });
}

} // namespace tovangl::program

#endif
