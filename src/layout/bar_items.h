// SPDX-License-Identifier: MIT
/// @file
/// Places the bars and their values between two fitted axes.
#ifndef TOVANGL_LAYOUT_BAR_ITEMS_H
#define TOVANGL_LAYOUT_BAR_ITEMS_H

#include "input/CBarInput.h"
#include "layout/CBarLayout.h"

#include <cstddef>
#include <vector>

namespace tovangl {

class CTextMeasurer;

/// What the value labels of a chart have in common.
struct CValueLabelLook
{
    QSize size;  ///< of every label's box
    int gap = 0; ///< pixels between a bar's end and its label
    QColor color;
};

/// The bars of the drawn items. The axes of the layout must be set.
[[nodiscard]] std::vector<CBar> setItemBars(const CBarLayout& layout, const CBarInput& input,
                                            const std::vector<std::size_t>& drawn);

/// Writes its value beside every bar whose caption is not hidden. The layout's axes and bars must
/// be set.
///
/// @param labels  one for each bar
void setItemLabels(CBarLayout& layout, const std::vector<CTextLabel>& labels,
                   const CValueLabelLook& look, CTextMeasurer& measurer);

} // namespace tovangl

#endif
