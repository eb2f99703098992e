// SPDX-License-Identifier: MIT
/// @file
/// A chart told by a number, with all that a host can learn of it.
#ifndef TOVANGL_DIFFERENCES_RANDOM_CHART_H
#define TOVANGL_DIFFERENCES_RANDOM_CHART_H

#include "differences/CChartNotes.h"

#include <string>

namespace tovangl {

/// Makes the chart of that number, changes and renders it a few times and destroys it. The same
/// number always makes the same calls.
///
/// @param folder  where the pictures go as NUMBER-1.png and so on; empty: nowhere
[[nodiscard]] CChartRecord drawRandomChart(unsigned number, const std::string& folder,
                                           SeededFault fault);

/// The name of the kind of chart that the number has.
[[nodiscard]] const char* nameRandomChart(unsigned number);

} // namespace tovangl

#endif
