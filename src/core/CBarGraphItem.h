// SPDX-License-Identifier: MIT
/// @file
/// One bar of a bar chart.
#ifndef TOVANGL_CORE_CBARGRAPHITEM_H
#define TOVANGL_CORE_CBARGRAPHITEM_H

#include "core/CGraph1dItem.h"

namespace tovangl {

/// A data item drawn as a bar. It lives below the axes, which write the bar's rectangles onto it.
class CBarGraphItem : public CGraph1dItem
{
public:
    /// An invalid outline colour becomes the fill colour darkened by kOutlineDarkness.
    CBarGraphItem(long long value, const QString& text, const QColor& color,
                  const QColor& outlineColor = QColor());
    ~CBarGraphItem() override;

    virtual void setOutlineColor(const QColor& color);
    [[nodiscard]] virtual QColor outlineColor() const;
    virtual void setBarRect(const QRect& rect);
    [[nodiscard]] virtual QRect barRect() const;
    virtual void setBarLabelRect(const QRect& rect);
    [[nodiscard]] virtual QRect barLabelRect() const;

private:
    QColor m_outlineColor;
    QRect m_barRect;
    QRect m_barLabelRect;
};

/// Factor of QColor::darker(): the outline has two thirds of the fill's brightness.
inline constexpr int kOutlineDarkness = 150;

} // namespace tovangl

#endif
