// SPDX-License-Identifier: MIT
// All that a bar chart is drawn from.
#include "input/CBarInput.h"

namespace tovangl {

CBarInput::CBarInput(BarKind barKind, bool withBackground)
    : kind(barKind)
    , hasBackground(withBackground)
{
    const CAxisSettings::Properties ofCategories =
        CAxisSettings::ShowLine | CAxisSettings::ShowLabels | CAxisSettings::HideOverlapped;
    if (kind == BarKind::Standing) {
        horizontalAxis.properties = ofCategories;
        verticalAxis.properties = CAxisSettings::ShowLine | CAxisSettings::ShowLabels |
                                  CAxisSettings::UnitPrefixes | CAxisSettings::HideOverlapped;
    } else {
        horizontalAxis.properties = CAxisSettings::ShowLine | CAxisSettings::ShiftLastLabel;
        verticalAxis.properties = ofCategories;
    }
}

} // namespace tovangl
