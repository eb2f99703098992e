// SPDX-License-Identifier: MIT
/// @file
/// The straight shapes of a chart as SVG, on the same pixels as when they are painted.
#ifndef TOVANGL_SVG_SVG_SHAPES_H
#define TOVANGL_SVG_SVG_SHAPES_H

class QRect;

namespace tovangl {

class CSvgMarkup;
class CSvgPath;
struct CStraightLine;

/// From a painted coordinate to the middle of a stroke along it: a pen of an odd width runs along
/// the middle of pixels.
[[nodiscard]] double strokeOffset(int width);

/// Writes a rectangle's attributes for a stroke along its edges.
void outlineAttributes(CSvgMarkup& markup, const QRect& rect, int outlineWidth);
/// Writes a rectangle's attributes for a filling of its pixels.
void pixelAttributes(CSvgMarkup& markup, const QRect& rect);
/// Adds a line to a path, as long as its caps make it.
void addLine(CSvgPath& path, const CStraightLine& line);

} // namespace tovangl

#endif
