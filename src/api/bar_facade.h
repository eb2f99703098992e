// SPDX-License-Identifier: MIT
/// @file
/// What the facades of the two bar charts share.
#ifndef TOVANGL_API_BAR_FACADE_H
#define TOVANGL_API_BAR_FACADE_H

#include "input/CBarInput.h"

#include <string>

namespace tovangl {

/// @param properties  a host's sum of AxisProperty bits; unknown bits are ignored
[[nodiscard]] CAxisSettings toAxisSettings(int properties, const std::string& title);

/// Fixes the axis lines; a negative number leaves that line to the layout.
void setPosition(CBarInput& input, int x, int y);

/// A negative width is kept as 0.
void setBarWidth(CBarInput& input, int width);

} // namespace tovangl

#endif
