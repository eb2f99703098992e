// SPDX-License-Identifier: MIT
// Paints a laid-out bar chart.
#include "paint/bar_painting.h"

#include "layout/CBarLayout.h"
#include "paint/CPainterSaver.h"
#include "paint/aliased_shapes.h"
#include "paint/gradient_shapes.h"
#include "paint/text_painting.h"

#include <QLinearGradient>
#include <QPainter>

namespace tovangl {

namespace {

QLinearGradient verticalGradient(const QPointF& top, const QPointF& bottom,
                                 const CVerticalFade& colors)
{
    QLinearGradient gradient(top, bottom);
    gradient.setColorAt(0.0, colors.top);
    gradient.setColorAt(1.0, colors.bottom);
    return gradient;
}

void drawLine(QPainter& painter, const CStraightLine& line)
{
    cdraw::drawStraightLine(painter, line.from, line.to, line.color, line.width);
}

void drawBackground(QPainter& painter, const CBarLayout& layout)
{
    if (!layout.background)
        return;
    const QRect& plot = layout.plotRect;
    const CVerticalFade& colors = *layout.background;
    if (colors.top == colors.bottom)
        painter.fillRect(plot, colors.top);
    else
        painter.fillRect(plot, verticalGradient(plot.topLeft(), plot.bottomLeft(), colors));
}

void drawBorder(QPainter& painter, const CBarLayout& layout)
{
    if (!layout.border)
        return;
    const QPoint top = layout.plotRect.topRight();
    const QPoint bottom = layout.plotRect.bottomRight();
    cdraw::drawGradientLine(painter, top, bottom,
                            verticalGradient(top, bottom, layout.border->right), layout.lineWidth);
    if (layout.border->bottom)
        drawLine(painter, *layout.border->bottom);
}

void drawOnBackground(QPainter& painter, const CBarLayout& layout)
{
    for (const CStraightLine& line : layout.gridLines)
        drawLine(painter, line);
    drawBorder(painter, layout);
}

// Paints each bar together with its value: where bars overlap, a later bar covers the value of an
// earlier one.
void drawBars(QPainter& painter, const CBarLayout& layout)
{
    for (const CBar& bar : layout.bars) {
        if (bar.rect.isValid())
            cdraw::drawOutlinedRect(painter, bar.rect, bar.color, bar.outlineColor,
                                    layout.lineWidth);
        if (bar.labelRect.isValid())
            paintText(painter, bar.label);
    }
}

void drawAxis(QPainter& painter, const CAxisLayout& axis)
{
    if (axis.line)
        drawLine(painter, *axis.line);
    for (const CPlacedText& text : axis.texts)
        paintText(painter, text);
}

} // namespace

void paintBars(QPainter& painter, const CBarLayout& layout)
{
    if (!layout.fits())
        return;
    const CPainterSaver saver(painter);
    // Deliberate: bars have crisp edges.
    painter.setRenderHint(QPainter::Antialiasing, false);
    drawBackground(painter, layout);
    drawOnBackground(painter, layout);
    drawBars(painter, layout);
    drawAxis(painter, *layout.categoryAxis);
    drawAxis(painter, *layout.numberAxis);
    if (layout.title)
        paintText(painter, layout.title->text);
}

} // namespace tovangl
