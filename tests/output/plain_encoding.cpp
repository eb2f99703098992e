// SPDX-License-Identifier: MIT
// The plain way to a PNG file, which the library's own encoder is held against.
#include "output/plain_encoding.h"

#include <QBuffer>
#include <QHash>
#include <QVector>

namespace tovangl {

namespace {

constexpr int kMaxColors = 256;

// Null where there are too many colours.
QImage indexed(const QImage& picture)
{
    QHash<QRgb, int> indexes;
    QVector<QRgb> colors;
    QImage result(picture.size(), QImage::Format_Indexed8);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb color = picture.pixel(x, y);
            if (!indexes.contains(color)) {
                indexes.insert(color, static_cast<int>(colors.size()));
                colors.append(color);
            }
            if (colors.size() > kMaxColors)
                return QImage();
            result.scanLine(y)[x] = static_cast<uchar>(indexes.value(color));
        }
    }
    result.setColorTable(colors);
    return result;
}

} // namespace

QByteArray encodePlainly(const QImage& picture)
{
    constexpr int kDefaultQuality = -1;
    const QImage narrow = indexed(picture);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    (narrow.isNull() ? picture.convertToFormat(QImage::Format_RGB32) : narrow)
        .save(&buffer, "PNG", kDefaultQuality);
    return bytes;
}

} // namespace tovangl
