// SPDX-License-Identifier: MIT
/// @file
/// How different two colours look.
#ifndef TOVANGL_SUPPORT_COLOR_DISTANCE_H
#define TOVANGL_SUPPORT_COLOR_DISTANCE_H

#include "support/color_blindness.h"

namespace tovangl {

/// A colour of CIELAB.
struct CLab
{
    double lightness = 0; ///< 0 to 100
    double a = 0;         ///< from green to red
    double b = 0;         ///< from blue to yellow
};

/// Under the white of sRGB, D65.
[[nodiscard]] CLab labOf(const CLight& light);

/// CIEDE2000: about 1 for colours that can just be told apart side by side.
///
/// After Sharma, Wu and Dalal: "The CIEDE2000 Color-Difference Formula", Color Research and
/// Application 30 (2005).
[[nodiscard]] double colorDistance(const CLab& first, const CLab& second);

/// The distance of two colours to a reader.
[[nodiscard]] double colorDistance(const QColor& first, const QColor& second, Sight sight);

} // namespace tovangl

#endif
