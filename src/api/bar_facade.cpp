// SPDX-License-Identifier: MIT
// What the facades of the two bar charts share.
#include "api/bar_facade.h"

#include "api/conversions.h"
#include <tovangl/AxisProperty.h>

namespace tovangl {

static_assert(int{AxisProperty::ShowLine} == int{CAxisSettings::ShowLine});
static_assert(int{AxisProperty::ShowLabels} == int{CAxisSettings::ShowLabels});
static_assert(int{AxisProperty::ShowTitle} == int{CAxisSettings::ShowTitle});
static_assert(int{AxisProperty::BoldLabels} == int{CAxisSettings::BoldLabels});
static_assert(int{AxisProperty::BoldTitle} == int{CAxisSettings::BoldTitle});
static_assert(int{AxisProperty::UnitPrefixes} == int{CAxisSettings::UnitPrefixes});
static_assert(int{AxisProperty::HideOverlapped} == int{CAxisSettings::HideOverlapped});
static_assert(int{AxisProperty::ShiftLastLabel} == int{CAxisSettings::ShiftLastLabel});

CAxisSettings toAxisSettings(int properties, const std::string& title)
{
    return {CAxisSettings::Properties(QFlag(properties)), toQString(title)};
}

} // namespace tovangl
