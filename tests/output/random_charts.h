// SPDX-License-Identifier: MIT
/// @file
/// Charts that are told by numbers, as painted pictures.
#ifndef TOVANGL_OUTPUT_RANDOM_CHARTS_H
#define TOVANGL_OUTPUT_RANDOM_CHARTS_H

#include <QImage>

namespace tovangl {

/// Bars, lying bars or a pie of up to 60 items, for the screen or for print, of 1 x 1 to 4000 x
/// 3000 pixels.
[[nodiscard]] QImage paintRandomChart(unsigned seed);

} // namespace tovangl

#endif
