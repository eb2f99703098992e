// SPDX-License-Identifier: MIT
/// @file
/// Colours that depend on the output device or on the position of a shape.
#ifndef TOVANGL_LAYOUT_DEVICE_COLORS_H
#define TOVANGL_LAYOUT_DEVICE_COLORS_H

#include "layout/CRequest.h"

#include <QColor>

namespace tovangl {

/// The colour to fill with on a device: for print, 60 % of the way toward white.
[[nodiscard]] QColor getOutputDeviceColor(const QColor& color, OutputDevice device);

namespace cdraw {

/// The opaque colour at fraction t between two colours. Values of t outside 0 to 1 extrapolate; the
/// result is invalid if a channel leaves 0 to 255.
[[nodiscard]] QColor linearInterpolation(const QColor& from, const QColor& to, double t);

} // namespace cdraw
} // namespace tovangl

#endif
