// SPDX-License-Identifier: MIT
/// @file
/// The colours of a chart.
#ifndef TOVANGL_INPUT_CCHARTCOLORS_H
#define TOVANGL_INPUT_CCHARTCOLORS_H

#include <QColor>

#include <vector>

namespace tovangl {

/// What the host asked for. An invalid colour is not set: the chart uses its own.
struct CChartColors
{
    QColor picture = Qt::white; ///< what the picture is filled with; transparent: nothing
    QColor text;                ///< of all texts but axis titles
    QColor plot;                ///< behind the bars or the pie, in place of the gradient
    QColor border;              ///< around the bars, or of the frame of a pie's background
    QColor grid;
    QColor axis;                  ///< of axis lines; not set: that of the texts
    QColor axisTitle;             ///< not set: black
    QColor value;                 ///< of the values beside lying bars; not set: that of the texts
    QColor outline;               ///< of slices, and of bars without an outline colour of their own
    QColor labelLine = Qt::black; ///< from a slice to its caption; not set: that of the outlines
    std::vector<QColor> palette;  ///< of items without a colour of their own; empty: the default
};

/// The colour where it is set, and the other one where it is not.
[[nodiscard]] inline QColor orElse(const QColor& color, const QColor& other)
{
    return color.isValid() ? color : other;
}

} // namespace tovangl

#endif
