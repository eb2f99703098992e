// SPDX-License-Identifier: MIT
// The rule by which pies choose what they draw.
#include "pie/CPieBase.h"

#include "core/item_selection.h"

namespace tovangl {

template <typename T>
void CPieBase<T>::selectItems()
{
    this->m_selectedItems.clear();

    CShareOfTotal shares;
    for (const T* item : this->m_items)
        shares.add(item->value());
    // Deliberate: where there is nothing to share the threshold is not used, so a host that asks
    // for it gets back what it set, a negative one too.
    if (shares.isEmpty())
        return;

    if (this->m_threshold < 0.0)
        this->m_threshold = 0.0;
    for (T* item : this->m_items) {
        if (isSliceChosen(item->value(), shares, this->m_threshold))
            this->m_selectedItems.push_back(item);
    }
}

template class CPieBase<CPieBaseItem>;

} // namespace tovangl
