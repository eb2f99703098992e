// SPDX-License-Identifier: MIT
// Paints placed texts.
#include "paint/text_painting.h"

#include "layout/CPlacedText.h"
#include "paint/CPainterSaver.h"
#include "text/qt_text.h"

#include <QPainter>
#include <QTextOption>

namespace tovangl {

namespace {

constexpr double kReadingUpward = -90.0; // degrees

// Sets the alignment afterwards, because the constructor that takes one would take the reading
// direction from the host's application object. This way it comes from the text.
QTextOption alignedTextOption(Qt::Alignment alignment)
{
    QTextOption option;
    option.setAlignment(alignment);
    return option;
}

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
    QRectF room = text.room;
    if (text.isTurned) {
        painter.translate(room.topLeft());
        painter.rotate(kReadingUpward);
        room.moveTopLeft(QPointF(0, 0));
    }
    if (text.isBold)
        setBold(painter);
    painter.setPen(text.color);
    qt::drawText(painter, room, text.text, alignedTextOption(text.alignment));
}

} // namespace tovangl
