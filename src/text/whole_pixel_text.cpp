// SPDX-License-Identifier: MIT
// Text measured and drawn with ascent and descent each rounded up to whole pixels.
#include "text/whole_pixel_text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>
#include <QTextOption>
#include <QTransform>

#include <cmath>

namespace tovangl {
namespace qt {

namespace {

constexpr qreal kUnlimitedWidth = 0x01000000; // pixels
// A text may hold variants of different lengths, separated by this character: the first one that
// fits is shown.
constexpr ushort kVariantSeparator = 0x9c;

struct CLineMetrics
{
    qreal height;
    qreal leading;
};

// The leading that is left of a whole-pixel line pitch once ascent and descent are whole too; it
// can be negative.
CLineMetrics wholePixelMetrics(const QFont& font)
{
    const QFontMetricsF metrics(font);
    const qreal height = std::ceil(metrics.ascent()) + std::ceil(metrics.descent());
    const qreal pitch =
        std::floor(metrics.ascent() + metrics.descent() + metrics.leading() + qreal(0.5));
    return {height, pitch - height};
}

// The painter's own treatment of control characters.
QString printableText(QString text)
{
    for (QChar& character : text) {
        if (character == QLatin1Char('\n'))
            character = QChar(QChar::LineSeparator);
        else if (character == QLatin1Char('\r') || character == QLatin1Char('\t'))
            character = QLatin1Char(' ');
    }
    return text;
}

// Lays out lines from the top until the height is used up. Returns the extent.
QSizeF layoutLines(QTextLayout& layout, qreal lineWidth, qreal room, qreal leading)
{
    qreal height = -leading;
    qreal width = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(lineWidth);
        height = std::ceil(height + leading);
        const qreal ascent = std::ceil(line.ascent());
        line.setPosition(QPointF(0, height + ascent - line.ascent()));
        height += ascent + std::ceil(line.descent());
        width = qMax(width, line.naturalTextWidth());
        if (height >= room)
            break;
    }
    layout.endLayout();
    return QSizeF(width, height);
}

// The gap above or before a text in its rectangle.
qreal alignedOffset(qreal gap, bool atEnd, bool centred)
{
    return atEnd ? gap : centred ? gap / 2 : 0;
}

// In right-to-left text, the spaces at a line break hang out to the left, so the line begins that
// much further left.
qreal hangingSpace(QTextLine line)
{
    const QPointF position = line.position();
    // A cursor left of 0 would be put at 0.
    line.setPosition(QPointF(kUnlimitedWidth, position.y()));
    const qreal left = line.cursorToX(line.xToCursor(0));
    line.setPosition(position);
    return qMax<qreal>(0, kUnlimitedWidth - left);
}

// A text laid out in a rectangle.
struct CLaidOutText
{
    const QTextLayout& layout;
    QRectF rect;
    qreal top; // of the lines, below that of the rectangle
    Qt::Alignment alignment;
    bool fits; // if not, the rectangle cuts it off

