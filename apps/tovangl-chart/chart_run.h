// SPDX-License-Identifier: MIT
/// @file
/// The steps that every chart command takes.
#ifndef TOVANGL_CHART_CHART_RUN_H
#define TOVANGL_CHART_CHART_RUN_H

#include "tovangl-chart/ChartItem.h"
#include "tovangl-chart/common_options.h"
#include "tovangl-chart/region_map.h"
#include <tovangl/Graph.h>

#include <string_view>

namespace tovangl::program {

/// Throws CFailure if the outputs make no sense together. Call it before anything is read.
void checkOutputs(const CommonOptions& options);

/// Renders the chart for screen or print. Throws CFailure if there is no picture.
///
/// @return the bytes, which the chart owns
[[nodiscard]] std::string_view renderPicture(Graph& chart, const CommonOptions& options);

/// What every chart reports about itself after a rendering.
///
/// @param kind  name of the chart's command
[[nodiscard]] ChartRegions captionRegions(Graph& chart, const char* kind,
                                          const CommonOptions& options);

/// The same for a bar chart.
template <typename BarChart>
[[nodiscard]] ChartRegions captionAndBarRegions(BarChart& chart, const char* kind,
                                                const CommonOptions& options)
{
    ChartRegions regions = captionRegions(chart, kind, options);
    regions.bars = *chart.getItemBarRectangle();
    return regions;
}

/// Writes the picture and, if the options ask for it, the map.
void writeChart(std::string_view picture, const ChartItems& items, const ChartRegions& regions,
                const CommonOptions& options);

/// Prints on standard error what is wrong with the picture that was written, if anything.
void tellProblem(const Graph& chart, const CommonOptions& options);

} // namespace tovangl::program

#endif
