// SPDX-License-Identifier: MIT
// One value of a chart, with its caption.
#include "core/CGraph1dItem.h"

namespace tovangl {

CGraph1dItem::CGraph1dItem(long long value, const QString& text, const QColor& color)
    : m_value(value)
    , m_text(text)
    , m_color(color)
{}

CGraph1dItem::~CGraph1dItem() = default;

} // namespace tovangl
