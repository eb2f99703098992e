// SPDX-License-Identifier: MIT
/// @file
/// An SVG picture in the making.
#ifndef TOVANGL_SVG_CSVGSCENE_H
#define TOVANGL_SVG_CSVGSCENE_H

#include "svg/CSvgColors.h"
#include "svg/CSvgFrame.h"
#include "svg/CSvgMarkup.h"

namespace tovangl {

/// The picture as written so far, and what its shapes have in common.
struct CSvgScene
{
    explicit CSvgScene(const CSvgFrame& pictureFrame)
        : frame(pictureFrame)
        , colors(pictureFrame.darkColors)
    {}

    const CSvgFrame& frame;
    CSvgMarkup markup;
    CSvgColors colors;
    int fades = 0; ///< that the picture defines
};

} // namespace tovangl

#endif
