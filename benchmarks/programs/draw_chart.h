// SPDX-License-Identifier: MIT
/// @file
/// Draws a case with this library, as a host would.
#ifndef TOVANGL_BENCHMARKS_PROGRAMS_DRAW_CHART_H
#define TOVANGL_BENCHMARKS_PROGRAMS_DRAW_CHART_H

#include "support/chart_case.h"
#include "support/timed_rounds.h"
#include <tovangl/tovangl.h>

#include <memory>

namespace tovangl {
namespace bench {

inline constexpr bool kWithBackground = true;
inline constexpr bool kWithoutBackground = false;

/// A chart that holds the case's items. Most peers have no gradients, so the cases do without.
[[nodiscard]] std::unique_ptr<Graph> makeChart(const CChartCase& chart,
                                               bool background = kWithoutBackground);

/// The setting that an argument names: "fast", or anything else for the default.
[[nodiscard]] Compression compressionArgument(int count, char** arguments, int place);

enum class PictureForm
{
    Png,
    Svg,
    Pdf
};

/// The form that an argument names: "svg", "pdf", or anything else for a PNG picture.
[[nodiscard]] PictureForm formArgument(int count, char** arguments, int place);

/// Renders the chart; the bytes belong to the graph. Ends the process where there is no picture.
CPictureBytes drawChart(Graph& graph, const CChartCase& chart, PictureForm form = PictureForm::Png);

} // namespace bench
} // namespace tovangl

#endif
