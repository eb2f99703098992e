// SPDX-License-Identifier: MIT
/// @file
/// Makes the picture that a chart is drawn into.
#ifndef TOVANGL_OUTPUT_RASTER_SURFACE_H
#define TOVANGL_OUTPUT_RASTER_SURFACE_H

class QColor;
class QImage;

namespace tovangl {

/// Whether a picture of that size can be made: 1 to 1,000,000 pixels a side, and at most 2^31 - 1
/// bytes at four bytes a pixel.
[[nodiscard]] bool isRasterSize(int width, int height);

/// A new picture in ARGB32, not yet painted. Null if isRasterSize() is false, or if memory runs
/// out.
[[nodiscard]] QImage makeRasterSurface(int width, int height);

/// Fills a new picture that is longer or higher than a painter reaches: with Qt 5, the pixels
/// beyond column or row 32,766 would otherwise stay what was in memory before. Smaller pictures
/// stay as they are, because painters fill them.
void fillBeyondPainters(QImage& image, const QColor& color);

} // namespace tovangl

#endif
