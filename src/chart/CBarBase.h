// SPDX-License-Identifier: MIT
/// @file
/// The bar charts behind the public interface.
#ifndef TOVANGL_CHART_CBARBASE_H
#define TOVANGL_CHART_CBARBASE_H

#include "chart/CGraph1d.h"
#include "input/CBarInput.h"
#include "layout/bar_layout.h"

namespace tovangl {

class CBarBase : public CGraph1d<CBarInput, CBarLayout>
{
public:
    CBarBase(BarKind kind, bool hasBackground);

    /// The rectangles of the bars in the last picture that could be made, in the order of adding.
    /// Empty if it had no room for the chart.
    [[nodiscard]] std::vector<QRect> barRectangles() const;
    /// One rectangle for each record: its bar in the last rendering, or the null rectangle if there
    /// was none.
    [[nodiscard]] std::vector<QRect> itemBarRectangles() const;

protected:
    [[nodiscard]] const char* kindName() const override;
    [[nodiscard]] CItemSelection selectItems() const override;
};

/// Standing bars.
class CBarGraph : public CBarBase
{
public:
    explicit CBarGraph(bool hasBackground)
        : CBarBase(BarKind::Standing, hasBackground)
    {}
};

/// Lying bars, each with its value beside it.
class CLabeledBarGraph : public CBarBase
{
public:
    explicit CLabeledBarGraph(bool hasBackground)
        : CBarBase(BarKind::Lying, hasBackground)
    {}
};

} // namespace tovangl

#endif
