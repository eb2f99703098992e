// SPDX-License-Identifier: MIT
/// @file
/// The steps that every chart command takes.
#ifndef TOVANGL_CHART_CHART_RUN_H
#define TOVANGL_CHART_CHART_RUN_H

#include "tovangl-chart/ChartItem.h"
#include "tovangl-chart/common_options.h"
#include "tovangl-chart/item_lines.h"
#include "tovangl-chart/region_map.h"
#include <tovangl/Graph.h>

#include <functional>

namespace tovangl::program {

/// Gives the chart its settings, and reads the items. Throws CFailure if the options make no sense,
/// before anything is read, or if the input does not.
[[nodiscard]] ChartItems prepareChart(Graph& chart, const CommonOptions& options,
                                      LineColors colors);

/// Completes the regions with those that only one kind of chart has.
using AddShapes = std::function<void(ChartRegions&)>;

/// Draws the chart and writes what the options ask for. Prints on standard error what is wrong with
/// the picture that was written, if anything. Throws CFailure if there is no picture.
///
/// @param kind       name of the chart's command
/// @param addShapes  called once, after the rendering that the regions belong to
void drawChart(Graph& chart, const char* kind, const ChartItems& items,
               const CommonOptions& options, const AddShapes& addShapes);

} // namespace tovangl::program

#endif
