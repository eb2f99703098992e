// SPDX-License-Identifier: MIT
/// @file
/// The chart of standing bars.
#ifndef TOVANGL_BAR_CBARGRAPH_H
#define TOVANGL_BAR_CBARGRAPH_H

#include "bar/CBarBase.h"

namespace tovangl {

/// Bars on a category axis at the bottom, with the value axis at the left and its grid lines behind
/// the bars.
class CBarGraph : public CBarBase
{
public:
    explicit CBarGraph(bool background);
    ~CBarGraph() override;

    [[nodiscard]] bool isBarLabel() const override;
    void createAxes(QPainter& painter) override;
    bool computeLayout(QPainter& painter) override;
    void drawOnBackground(QPainter& painter) override;
};

} // namespace tovangl

#endif