    // From the layout's origin to where a line is drawn.
    [[nodiscard]] QPointF offset(const QTextLine& line) const
    {
        qreal left = alignedOffset(rect.width() - line.horizontalAdvance(),
                                   alignment & Qt::AlignRight, alignment & Qt::AlignHCenter);
        if (alignment & Qt::AlignRight)
            left -= hangingSpace(line);
        return rect.topLeft() + QPointF(left, top);
    }
};

// Clips to all pixels that the rectangle touches. The painter's own clip is rounded to the nearest
// pixels since Qt 6, which would cut the first column of a text that begins in half a pixel.
void clipToTouchedPixels(QPainter& painter, const QRectF& rect)
{
    const QTransform transform = painter.worldTransform();
    if (transform.type() > QTransform::TxScale) {
        painter.setClipRect(rect, Qt::IntersectClip);
        return;
    }
    painter.setWorldTransform(QTransform());
    painter.setClipRect(transform.mapRect(rect).toAlignedRect(), Qt::IntersectClip);
    painter.setWorldTransform(transform);
}

// Uses one variant as it is laid out; where there is another one to try, only if this one fits.
template <typename Use>
bool layOutVariant(const QFont& font, const QRectF& rect, const QString& text,
                   const QTextOption& option, bool isLast, Use use)
{
    // Deliberate: the painter draws nothing from an empty variant on, whatever follows it.
    if (text.isEmpty())
        return true;

    const Qt::Alignment alignment = option.alignment();
    QTextOption lineOption = option;
    lineOption.setAlignment(Qt::AlignLeft); // lines are aligned when they are drawn
    QTextLayout layout(text, font);
    layout.setTextOption(lineOption);
    layout.setCacheEnabled(true);

    const bool wraps = option.wrapMode() != QTextOption::NoWrap;
    const QSizeF size = layoutLines(layout, wraps ? qMax<qreal>(0, rect.width()) : kUnlimitedWidth,
                                    rect.height(), wholePixelMetrics(font).leading);
    const qreal left = alignedOffset(rect.width() - size.width(), alignment & Qt::AlignRight,
                                     alignment & Qt::AlignHCenter);
    const qreal top = alignedOffset(rect.height() - size.height(), alignment & Qt::AlignBottom,
                                    alignment & Qt::AlignVCenter);
    const bool fits = rect.contains(QRectF(rect.topLeft() + QPointF(left, top), size));
    if (!fits && !isLast)
        return false;
    use(CLaidOutText{layout, rect, top, alignment, fits});
    return true;
}

// Uses the first variant that fits, or else the last one; none if that is empty.
template <typename Use>
void layOutText(const QFont& font, const QRectF& rect, const QString& text,
                const QTextOption& option, Use use)
{
    const QString printable = printableText(text);
    int begin = 0;
    while (begin <= printable.size()) {
        const int separator = static_cast<int>(printable.indexOf(QChar(kVariantSeparator), begin));
        const int end = separator < 0 ? static_cast<int>(printable.size()) : separator;
        if (layOutVariant(font, rect, printable.mid(begin, end - begin), option, separator < 0,
                          use))
            return;
        begin = end + 1;
    }
}

void drawLines(QPainter& painter, const CLaidOutText& text)
{
    if (!text.fits) {
        painter.save();
        clipToTouchedPixels(painter, text.rect);
    }
    for (int i = 0; i < text.layout.lineCount(); ++i) {
        const QTextLine line = text.layout.lineAt(i);
        line.draw(&painter, text.offset(line));
    }
    if (!text.fits)
        painter.restore();
}

// Without the white space at its end, which takes no room.
QString visiblePart(QString text)
{
    while (!text.isEmpty() && text.back().isSpace())
        text.chop(1);
    return text;
}

CTextLine toTextLine(const QTextLine& line, const CLaidOutText& text)
{
    const QString whole = text.layout.text();
    const QPointF position = text.offset(line) + line.position();
    return {visiblePart(whole.mid(line.textStart(), line.textLength())),
            QPointF(position.x(), position.y() + line.ascent()), line.naturalTextWidth(),
            whole.isRightToLeft()};
}

} // namespace

int wholePixelFontHeight(const QPainter& painter)
{
    return static_cast<int>(wholePixelMetrics(painter.font()).height);
}

QRectF measureWholePixelText(const QPainter& painter, const QRectF& rect, const QString& text)
{
    if (text.isEmpty())
        return QRectF(rect.topLeft(), QSizeF(0, 0));

    const CLineMetrics metrics = wholePixelMetrics(painter.font());
    // With no room at all no variant fits, so the last one is measured.
    const QString last = printableText(text.mid(text.lastIndexOf(QChar(kVariantSeparator)) + 1));
    if (last.isEmpty())
        return QRectF(rect.topLeft(), QSizeF(0, metrics.height));

    QTextOption option(Qt::AlignLeft);
    option.setTextDirection(painter.layoutDirection());
    QTextLayout layout(last, painter.font());
    layout.setTextOption(option);
    return QRectF(rect.topLeft(),
                  layoutLines(layout, kUnlimitedWidth, kUnlimitedWidth, metrics.leading));
}

void drawWholePixelText(QPainter& painter, const QRectF& rect, const QString& text,
                        const QTextOption& option)
{
    layOutText(painter.font(), rect, text, option,
               [&painter](const CLaidOutText& laidOut) { drawLines(painter, laidOut); });
}

CTextLines wholePixelLines(const QFont& font, const QRectF& rect, const QString& text,
                           const QTextOption& option)
{
    CTextLines result;
    layOutText(font, rect, text, option, [&result](const CLaidOutText& laidOut) {
        result.isCut = !laidOut.fits;
        for (int i = 0; i < laidOut.layout.lineCount(); ++i)
            result.lines.push_back(toTextLine(laidOut.layout.lineAt(i), laidOut));
    });
    return result;
}

} // namespace qt
} // namespace tovangl
