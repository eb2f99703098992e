// SPDX-License-Identifier: MIT
/// @file
/// What the facades of the two bar charts have in common.
#ifndef TOVANGL_API_BAR_FACADE_H
#define TOVANGL_API_BAR_FACADE_H

#include "axes/CAxis.h"
#include <tovangl/Rectangle.h>

#include <list>

namespace tovangl {

class CBarBase;

/// A host's sum of AxisProperty bits; bits without a meaning are kept and do nothing.
[[nodiscard]] CAxis::Properties toAxisProperties(int properties);

/// Replaces the list's content by the rectangles of the bars last drawn; none without a chart.
void assignBarRectangles(std::list<Rectangle>& list, const CBarBase* graph);

/// Replaces the list's content by one rectangle for each item; none without a chart.
void assignItemBarRectangles(std::list<Rectangle>& list, const CBarBase* graph);

} // namespace tovangl

#endif
