// SPDX-License-Identifier: MIT
/// @file
/// The chart of lying bars.
#ifndef TOVANGL_BAR_CLABELEDBARGRAPH_H
#define TOVANGL_BAR_CLABELEDBARGRAPH_H

#include "bar/CBarBase.h"

namespace tovangl {

/// Bars along a value axis at the top, one below the other, each with its value beside it.
class CLabeledBarGraph : public CBarBase
{
public:
    explicit CLabeledBarGraph(bool background);
    ~CLabeledBarGraph() override;

    [[nodiscard]] bool isBarLabel() const override;
    void createAxes(QPainter& painter) override;
    bool computeLayout(QPainter& painter) override;
    void drawOnBackground(QPainter& painter) override;
};

} // namespace tovangl

#endif
