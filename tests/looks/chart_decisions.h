// SPDX-License-Identifier: MIT
/// @file
/// What a layout decided, apart from where it put things.
#ifndef TOVANGL_LOOKS_CHART_DECISIONS_H
#define TOVANGL_LOOKS_CHART_DECISIONS_H

#include "layout/CBarLayout.h"
#include "layout/CPieLayout.h"

#include <string>

namespace tovangl {

/// Whether the chart fits; what is hidden, turned, staggered and shortened; the steps of the scale;
/// and, of a pie, whether sizes are shown.
[[nodiscard]] std::string decisionsOf(const CBarLayout& layout);
[[nodiscard]] std::string decisionsOf(const CPieLayout& layout);

} // namespace tovangl

#endif
