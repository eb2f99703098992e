// SPDX-License-Identifier: MIT
// Paints placed texts.
#include "paint/text_painting.h"

#include "layout/CPlacedText.h"
#include "paint/CPainterSaver.h"
#include "text/aligned_text.h"
#include "text/qt_text.h"

#include <QPainter>

namespace tovangl {

namespace {

constexpr double kReadingUpward = -90.0; // degrees

void setBold(QPainter& painter)
{
    QFont font = painter.font();
    font.setWeight(QFont::Bold);
    painter.setFont(font);
}

// The room with the slack on those sides that leave the text in its place.
QRectF roomWithSlack(const CPlacedText& text)
{
    if (text.alignment & Qt::AlignRight)
        return text.room.adjusted(-text.slack, 0, 0, 0);
    if (text.alignment & Qt::AlignHCenter)
        return text.room.adjusted(-text.slack / 2, 0, text.slack / 2, 0);
    return text.room.adjusted(0, 0, text.slack, 0);
}

} // namespace

void paintText(QPainter& painter, const CPlacedText& text)
{
    const CPainterSaver saver(painter);
    painter.translate(text.origin);
    QRectF room = roomWithSlack(text);
    if (text.isTurned) {
        painter.translate(text.room.topLeft());
        painter.rotate(kReadingUpward);
        room.translate(-text.room.topLeft());
    }
    if (text.isBold)
        setBold(painter);
    painter.setPen(text.color);
    qt::drawText(painter, room, text.text, alignedTextOption(text.alignment));
}

} // namespace tovangl
