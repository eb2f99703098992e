// SPDX-License-Identifier: MIT
/// @file
/// All that a bar chart is drawn from.
#ifndef TOVANGL_INPUT_CBARINPUT_H
#define TOVANGL_INPUT_CBARINPUT_H

#include "input/CAxisSettings.h"
#include "input/CGraph1dInput.h"

#include <QPoint>

namespace tovangl {

enum class BarKind
{
    Standing, ///< on a horizontal category axis, with grid lines behind the bars
    Lying     ///< along a horizontal value axis, each with its value beside it
};

/// The setting of an axis position that leaves the axis line where the layout puts it.
inline constexpr int kFreePosition = -1;

/// A bar chart as the host described it.
struct CBarInput : CGraph1dInput
{
    /// A chart of that kind without items, with the properties that its axes have at first.
    CBarInput(BarKind barKind, bool withBackground);

    /// Fixes the axis lines, in pixels before scaling; a negative number leaves that line to the
    /// layout.
    void setPosition(int x, int y);
    /// @param width  pixels before scaling; a negative one is kept as 0
    void setBarWidth(int width);

    BarKind kind;
    CAxisSettings horizontalAxis;
    CAxisSettings verticalAxis;
    QPoint position{kFreePosition, kFreePosition}; ///< of the axis lines; pixels before scaling
    int barWidth = 0; ///< pixels before scaling; 0: the bars share the axis
};

} // namespace tovangl

#endif
