// SPDX-License-Identifier: MIT
// Where versions of Qt differ, every one does what Qt 5 does.
#include "support/chart_font.h"
#include "support/pixels.h"
#include "text/qt_text.h"

#include <QFontInfo>
#include <QImage>

#include <gtest/gtest.h>

namespace tovangl {
namespace qt {
namespace {

constexpr int kImageSide = 60; // pixels

// The ink of a text that is larger than its room on every side.
QRect inkOfTooLargeText(const QRectF& room, double translation)
{
    return inkOf(painted(kImageSide, kImageSide, [&](QPainter& painter) {
        painter.setFont(chartFont("DejaVu Sans", kImageSide));
        painter.translate(translation, translation);
        QTextOption option(Qt::AlignCenter);
        option.setWrapMode(QTextOption::NoWrap);
        const QString fullBlocks(9, QChar(0x2588));
        drawText(painter, room, fullBlocks, option);
    }));
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

TEST(Family, IsTheFirstOfAListThatIsInstalled)
{
    QFont font;
    setFamily(font, "no such family, DejaVu Sans,Tahoma");
    EXPECT_EQ(QFontInfo(font).family(), "DejaVu Sans");
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
