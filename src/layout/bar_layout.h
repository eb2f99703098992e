// SPDX-License-Identifier: MIT
/// @file
/// Lays out a bar chart.
#ifndef TOVANGL_LAYOUT_BAR_LAYOUT_H
#define TOVANGL_LAYOUT_BAR_LAYOUT_H

#include "input/CBarInput.h"
#include "layout/CBarLayout.h"
#include "layout/CRequest.h"

#include <cstddef>
#include <vector>

namespace tovangl {

class CTextMeasurer;

/// Computes the positions of everything in a bar chart.
///
/// @param drawn     positions of the items to draw, ascending
/// @param measurer  for the device and the font that the chart is painted with
[[nodiscard]] CBarLayout computeLayout(const CBarInput& input,
                                       const std::vector<std::size_t>& drawn,
                                       const CRequest& request, CTextMeasurer& measurer);

} // namespace tovangl

#endif
