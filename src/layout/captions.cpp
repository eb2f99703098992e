// SPDX-License-Identifier: MIT
// Which pixels the title and the captions of a laid-out chart cover.
#include "layout/captions.h"

#include "layout/CBarLayout.h"
#include "layout/CPieLayout.h"

#include <algorithm>

namespace tovangl {

std::vector<QRect> captionRects(const CBarLayout& layout)
{
    std::vector<QRect> rects;
    rects.reserve(layout.bars.size());
    for (const CBarTextLabel& label : layout.categoryAxis->labels)
        rects.push_back(label.pixels);
    return rects;
}

// The labels of a pie can be in a different order from its slices.
std::vector<QRect> captionRects(const CPieLayout& layout)
{
    std::vector<std::pair<std::size_t, QRect>> byItem;
    byItem.reserve(layout.labels.size());
    for (const CPlacedPieLabel& label : layout.labels)
        byItem.emplace_back(label.item, label.itemRect);
    std::sort(byItem.begin(), byItem.end(),
              [](const auto& a, const auto& b) { return a.first < b.first; });

    std::vector<QRect> rects;
    rects.reserve(byItem.size());
    for (const auto& entry : byItem)
        rects.push_back(entry.second);
    return rects;
}

} // namespace tovangl
