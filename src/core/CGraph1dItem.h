// SPDX-License-Identifier: MIT
/// @file
/// One value of a chart, with its caption.
#ifndef TOVANGL_CORE_CGRAPH1DITEM_H
#define TOVANGL_CORE_CGRAPH1DITEM_H

#include <QColor>
#include <QRect>
#include <QString>

namespace tovangl {

/// A data item: what the host gave, and where its caption was drawn.
class CGraph1dItem
{
public:
    CGraph1dItem(long long value, const QString& text, const QColor& color);
    virtual ~CGraph1dItem();
    Q_DISABLE_COPY(CGraph1dItem)

    [[nodiscard]] long long value() const { return m_value; }
    [[nodiscard]] const QString& text() const { return m_text; }
    [[nodiscard]] const QColor& color() const { return m_color; }

    /// The caption as last drawn, in image pixels; the null rectangle where none was drawn.
    [[nodiscard]] const QRect& itemRect() const { return m_itemRect; }
    void setItemRect(const QRect& rect) { m_itemRect = rect; }

private:
    long long m_value;
    QString m_text;
    QColor m_color;
    QRect m_itemRect;
};

} // namespace tovangl

#endif
