// SPDX-License-Identifier: MIT
/// @file
/// The rule by which pies choose what they draw.
#ifndef TOVANGL_PIE_CPIEBASE_H
#define TOVANGL_PIE_CPIEBASE_H

#include "core/CGraph1d.h"
#include "core/CPieBaseItem.h"

namespace tovangl {

/// A chart that draws only values above 0.
template <typename T>
class CPieBase : public CGraph1d<T>
{
public:
    void selectItems() override;
};

extern template class CPieBase<CPieBaseItem>;

} // namespace tovangl

#endif
