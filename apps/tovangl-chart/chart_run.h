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

/// Throws CFailure where the outputs cannot be meant as they are: before anything is read.
void checkOutputs(const CommonOptions& options);

/// Renders the chart on screen or for print. Throws CFailure where there is no picture.
///
/// @return the bytes, which the chart owns
[[nodiscard]] std::string_view renderPicture(Graph& chart, const CommonOptions& options);

/// What every chart tells of itself after a rendering.
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

/// Writes the picture and, where it is asked for, the map.
void writeChart(std::string_view picture, const ChartItems& items, const ChartRegions& regions,
                const CommonOptions& options);

/// Says on standard error what is wrong with the picture that was written, if anything is.
void tellProblem(const Graph& chart, const CommonOptions& options);

} // namespace tovangl::program

#endif
