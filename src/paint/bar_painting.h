// SPDX-License-Identifier: MIT
/// @file
/// Paints a laid-out bar chart.
#ifndef TOVANGL_PAINT_BAR_PAINTING_H
#define TOVANGL_PAINT_BAR_PAINTING_H

class QPainter;

namespace tovangl {

struct CBarLayout;

/// Paints the chart if it fits into its picture. The painter must have the chart's font, and its
/// state is restored.
void paintBars(QPainter& painter, const CBarLayout& layout);

} // namespace tovangl

#endif
