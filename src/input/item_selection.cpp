// SPDX-License-Identifier: MIT
// Which items a chart draws.
#include "input/item_selection.h"

#include <limits>

namespace tovangl {

namespace {

// Which values a kind of chart can draw at all, and which of them it does.
struct CChoiceRule
{
    long long leastDrawable;
    bool (*isChosen)(long long value, const CShareOfTotal& shares, double threshold);
};

constexpr CChoiceRule kBarRule = {std::numeric_limits<long long>::min(), isBarChosen};
constexpr CChoiceRule kSliceRule = {1, isSliceChosen};

CShareOfTotal shareOut(const std::vector<CGraph1dItem>& items)
{
    CShareOfTotal shares;
    for (const CGraph1dItem& item : items)
        shares.add(item.value);
    return shares;
}

// A negative threshold acts as 0.
CItemSelection selectItems(const std::vector<CGraph1dItem>& items, const CShareOfTotal& shares,
                           double threshold, const CChoiceRule& rule)
{
    CItemSelection selection;
    selection.threshold = threshold < 0.0 ? 0.0 : threshold;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const long long value = items[i].value;
        if (rule.isChosen(value, shares, selection.threshold))
            selection.items.push_back(i);
        else if (value >= rule.leastDrawable)
            selection.leftOut.add(value);
    }
    return selection;
}

} // namespace

double CShareOfTotal::percentOf(long long value) const
{
    return static_cast<double>(magnitudeOf(value)) * 100.0 / static_cast<double>(m_total);
}

bool isBarChosen(long long value, const CShareOfTotal& shares, double threshold)
{
    if (shares.isEmpty())
        return threshold == 0.0;
    return shares.percentOf(value) >= threshold;
}

bool isSliceChosen(long long value, const CShareOfTotal& shares, double threshold)
{
    // Deliberate: negative values are never drawn, but count in the total and so shrink all shares.
    return value > 0 && shares.percentOf(value) >= threshold;
}

CItemSelection selectBars(const std::vector<CGraph1dItem>& items, double threshold)
{
    return selectItems(items, shareOut(items), threshold, kBarRule);
}

CItemSelection selectSlices(const std::vector<CGraph1dItem>& items, double threshold)
{
    const CShareOfTotal shares = shareOut(items);
    // Deliberate: a pie whose values are all 0 keeps even a negative threshold unchanged, because
    // there is nothing to apply it to.
    if (shares.isEmpty())
        return {{}, threshold, {}};
    return selectItems(items, shares, threshold, kSliceRule);
}

} // namespace tovangl
