// SPDX-License-Identifier: MIT
/// @file
/// Lays out a pie.
#ifndef TOVANGL_LAYOUT_PIE_LAYOUT_H
#define TOVANGL_LAYOUT_PIE_LAYOUT_H

#include "layout/CPieLayout.h"
#include "layout/CRequest.h"

namespace tovangl {

class CTextMeasurer;
struct CPieInput;

/// Computes the slices, the labels and all positions. If the picture has no room for the pie,
/// fits() is false, and nothing must be drawn.
///
/// @param drawn     positions of the chosen items, ascending
/// @param measurer  of the picture's painter
[[nodiscard]] CPieLayout computeLayout(const CPieInput& input,
                                       const std::vector<std::size_t>& drawn,
                                       const CRequest& request, CTextMeasurer& measurer);

} // namespace tovangl

#endif
