// SPDX-License-Identifier: MIT
/// @file
/// The looks that a chart can be given at once.
#ifndef TOVANGL_THEME_H
#define TOVANGL_THEME_H

namespace tovangl {

/// A set of colours for all that a chart draws.
enum class Theme
{
    Light = 0,        ///< the default: dark on white
    Dark = 1,         ///< light on a dark picture
    HighContrast = 2, ///< black on white, with strong outlines
    ColorBlind = 3    ///< colours that readers with any kind of colour blindness tell apart
};

} // namespace tovangl

#endif
