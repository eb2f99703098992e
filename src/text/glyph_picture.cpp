// SPDX-License-Identifier: MIT
// Glyphs as pixels, for outputs that have no other use for a painter.
#include "text/glyph_picture.h"

#include "text/font_numbers.h"

#include <QByteArray>
#include <QColor>
#include <QGlyphRun>
#include <QPainter>
#include <QPointF>
#include <QRawFont>
#include <QRect>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <new>

namespace tovangl {

namespace {

constexpr double kLargestSize = 512; // pixels of a face; few fonts have pictures as large as that
constexpr double kReach = 2;         // sizes of the face in each direction
constexpr int kMargin = 1;           // pixels, which a painter may round to

QGlyphRun runOf(const QRawFont& face, std::uint32_t glyph)
{
    QGlyphRun run;
    run.setRawFont(face);
    run.setGlyphIndexes(QVector<quint32>{glyph});
    run.setPositions(QVector<QPointF>{QPointF(0, 0)});
    return run;
}

QImage paintedPart(const QRawFont& face, std::uint32_t glyph, const QColor& color,
                   const QRect& part)
{
    QImage picture(part.size(), QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull())
        throw std::bad_alloc();
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    if (!painter.isActive())
        throw std::bad_alloc();
    painter.setRenderHint(QPainter::TextAntialiasing, false);
    painter.setPen(color);
    painter.drawGlyphRun(-part.topLeft(), runOf(face, glyph));
    painter.end();
    return picture;
}

// Around all pixels that are not transparent.
QRect inkOf(const QImage& picture)
{
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        const auto isSeen = [](QRgb pixel) { return qAlpha(pixel) != 0; };
        const auto* end = row + picture.width();
        const auto* first = std::find_if(row, end, isSeen);
        if (first == end)
            continue;
        const auto* last = end - 1;
        while (!isSeen(*last))
            --last;
        ink |= QRect(QPoint(static_cast<int>(first - row), y),
                     QPoint(static_cast<int>(last - row), y));
    }
    return ink;
}

bool hasOtherColors(const QImage& picture, const QColor& color)
{
    const QRgb own = color.rgb();
    for (int y = 0; y < picture.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        const auto isOther = [own](QRgb pixel) { return qAlpha(pixel) != 0 && pixel != own; };
        if (std::any_of(row, row + picture.width(), isOther))
            return true;
    }
    return false;
}

CGlyphPicture paintGlyph(const QRawFont& face, std::uint32_t glyph, const QColor& color)
{
    QRawFont painted = face;
    if (face.pixelSize() > kLargestSize)
        painted.setPixelSize(kLargestSize);
    const double scale = face.pixelSize() / painted.pixelSize();
    const double reach = kReach * painted.pixelSize();
    const QRect part = painted.boundingRect(glyph)
                           .intersected(QRectF(-reach, -reach, 2 * reach, 2 * reach))
                           .toAlignedRect()
                           .adjusted(-kMargin, -kMargin, kMargin, kMargin);
    const QImage picture = paintedPart(painted, glyph, color, part);
    const QRect ink = inkOf(picture);
    if (ink.isEmpty())
        return {};
    const QRectF box(ink.translated(part.topLeft()));
    CGlyphPicture result;
    result.pixels = picture.copy(ink).convertToFormat(QImage::Format_ARGB32);
    if (result.pixels.isNull())
        throw std::bad_alloc();
    result.box = QRectF(box.topLeft() * scale, box.size() * scale);
    return result;
}

bool hasPictures(const QRawFont& face)
{
    constexpr const char* kPictureTables[] = {"CBLC", "COLR", "sbix"};
    return std::any_of(std::begin(kPictureTables), std::end(kPictureTables),
                       [&](const char* table) { return !face.fontTable(table).isEmpty(); });
}

// Of a face without outlines, Qt takes the height of a picture for the units that it is designed
// in.
bool hasOutlines(const QRawFont& face)
{
    constexpr std::size_t kUnitsInHead = 18;
    constexpr unsigned kUnitsOfType1 = 1000;
    const QByteArray head = face.fontTable("head");
    const CFontNumbers numbers({head.constData(), static_cast<std::size_t>(head.size())});
    const unsigned units = head.isEmpty() ? kUnitsOfType1 : numbers.at16(kUnitsInHead);
    return std::lround(face.unitsPerEm()) == static_cast<long>(units);
}

} // namespace

GlyphForm glyphFormOf(const QRawFont& face)
{
    if (!hasOutlines(face))
        return GlyphForm::Pictures;
    return hasPictures(face) ? GlyphForm::Both : GlyphForm::Outlines;
}

CGlyphPicture pictureOfGlyph(const QRawFont& face, GlyphForm form, std::uint32_t glyph,
                             const QColor& color)
{
    if (form == GlyphForm::Outlines)
        return {};
    CGlyphPicture picture = paintGlyph(face, glyph, color);
    const bool isPicture = form == GlyphForm::Pictures || hasOtherColors(picture.pixels, color);
    return isPicture ? picture : CGlyphPicture();
}

} // namespace tovangl
