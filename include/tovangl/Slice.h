// SPDX-License-Identifier: MIT
/// @file
/// The slice record of the public interface, and the outline of a slice.
#ifndef TOVANGL_SLICE_H
#define TOVANGL_SLICE_H

#include <tovangl/Export.h>
#include <tovangl/Point.h>

#include <vector>

namespace tovangl {

/// Where a slice of a pie was drawn. All six fields are 0 where none was drawn.
///
/// The first four are the bounding box of the whole pie's ellipse, the same for all slices of a
/// picture, in pixels and fractions of them as in Point. The slice covers the angles from start to
/// start + span.
struct Slice
{
    double x;      ///< left edge of the pie
    double y;      ///< top edge of the pie
    double width;  ///< width of the pie
    double height; ///< height of the pie
    double start;  ///< degrees counter-clockwise from three o'clock, at least 0 and below 360
    double span;   ///< degrees counter-clockwise, above 0 and up to 360
};

/// The outline of a slice, for an image map.
///
/// The polygon's edges stay within half a pixel of the arc as it is drawn, at any size of the
/// picture. It starts at the centre, unless the slice is the whole pie, and follows the arc
/// counter-clockwise. The last point does not repeat the first.
///
/// @param slice  a record of PieGraph::getSlice(), or one made by the host: any angles are allowed,
///               and a negative span runs clockwise
/// @return the corners; none where width or height is not above 0, the span is 0, an edge of the
///         pie lies beyond a billion pixels, or a field is not a finite number
TOVANGL_EXPORT std::vector<Point> getPolygon(const Slice& slice);

} // namespace tovangl

#endif
