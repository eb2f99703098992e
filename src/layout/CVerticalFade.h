// SPDX-License-Identifier: MIT
/// @file
/// A gradient that runs from top to bottom.
#ifndef TOVANGL_LAYOUT_CVERTICALFADE_H
#define TOVANGL_LAYOUT_CVERTICALFADE_H

#include <QColor>

namespace tovangl {

/// Two colours, one fading into the other from top to bottom.
struct CVerticalFade
{
    QColor top;
    QColor bottom;
};

} // namespace tovangl

#endif
