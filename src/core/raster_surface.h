// SPDX-License-Identifier: MIT
/// @file
/// Makes the picture that a chart is drawn into.
#ifndef TOVANGL_CORE_RASTER_SURFACE_H
#define TOVANGL_CORE_RASTER_SURFACE_H

namespace tovangl {

/// Whether a picture of that size is made at all: 1 to 1,000,000 pixels a side, and at most
/// 2^31 - 1 bytes at four bytes a pixel.
[[nodiscard]] bool isRasterSize(int width, int height);

/// A new picture in ARGB32 (QImage) or in the platform's format (QPixmap), not yet painted. Null
/// where isRasterSize() says no, or where there is no memory.
template <typename Surface>
[[nodiscard]] Surface makeRasterSurface(int width, int height);

} // namespace tovangl

#endif
