// SPDX-License-Identifier: MIT
/// @file
/// How wide the outlines of slices are stroked, so that they look as they are painted.
#ifndef TOVANGL_SVG_PIE_OUTLINE_H
#define TOVANGL_SVG_PIE_OUTLINE_H

#include "svg/CSvgFrame.h"

#include <optional>
#include <vector>

namespace tovangl {

struct CPieLayout;

/// Pixels. A thinner line is painted as wide as this, but the paler.
inline constexpr double kThinnestLine = 1;

/// A line that is no wider than a pixel is painted one pixel thick along the rows or columns that
/// it crosses. It is the thinner the nearer it is to a diagonal.
///
/// @param angle  of the line, in degrees
[[nodiscard]] double paintedWidth(double angle);

/// The stroke of a slice. Its edges are the lines from the centre to the rim.
struct CSliceStroke
{
    double width = 1;
    std::optional<double> lastEdge; ///< the width of that edge, if it has a stroke of its own
};

struct CPieOutline
{
    /// Whether each slice's part of the rim is a shape of its own, as thick in each direction as it
    /// is painted, and the slices are stroked along their edges alone. The file is larger then.
    bool hasRims = false;
    std::vector<CSliceStroke> slices;
};

/// Of a pie whose outlines are no wider than a pixel. One stroke for all of a slice is as wide as
/// its parts are in the mean; there are rims where that shows on more than a few pixels.
[[nodiscard]] CPieOutline outlineOf(const CSvgFrame& frame, const CPieLayout& layout);

} // namespace tovangl

#endif
