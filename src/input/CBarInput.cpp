// SPDX-License-Identifier: MIT
// All that a bar chart is drawn from.
#include "input/CBarInput.h"

#include <algorithm>

namespace tovangl {

CBarInput::CBarInput(BarKind barKind, bool withBackground)
    : kind(barKind)
{
    settings.hasBackground = withBackground;
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

void CBarInput::setPosition(int x, int y)
{
    position = QPoint(std::max(x, kFreePosition), std::max(y, kFreePosition));
}

void CBarInput::setBarWidth(int width)
{
    barWidth = std::max(width, 0);
}

} // namespace tovangl
