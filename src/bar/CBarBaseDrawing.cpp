// SPDX-License-Identifier: MIT
// The base of the bar charts: painting.
#include "axes/aligned_text_option.h"
#include "bar/CBarBase.h"
#include "core/pixel_arithmetic.h"
#include "draw/CShortTextWidths.h"
#include "draw/aliased_shapes.h"
#include "draw/gradient_shapes.h"
#include "labels/CBarTextLabel.h"

#include <QLinearGradient>
#include <QPainter>

namespace tovangl {

namespace {

QLinearGradient verticalGradient(const QPointF& top, const QPointF& bottom, const QColor& atTop,
                                 const QColor& atBottom)
{
    QLinearGradient gradient(top, bottom);
    gradient.setColorAt(0.0, atTop);
    gradient.setColorAt(1.0, atBottom);
    return gradient;
}

} // namespace

void CBarBase::initPainter(QPainter& painter) const
{
    CGraph1d<CBarGraphItem>::initPainter(painter);
    // Deliberate: bars have crisp edges.
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setRenderHint(QPainter::TextAntialiasing, false);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
}

void CBarBase::drawContents(QPainter& painter)
{
    const cdraw::CShortTextWidths widths;
    createAxes(painter);
    if (!computeLayout(painter))
        return;
    if (m_background)
        drawBackground(painter);
    drawOnBackground(painter);
    drawBars(painter);
    drawAxes(painter);
    m_isDrawn = true;
}

void CBarBase::drawBars(QPainter& painter)
{
    if (!m_plotRect.isValid())
        return;
    const bool isFromLeft = m_numberAxis->orientation() == CAxis::LeftToRight;
    const QTextOption option = alignedTextOption(isFromLeft ? Qt::AlignLeft : Qt::AlignRight);
    const int labelGap = isBarLabel() ? scaledMargin() : 0;
    const QRect labelRect = isBarLabel() ? m_barLabelRect : QRect();
    m_categoryAxis->setItemBarAndLabel(painter, m_numberAxis.get(), labelRect, labelGap);
    for (CBarGraphItem* item : m_selectedItems) {
        drawBar(painter, item);
        if (item->barLabelRect().isValid())
            drawValueLabel(painter, *item, option);
    }
}

void CBarBase::drawAxes(QPainter& painter)
{
    m_categoryAxis->draw(painter);
    m_numberAxis->draw(painter);
}

void CBarBase::drawBar(QPainter& painter, CBarGraphItem* item)
{
    if (!item || !item->barRect().isValid())
        return;
    // Deliberate: bars keep their own colour in print as well.
    cdraw::drawOutlinedRect(painter, item->barRect(), item->color(), item->outlineColor(), m_scale);
}

QColor CBarBase::getBackgroundTopColor() const
{
    return QColor(224, 238, 255);
}

QColor CBarBase::getBackgroundBottomColor() const
{
    return QColor(255, 255, 255);
}

QColor CBarBase::getBackgroundLineTopColor() const
{
    return QColor(179, 190, 204);
}

QColor CBarBase::getBackgroundLineBottomColor() const
{
    return QColor(204, 204, 204);
}

void CBarBase::drawBackground(QPainter& painter)
{
    if (!m_plotRect.isValid())
        return;
    if (m_outputDevice == ScreenDevice) {
        painter.fillRect(m_plotRect,
                         verticalGradient(m_plotRect.topLeft(), m_plotRect.bottomLeft(),
                                          getBackgroundTopColor(), getBackgroundBottomColor()));
    } else {
        painter.fillRect(m_plotRect, QColor(255, 255, 255));
    }
}

void CBarBase::drawRightBorder(QPainter& painter) const
{
    const QPoint top = m_plotRect.topRight();
    const QPoint bottom = m_plotRect.bottomRight();
    cdraw::drawGradientLine(
        painter, top, bottom,
        verticalGradient(top, bottom, getBackgroundLineTopColor(), getBackgroundLineBottomColor()),
        m_scale);
}

void CBarBase::drawValueLabel(QPainter& painter, const CBarGraphItem& item,
                              const QTextOption& option)
{
    CBarTextLabel label(item.value(), PlainNumber, locale());
    if (m_textColor.isValid())
        label.setColor(m_textColor);
    label.draw(painter, item.barLabelRect(), option);
}

} // namespace tovangl
