// SPDX-License-Identifier: MIT
// Where versions of Qt differ, every one does what Qt 5 does.
#include "core/qt_versions.h"
#include "support/chart_font.h"

#include <QFontInfo>
#include <QImage>

#include <gtest/gtest.h>

namespace tovangl {
namespace qt {
namespace {

constexpr int kImageSide = 60; // pixels

bool isInk(QRgb pixel)
{
    return pixel != 0xffffffff;
}

// The smallest rectangle around all ink.
QRect inkRect(const QImage& image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (isInk(image.pixel(x, y)))
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

// The ink of a text that is larger than its room on every side.
QRect inkOfTooLargeText(const QRectF& room, double translation)
{
    QImage image(kImageSide, kImageSide, QImage::Format_ARGB32);
    image.fill(0xffffffff);
    QPainter painter(&image);
    painter.setFont(chartFont("DejaVu Sans", kImageSide));
    painter.translate(translation, translation);
    QTextOption option(Qt::AlignCenter);
    option.setWrapMode(QTextOption::NoWrap);
    const QString fullBlocks(9, QChar(0x2588));
    drawText(painter, room, fullBlocks, option);
    painter.end();
    return inkRect(image);
}

TEST(TextOutOfRoom, IsSeenInEveryPixelThatTheRoomTouches)
{
    const QRect pixels(QPoint(10, 10), QPoint(30, 21));
    EXPECT_EQ(inkOfTooLargeText(QRectF(10.6, 10.6, 20.0, 11.0), 0), pixels);
    EXPECT_EQ(inkOfTooLargeText(QRectF(10.2, 10.2, 20.0, 11.0), 0), pixels);
}

TEST(TextOutOfRoom, IsSeenInEveryPixelThatATranslatedRoomTouches)
{
    const QRect pixels(QPoint(10, 10), QPoint(30, 21));
    EXPECT_EQ(inkOfTooLargeText(QRectF(10.25, 10.25, 20.0, 11.0), 0.5), pixels);
}

TEST(DefaultSize, IsTwelvePointsAtAHundredDotsPerInch)
{
    const QImage image(1, 1, QImage::Format_ARGB32);
    QFont font = QFont(QString("DejaVu Sans"));
    setDefaultSize(font, image);
    const QFont onImage(font, &image);
    EXPECT_EQ(QFontInfo(onImage).pixelSize(), 17);
    EXPECT_NEAR(onImage.pointSizeF() * image.logicalDpiY(), 1200, 1e-6);
}

} // namespace
} // namespace qt
} // namespace tovangl
