// SPDX-License-Identifier: MIT
// One slice of a pie.
#include "core/CPieBaseItem.h"

namespace tovangl {

CPieBaseItem::CPieBaseItem(long long value, const QString& text, const QColor& color)
    : CGraph1dItem(value, text, color)
{}

CPieBaseItem::~CPieBaseItem() = default;

} // namespace tovangl
