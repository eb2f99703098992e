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

} // namespace tovangl

#endif
