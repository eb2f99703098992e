// SPDX-License-Identifier: MIT
/// @file
/// What one rendering has to produce.
#ifndef TOVANGL_LAYOUT_CREQUEST_H
#define TOVANGL_LAYOUT_CREQUEST_H

#include "base/CKilo.h"
#include "base/pixel_arithmetic.h"

namespace tovangl {

enum class OutputDevice
{
    Screen,
    Printer
};

/// The picture that a chart is laid out for.
struct CRequest
{
    int width = 0; ///< device pixels
    int height = 0;
    int scale = 1; ///< device pixels for each pixel of a setting; at least 1
    OutputDevice device = OutputDevice::Screen;
    CKilo kilo = kKilo1024; ///< for unit prefixes, and for the steps of value axes

    [[nodiscard]] int scaled(int pixels) const { return scalePixels(pixels, scale); }
};

/// The margin at every edge of a picture, in pixels before scaling.
inline constexpr int kMargin = 10;

} // namespace tovangl

#endif
