// SPDX-License-Identifier: MIT
// A slice with geometry of its own.
#include "core/CPieGraphItem.h"

namespace tovangl {

CPieGraphItem::CPieGraphItem(long long value, const QString& text, const QColor& color)
    : CPieBaseItem(value, text, color)
{}

CPieGraphItem::~CPieGraphItem() = default;

} // namespace tovangl
