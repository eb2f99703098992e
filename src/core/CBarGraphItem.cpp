// SPDX-License-Identifier: MIT
// One bar of a bar chart.
#include "core/CBarGraphItem.h"

namespace tovangl {

CBarGraphItem::CBarGraphItem(long long value, const QString& text, const QColor& color,
                             const QColor& outlineColor)
    : CGraph1dItem(value, text, color)
    , m_outlineColor(outlineColor.isValid() ? outlineColor : color.darker(kOutlineDarkness))
{}

CBarGraphItem::~CBarGraphItem() = default;

void CBarGraphItem::setOutlineColor(const QColor& color)
{
    m_outlineColor = color;
}

QColor CBarGraphItem::outlineColor() const
{
    return m_outlineColor;
}

void CBarGraphItem::setBarRect(const QRect& rect)
{
    m_barRect = rect;
}

QRect CBarGraphItem::barRect() const
{
    return m_barRect;
}

void CBarGraphItem::setBarLabelRect(const QRect& rect)
{
    m_barLabelRect = rect;
}

QRect CBarGraphItem::barLabelRect() const
{
    return m_barLabelRect;
}

} // namespace tovangl
