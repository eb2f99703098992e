// SPDX-License-Identifier: MIT
// Which items a chart draws.
#include "input/item_selection.h"

namespace tovangl {

namespace {

using ChoiceRule = bool (*)(long long value, const CShareOfTotal& shares, double threshold);

CShareOfTotal shareOut(const std::vector<CGraph1dItem>& items)
{
    CShareOfTotal shares;
    for (const CGraph1dItem& item : items)
        shares.add(item.value);
    return shares;
}

// A negative threshold acts as 0.
CItemSelection selectItems(const std::vector<CGraph1dItem>& items, const CShareOfTotal& shares,
                           double threshold, ChoiceRule isChosen)
{
    CItemSelection selection;
    selection.threshold = threshold < 0.0 ? 0.0 : threshold;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (isChosen(items[i].value, shares, selection.threshold))
            selection.items.push_back(i);
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
    return selectItems(items, shareOut(items), threshold, isBarChosen);
}

CItemSelection selectSlices(const std::vector<CGraph1dItem>& items, double threshold)
{
    const CShareOfTotal shares = shareOut(items);
    // Deliberate: a pie whose values are all 0 keeps even a negative threshold unchanged, because
    // there is nothing to apply it to.
    if (shares.isEmpty())
        return {{}, threshold};
    return selectItems(items, shares, threshold, isSliceChosen);
}

} // namespace tovangl
