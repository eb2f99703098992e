// SPDX-License-Identifier: MIT
/// @file
/// Charts of every kind and many settings, each told by a number.
#ifndef TOVANGL_SUPPORT_MIXED_CHARTS_H
#define TOVANGL_SUPPORT_MIXED_CHARTS_H

#include "support/rendered_chart.h"

namespace tovangl {

/// The chart of that number, not yet rendered. The same number always gives the same chart: up to
/// 24 items.
[[nodiscard]] CAnyChart makeMixedChart(unsigned number);

/// Makes the chart of that number, renders it once and destroys it: in a picture of at most 400 x
/// 300, sometimes for print.
[[nodiscard]] CRenderedChart renderMixedChart(unsigned number);

} // namespace tovangl

#endif
