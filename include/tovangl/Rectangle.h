// SPDX-License-Identifier: MIT
/// @file
/// The rectangle record of the public interface.
#ifndef TOVANGL_RECTANGLE_H
#define TOVANGL_RECTANGLE_H

namespace tovangl {

/// A rectangle in pixels of the last rendered picture. (0, 0) is the picture's top-left pixel, x
/// grows to the right and y grows downward. All four fields are 0 where nothing was drawn.
struct Rectangle
{
    int x;      ///< left edge
    int y;      ///< top edge
    int width;  ///< columns covered
    int height; ///< rows covered
};

} // namespace tovangl

#endif
