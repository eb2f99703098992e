// SPDX-License-Identifier: MIT
/// @file
/// A chart in one sentence.
#ifndef TOVANGL_API_DESCRIPTION_H
#define TOVANGL_API_DESCRIPTION_H

#include <string>

namespace tovangl {

class CGraph1dBase;

/// Describes the last rendering for those who cannot see it: kind, items drawn, extremes. UTF-8;
/// empty for a null chart.
[[nodiscard]] std::string describeChart(const CGraph1dBase* graph);

} // namespace tovangl

#endif
