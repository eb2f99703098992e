// SPDX-License-Identifier: MIT
/// @file
/// The colour record of the public interface.
#ifndef TOVANGL_COLOR_H
#define TOVANGL_COLOR_H

namespace tovangl {

/// An opaque colour. Each channel ranges from 0 to 255; a colour with a channel outside that range
/// counts as not set, and the chart uses its default instead.
struct Color
{
    int red;   ///< 0 to 255
    int green; ///< 0 to 255
    int blue;  ///< 0 to 255

    /// The colour that is not set.
    static constexpr Color notSet() { return Color{-1, -1, -1}; }
};

} // namespace tovangl

#endif
