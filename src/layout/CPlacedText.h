// SPDX-License-Identifier: MIT
/// @file
/// A text with its final wording and place.
#ifndef TOVANGL_LAYOUT_CPLACEDTEXT_H
#define TOVANGL_LAYOUT_CPLACEDTEXT_H

#include <QColor>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QString>

namespace tovangl {

/// A text as it is painted. A turned text reads upward from the top-left corner of its room: it
/// extends by the room's height to the right of that corner, and by its width above it.
struct CPlacedText
{
    QString text;
    QRectF room; ///< as wide and high as the text reads, turned or not
    Qt::Alignment alignment = Qt::AlignLeft;
    QColor color;
    bool isBold = false;
    bool isTurned = false;
    QPointF origin = {}; ///< of the room's coordinates, in painter coordinates
    double slack = 0;    ///< pixels by which the painted text may be wider than its room
};

/// A rectangle of whole pixels, for painting.
[[nodiscard]] QRectF toRoom(const QRect& rect);

/// The room with the slack on those sides that leave the text in its place.
[[nodiscard]] QRectF roomWithSlack(const CPlacedText& text);

/// The whole pixels that a text in that room covers on the picture.
///
/// @param origin  of the room's coordinates, in picture pixels
[[nodiscard]] QRect coveredPixels(const QRect& room, bool isTurned, const QPoint& origin);
/// Likewise, with each edge and extent rounded, halves away from zero.
[[nodiscard]] QRect coveredPixels(const QRectF& room, bool isTurned, const QPoint& origin);

} // namespace tovangl

#endif
