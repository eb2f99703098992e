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
