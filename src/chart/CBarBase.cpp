// SPDX-License-Identifier: MIT
// The bar charts behind the public interface.
#include "chart/CBarBase.h"

namespace tovangl {

CBarBase::CBarBase(BarKind kind, bool hasBackground)
    : CGraph1d(CBarInput(kind, hasBackground))
{}

std::vector<QRect> CBarBase::barRectangles() const
{
    std::vector<QRect> rects;
    rects.reserve(layout().bars.size());
    for (const CBar& bar : layout().bars)
        rects.push_back(bar.rect);
    return rects;
}

std::vector<QRect> CBarBase::itemBarRectangles() const
{
    std::vector<QRect> rects(recordCount());
    if (!isDrawn())
        return rects;
    for (const CBar& bar : layout().bars) {
        const std::optional<std::size_t> record = recordOf(bar.item);
        if (record && bar.rect.isValid())
            rects[*record] = bar.rect;
    }
    return rects;
}

const char* CBarBase::kindName() const
{
    return input().kind == BarKind::Standing ? "Vertical bar chart" : "Horizontal bar chart";
}

CItemSelection CBarBase::selectItems() const
{
    return selectBars(input().items, threshold());
}

} // namespace tovangl
