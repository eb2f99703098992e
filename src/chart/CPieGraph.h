// SPDX-License-Identifier: MIT
/// @file
/// The pie behind the public interface.
#ifndef TOVANGL_CHART_CPIEGRAPH_H
#define TOVANGL_CHART_CPIEGRAPH_H

#include "chart/CGraph1d.h"
#include "input/CPieInput.h"
#include "layout/CPieLayout.h"
#include "layout/pie_layout.h"

namespace tovangl {

class CPieGraph : public CGraph1d<CPieInput, CPieLayout>
{
public:
    explicit CPieGraph(bool hasBackground)
        : CGraph1d(CPieInput(hasBackground))
    {}

protected:
    [[nodiscard]] const char* kindName() const override { return "Pie chart"; }
    [[nodiscard]] CItemSelection selectItems() const override
    {
        return selectSlices(input().items, threshold());
    }
};

} // namespace tovangl

#endif
