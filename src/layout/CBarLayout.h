// SPDX-License-Identifier: MIT
/// @file
/// A bar chart with everything in its place.
#ifndef TOVANGL_LAYOUT_CBARLAYOUT_H
#define TOVANGL_LAYOUT_CBARLAYOUT_H

#include "layout/CAxisLayout.h"
#include "layout/CChartTitle.h"
#include "layout/CVerticalFade.h"
#include "layout/value_scale.h"

#include <QColor>
#include <QRect>

#include <cstddef>
#include <optional>
#include <vector>

namespace tovangl {

/// One bar, and where its value is written.
struct CBar
{
    std::size_t item = 0; ///< position among all items of the chart
    int valueCoord = 0;   ///< the position of its value, in pixels from the value axis's start
    QRect rect;           ///< null if the value lies below the scale
    QColor color;
    QColor outlineColor;
    QRect labelRect; ///< null if no value is written
    CPlacedText label;
};

/// The pixels between the picture's edges and the axes.
struct CAxisSpaces
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// The plot's right border, and the line below it where the chart has one.
struct CPlotBorder
{
    CVerticalFade right;
    std::optional<CStraightLine> bottom;
};

/// All of it in pixels of the picture.
struct CBarLayout
{
    /// Whether the picture has room for the chart. If not, only the spaces and the plot rectangle
    /// below are set, and nothing must be drawn.
    [[nodiscard]] bool fits() const { return plotRect.isValid(); }

    std::optional<CChartTitle> title; ///< none where there is no text or no room
    CAxisSpaces spaces;
    QRect plotRect;                          ///< in which the bars stand
    std::optional<CVerticalFade> background; ///< of the plot
    std::vector<CStraightLine> gridLines;
    std::optional<CPlotBorder> border;
    int lineWidth = 1; ///< of outlines and borders
    int barWidth = 0;  ///< outline included
    std::vector<CBar> bars;
    std::optional<CAxisLayout> categoryAxis; ///< its labels belong to the bars, one by one
    std::optional<CAxisLayout> numberAxis;
    CValueScale scale; ///< of the value axis
};

} // namespace tovangl

#endif
