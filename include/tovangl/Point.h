// SPDX-License-Identifier: MIT
/// @file
/// The point record of the public interface.
#ifndef TOVANGL_POINT_H
#define TOVANGL_POINT_H

namespace tovangl {

/// A place in the last rendered picture, in pixels and fractions of them. (0, 0) is the outer
/// corner of the picture's top-left pixel, x grows to the right and y grows downward.
struct Point
{
    double x; ///< distance from the left edge
    double y; ///< distance from the top edge
};

} // namespace tovangl

#endif
