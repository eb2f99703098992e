// SPDX-License-Identifier: MIT
/// @file
/// What the last rendering of a chart drew.
#ifndef TOVANGL_CHART_CCHARTSUMMARY_H
#define TOVANGL_CHART_CCHARTSUMMARY_H

#include "input/CLeftOut.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace tovangl {

struct CGraph1dInput;

/// For the texts that tell of it.
struct CChartSummary
{
    const char* kind; ///< in words, such as: Pie chart
    const CGraph1dInput& input;
    std::vector<std::size_t> items; ///< positions of the items drawn, ascending
    std::optional<CLeftOut> others; ///< gathered in one more item, behind all others
};

} // namespace tovangl

#endif
