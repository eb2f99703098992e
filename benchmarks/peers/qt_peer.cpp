// SPDX-License-Identifier: MIT
// What the peers on Qt share: the look of the charts as Qt types, and the encoding as PNG.
#include "peers/qt_peer.h"

#include <QBuffer>
#include <QByteArray>
#include <QImage>

namespace tovangl {
namespace bench {

namespace {

QColor toQColor(const CRgb& color)
{
    return QColor(color.red, color.green, color.blue);
}

} // namespace

void useOffscreenPlatform()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

QColor fillColor(int place)
{
    return toQColor(kFill[place % kColors]);
}

QColor outlineColor(int place)
{
    return toQColor(kOutline[place % kColors]);
}

QColor gridColor()
{
    return toQColor(kGrid);
}

// As in this library's charts the text is not antialiased, which also makes it cheaper to encode.
QFont peerFont()
{
    QFont font(QString::fromLatin1(kFontFamily));
    font.setPixelSize(kFontPixels);
    font.setStyleStrategy(QFont::NoAntialias);
    return font;
}

CPictureBytes encode(const QImage& image)
{
    static QByteArray bytes;
    bytes.clear();
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

} // namespace bench
} // namespace tovangl
