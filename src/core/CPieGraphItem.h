// SPDX-License-Identifier: MIT
/// @file
/// A slice with geometry of its own, for charts that derive from the pie.
#ifndef TOVANGL_CORE_CPIEGRAPHITEM_H
#define TOVANGL_CORE_CPIEGRAPHITEM_H

#include "core/CPieBaseItem.h"

#include <QRectF>

namespace tovangl {

/// A slice that also carries its geometry, in whole pixels and in fractions. The pie itself makes
/// CPieBaseItem objects only.
class CPieGraphItem : public CPieBaseItem
{
public:
    CPieGraphItem(long long value, const QString& text, const QColor& color);
    ~CPieGraphItem() override;

    [[nodiscard]] const QRect& pixelGeometry() const { return m_pixelGeometry; }
    [[nodiscard]] const QRectF& geometry() const { return m_geometry; }

private:
    QRect m_pixelGeometry = QRect(QPoint(0, 0), QPoint(0, 0));
    QRectF m_geometry;
};

} // namespace tovangl

#endif
