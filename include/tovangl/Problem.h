// SPDX-License-Identifier: MIT
/// @file
/// Why a rendering has no picture, or a picture has no chart.
#ifndef TOVANGL_PROBLEM_H
#define TOVANGL_PROBLEM_H

namespace tovangl {

/// What was wrong with a rendering. Later versions may add values.
enum class Problem
{
    None = 0,             ///< the chart was drawn, or nothing has been rendered yet
    SizeOutOfRange = 1,   ///< no picture: the size is out of range
    NoMemory = 2,         ///< no picture: there was not enough memory for it
    NoPlatformPlugin = 3, ///< no picture: Qt's offscreen platform plugin cannot be loaded
    ProcessEnding = 4,    ///< no picture: the process has begun to end
    TooSmallForChart = 5  ///< a white picture: it has no room for the chart
};

} // namespace tovangl

#endif
