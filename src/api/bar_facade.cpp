// SPDX-License-Identifier: MIT
// What the facades of the two bar charts have in common.
#include "api/bar_facade.h"

#include "api/conversions.h"
#include "bar/CBarBase.h"
#include <tovangl/AxisProperty.h>

namespace tovangl {

static_assert(int{AxisProperty::ShowLine} == int{CAxis::ShowLine});
static_assert(int{AxisProperty::ShowLabels} == int{CAxis::ShowLabels});
static_assert(int{AxisProperty::ShowTitle} == int{CAxis::ShowTitle});
static_assert(int{AxisProperty::BoldLabels} == int{CAxis::BoldLabels});
static_assert(int{AxisProperty::BoldTitle} == int{CAxis::BoldTitle});
static_assert(int{AxisProperty::UnitPrefixes} == int{CAxis::UnitPrefixes});
static_assert(int{AxisProperty::HideOverlapped} == int{CAxis::HideOverlapped});
static_assert(int{AxisProperty::ShiftLastLabel} == int{CAxis::ShiftLastLabel});

CAxis::Properties toAxisProperties(int properties)
{
    return CAxis::Properties(QFlag(properties));
}

void assignBarRectangles(std::list<Rectangle>& list, const CBarBase* graph)
{
    std::list<QRect> rects;
    if (graph)
        graph->putBarRectangle(rects);
    assignRectangles(list, rects);
}

void assignItemBarRectangles(std::list<Rectangle>& list, const CBarBase* graph)
{
    std::list<QRect> rects;
    if (graph)
        graph->putItemBarRectangle(rects);
    assignRectangles(list, rects);
}

} // namespace tovangl
