// SPDX-License-Identifier: MIT
/// @file
/// What the tests of regions have in common.
#ifndef TOVANGL_REGIONS_REGION_TEST_CHARTS_H
#define TOVANGL_REGIONS_REGION_TEST_CHARTS_H

#include "support/host_pictures.h"
#include <tovangl/tovangl.h>

namespace tovangl {

inline constexpr Color kRed = {200, 30, 30};
inline constexpr Color kGreen = {30, 160, 30};
inline constexpr Color kBlue = {30, 30, 200};

} // namespace tovangl

#endif
