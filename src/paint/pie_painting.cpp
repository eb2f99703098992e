// SPDX-License-Identifier: MIT
// Paints a pie.
#include "paint/pie_painting.h"

#include "layout/CPieLayout.h"
#include "paint/CPainterSaver.h"
#include "paint/gradient_shapes.h"
#include "paint/text_painting.h"

#include <QPen>
#include <QVector>

namespace tovangl {

namespace {

QPen makeLinePen(const QColor& color, double width)
{
    return QPen(QBrush(color), width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
}

QPen makeBeamPen(const QColor& color, double width)
{
    QPen pen = makeLinePen(color, width);
    pen.setDashPattern(QVector<qreal>{kBeamDash, kBeamGap});
    return pen;
}

void drawBackground(QPainter& painter, const CPieLayout& layout)
{
    if (!layout.background)
        return;
    const CPainterSaver saver(painter);
    cdraw::drawGradientBackground(painter, *layout.background, layout.outlineWidth);
}

void drawPies(QPainter& painter, const CPieLayout& layout)
{
    painter.setPen(makeLinePen(layout.outlineColor, layout.outlineWidth));
    for (const CPieSlice& slice : layout.slices) {
        painter.setBrush(QBrush(slice.color));
        if (layout.isWholeDisc)
            painter.drawEllipse(layout.pieRect);
        else
            painter.drawPie(layout.pieRect, slice.angles.start, slice.angles.span);
    }
}

void drawLabels(QPainter& painter, const CPieLayout& layout)
{
    const QPen beamPen = makeBeamPen(layout.labelLineColor, layout.beamWidth);
    const QPen textLinePen = makeLinePen(layout.labelLineColor, layout.textLineWidth);
    painter.translate(layout.center());
    for (const CPlacedPieLabel& label : layout.labels) {
        if (label.isHidden)
            continue;
        painter.setPen(beamPen);
        painter.drawLine(label.beamStart, label.elbow);
        painter.setPen(textLinePen);
        painter.drawLine(label.elbow, label.lineEnd);
        for (const CPlacedText& text : label.texts)
            paintText(painter, text);
    }
}

} // namespace

void paintPie(QPainter& painter, const CPieLayout& layout)
{
    if (!layout.fits())
        return;
    const CPainterSaver saver(painter);
    painter.setRenderHint(QPainter::Antialiasing, true);
    drawBackground(painter, layout);
    if (layout.title)
        paintText(painter, layout.title->text);
    painter.translate(layout.shift);
    drawPies(painter, layout);
    drawLabels(painter, layout);
}

} // namespace tovangl
