// SPDX-License-Identifier: MIT
/// @file
/// Why a rendering has no picture, a picture has no chart, or a chart has other letters or none.
#ifndef TOVANGL_PROBLEM_H
#define TOVANGL_PROBLEM_H

namespace tovangl {

/// What was wrong with a rendering. If several things were, it is the first of these in this order.
/// Later versions may add values.
enum class Problem
{
    None = 0,             ///< the chart was drawn, or nothing has been rendered yet
    SizeOutOfRange = 1,   ///< no picture: the size is out of range
    NoMemory = 2,         ///< no picture: no memory, file descriptor or thread was left for it
    NoPlatformPlugin = 3, ///< no picture: Qt's offscreen platform plugin cannot be loaded
    ProcessEnding = 4,    ///< no picture: the process has begun to end
    TooSmallForChart = 5, ///< a white picture: it has no room for the chart
    NoGlyphs = 6,         ///< the chart has no letters: there is no font on the machine
    FamilyReplaced = 7    ///< the font family that the host set is not there; another one is used
};

} // namespace tovangl

#endif
