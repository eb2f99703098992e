// SPDX-License-Identifier: MIT
/// @file
/// A horizontal or vertical line of a bar chart.
#ifndef TOVANGL_LAYOUT_CSTRAIGHTLINE_H
#define TOVANGL_LAYOUT_CSTRAIGHTLINE_H

#include <QColor>
#include <QPoint>

namespace tovangl {

/// A line with square caps; pixels of the picture.
struct CStraightLine
{
    QPoint from;
    QPoint to;
    QColor color;
    int width = 1;
};

} // namespace tovangl

#endif
