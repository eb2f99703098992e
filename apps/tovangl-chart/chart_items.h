// SPDX-License-Identifier: MIT
/// @file
/// Gives a chart its items.
#ifndef TOVANGL_CHART_CHART_ITEMS_H
#define TOVANGL_CHART_CHART_ITEMS_H

#include "tovangl-chart/ChartItem.h"
#include <tovangl/PieGraph.h>

namespace tovangl::program {

inline void addItems(PieGraph& chart, const ChartItems& items)
{
    for (const ChartItem& item : items) {
        if (item.fill)
            chart.addItem(item.value, item.caption, *item.fill);
        else
            chart.addItem(item.value, item.caption);
    }
}

template <typename BarChart>
void addItems(BarChart& chart, const ChartItems& items)
{
    for (const ChartItem& item : items) {
        if (item.fill)
            chart.addItem(item.value, item.caption, *item.fill, item.outline.value_or(kNoColor));
        else
            chart.addItem(item.value, item.caption);
    }
}

} // namespace tovangl::program

#endif
