// SPDX-License-Identifier: MIT
/// @file
/// One text of a chart: it is measured once and drawn into the rectangle that its owner chose.
#ifndef TOVANGL_LABELS_CTEXTLABEL_H
#define TOVANGL_LABELS_CTEXTLABEL_H

#include "labels/number_text.h"

#include <QColor>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QString>

class QLocale;
class QPainter;
class QTextOption;

namespace tovangl {

class CGraph1dItem;

/// A text label in whole pixels (QPoint, QRect: axes and bars) or in fractions (QPointF, QRectF:
/// pies). A label of a data item records on the item where it was drawn.
template <typename P, typename R>
class CTextLabel
{
public:
    using NumberFormat = tovangl::NumberFormat;

    /// An empty text. The locale must outlive the label; null where no number is written.
    explicit CTextLabel(const QLocale* locale);
    /// The item's caption; a null item gives an empty text.
    CTextLabel(CGraph1dItem* item, const QLocale* locale);
    CTextLabel(const QString& text, const QLocale* locale);
    CTextLabel(long long value, NumberFormat format, const QLocale* locale);
    virtual ~CTextLabel();
    Q_DISABLE_COPY(CTextLabel)

    virtual void setBold(bool bold);
    /// When the text is shortened, its beginning is cut instead of its end.
    virtual void setShortFromLeft(bool shortFromLeft);
    [[nodiscard]] virtual CGraph1dItem* getItem() const;
    [[nodiscard]] virtual QString getText() const;
    [[nodiscard]] virtual long long getValue() const;
    /// Labels of a lower priority are hidden first; all have the same.
    [[nodiscard]] virtual int getOverlapRemovalPriority() const;
    /// The text's extent at the origin. It is measured at the first call and kept for the label's
    /// life.
    virtual R getBoundingRect(QPainter& painter);
    [[nodiscard]] virtual R getBoundingRect() const;
    /// Draws the text into the rectangle, shortened to its width, unless the label is hidden or the
    /// rectangle is not valid. A turned label reads upward from the rectangle's top-left corner.
    virtual void draw(QPainter& painter, const R& rect, const QTextOption& option);
    [[nodiscard]] virtual QString debug() const;
    [[nodiscard]] virtual QString getAdjustedText(const QString& text, double width,
                                                  QPainter& painter) const;
    virtual void drawNormally(QPainter& painter, const R& rect, const QTextOption& option);
    virtual void drawRotated(QPainter& painter, const R& rect, const QTextOption& option);
    /// Records on the item, in image pixels, what the rectangle covers on the picture.
    virtual void setItemRect(QPainter& painter, const R& rect);

    void initBoundingRect(QPainter& painter);
    /// Whether the text fits into the width, in pixels, as it stands or shortened.
    [[nodiscard]] bool canFit(double width, QPainter& painter) const;
    /// The value in the label's locale and the process's kilo.
    [[nodiscard]] QString numberToText(long long value, int format) const;

    [[nodiscard]] bool isBold() const { return m_bold; }
    [[nodiscard]] bool isShortFromLeft() const { return m_shortFromLeft; }
    [[nodiscard]] bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden) { m_hidden = hidden; }
    [[nodiscard]] bool isRotated() const { return m_rotated; }
    void setRotated(bool rotated) { m_rotated = rotated; }
    [[nodiscard]] int scale() const { return m_scale; }
    void setScale(int scale) { m_scale = scale; }
    [[nodiscard]] const QColor& color() const { return m_color; }
    void setColor(const QColor& color) { m_color = color; }
    [[nodiscard]] const P& position() const { return m_position; }
    void setPosition(const P& position) { m_position = position; }

private:
    // A measured text that fits need not be measured again.
    [[nodiscard]] bool fitsAsMeasured(double width) const;

protected:
    QString m_text;
    CGraph1dItem* m_item = nullptr; // borrowed from the chart
    long long m_value = 0;
    const QLocale* m_locale; // borrowed from the chart; may be null
    P m_position;
    R m_boundingRect;
    bool m_boundingRectReady = false;
    bool m_bold = false;
    bool m_shortFromLeft = false;
    bool m_hidden = false;
    bool m_rotated = false;
    int m_scale = 1;
    QColor m_color = Qt::black;
};

/// Sets a bold font on the painter where a label asks for it.
void applyBold(QPainter& painter, bool bold);

extern template class CTextLabel<QPoint, QRect>;
extern template class CTextLabel<QPointF, QRectF>;

} // namespace tovangl

#endif
