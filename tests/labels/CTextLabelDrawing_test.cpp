// SPDX-License-Identifier: MIT
// What a label puts on the picture.
#include "labels/CTextLabel.h"
#include "support/chart_font.h"

#include <QImage>
#include <QLocale>
#include <QPainter>
#include <QTextOption>

#include <functional>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr QRgb kWhite = 0xffffffff;
constexpr QRgb kRed = 0xffff0000;
const QLocale kLocale(QLocale::English, QLocale::UnitedStates);

using PixelLabel = CTextLabel<QPoint, QRect>;
using PieLabel = CTextLabel<QPointF, QRectF>;

QImage painted(const std::function<void(QPainter&)>& paint)
{
    QImage image(120, 120, QImage::Format_ARGB32);
    image.fill(kWhite);
    QPainter painter(&image);
    painter.setFont(chartFont("DejaVu Sans", 12));
    paint(painter);
    return image;
}

// The smallest rectangle that holds every pixel that is not white.
QRect inkOf(const QImage& image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != kWhite)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

QImage drawn(PixelLabel& label, const QRect& rect, const QTextOption& option = QTextOption())
{
    return painted([&](QPainter& painter) { label.draw(painter, rect, option); });
}

TEST(TextLabelDrawing, DrawsTheTextInItsRectangle)
{
    PixelLabel label(QString("Hxg"), &kLocale);
    const QRect rect(20, 30, 60, 16);
    const QRect ink = inkOf(drawn(label, rect));
    EXPECT_TRUE(ink.isValid());
    EXPECT_TRUE(rect.contains(ink));
    EXPECT_LE(ink.left(), 22);
}

TEST(TextLabelDrawing, UsesTheLabelsColor)
{
    PixelLabel label(QString("l"), &kLocale);
    label.setColor(Qt::red);
    const QImage image = drawn(label, QRect(20, 30, 60, 16));
    const QRect ink = inkOf(image);
    EXPECT_EQ(image.pixel(ink.center()), kRed);
}

TEST(TextLabelDrawing, AlignsAsTheOptionSays)
{
    PixelLabel label(QString("x"), &kLocale);
    const QRect rect(10, 10, 100, 60);
    const QRect ink = inkOf(drawn(label, rect, QTextOption(Qt::AlignRight | Qt::AlignBottom)));
    EXPECT_GE(ink.left(), 100);
    EXPECT_GE(ink.top(), 55);
}

TEST(TextLabelDrawing, DrawsOneLineForEachLineBreak)
{
    PixelLabel line(QString("one two"), &kLocale);
    PixelLabel lines(QString("one\ntwo"), &kLocale);
    const QRect rect(10, 10, 100, 60);
    EXPECT_LT(inkOf(drawn(line, rect)).height(), 16);
    EXPECT_GT(inkOf(drawn(lines, rect)).height(), 16);
}

TEST(TextLabelDrawing, ShortensATextThatIsTooWide)
{
    PixelLabel label(QString("a caption that is far too wide"), &kLocale);
    const QRect rect(10, 10, 50, 16);
    const QImage direct = painted([&](QPainter& painter) {
        const QString text = label.getAdjustedText(label.getText(), 50, painter);
        EXPECT_TRUE(text.endsWith(QString("...")));
        PixelLabel shortened(text, &kLocale);
        shortened.draw(painter, rect, QTextOption());
    });
    EXPECT_EQ(drawn(label, rect), direct);
}

TEST(TextLabelDrawing, AHiddenLabelDrawsNothing)
{
    PixelLabel label(QString("text"), &kLocale);
    label.setHidden(true);
    EXPECT_FALSE(inkOf(drawn(label, QRect(20, 30, 60, 16))).isValid());
}

TEST(TextLabelDrawing, AnInvalidRectangleDrawsNothing)
{
    PixelLabel label(QString("text"), &kLocale);
    EXPECT_FALSE(inkOf(drawn(label, QRect(QPoint(20, 30), QPoint(19, 50)))).isValid());
    EXPECT_FALSE(inkOf(drawn(label, QRect(QPoint(20, 30), QPoint(50, 29)))).isValid());
}

TEST(TextLabelDrawing, AFloatingRectangleWithoutAreaDrawsNothing)
{
    PieLabel label(QString("text"), &kLocale);
    const QImage image = painted([&](QPainter& painter) {
        label.draw(painter, QRectF(20, 30, 0, 16), QTextOption());
        label.draw(painter, QRectF(20, 30, 60, -1), QTextOption());
    });
    EXPECT_FALSE(inkOf(image).isValid());
}

TEST(TextLabelDrawing, BoldTextHasMoreInk)
{
    PixelLabel plain(QString("text"), &kLocale);
    PixelLabel bold(QString("text"), &kLocale);
    bold.setBold(true);
    const QRect rect(20, 30, 90, 16);
    EXPECT_GT(inkOf(drawn(bold, rect)).width(), inkOf(drawn(plain, rect)).width());
}

TEST(TextLabelDrawing, ThePainterStaysAsItWas)
{
    PixelLabel label(QString("text"), &kLocale);
    label.setBold(true);
    label.setRotated(true);
    label.setColor(Qt::red);
    (void)painted([&](QPainter& painter) {
        const QPen pen = painter.pen();
        const QFont font = painter.font();
        label.draw(painter, QRect(20, 90, 60, 16), QTextOption());
        EXPECT_EQ(painter.font(), font);
        EXPECT_EQ(painter.pen(), pen);
        EXPECT_TRUE(painter.worldTransform().isIdentity());
    });
}

TEST(TextLabelDrawing, ATurnedTextReadsUpwardFromTheTopLeftCorner)
{
    PixelLabel label(QString("Hxg"), &kLocale);
    label.setRotated(true);
    // 60 wide and 16 high: 16 columns to the right of 20, 60 rows above 90.
    const QRect ink = inkOf(drawn(label, QRect(20, 90, 60, 16)));
    EXPECT_TRUE(QRect(20, 30, 16, 60).contains(ink));
    EXPECT_GE(ink.bottom(), 87);
    EXPECT_GT(ink.height(), ink.width());
}

TEST(TextLabelDrawing, ATurnedTextIsTheUprightOneTurned)
{
    PixelLabel upright(QString("Hxg"), &kLocale);
    PixelLabel turned(QString("Hxg"), &kLocale);
    turned.setRotated(true);
    const QRect uprightInk = inkOf(drawn(upright, QRect(20, 30, 60, 16)));
    const QRect turnedInk = inkOf(drawn(turned, QRect(20, 90, 60, 16)));
    EXPECT_EQ(uprightInk.width(), turnedInk.height());
    EXPECT_EQ(uprightInk.height(), turnedInk.width());
}

TEST(TextLabelDrawing, InFractionsDrawsAtFractions)
{
    PieLabel label(QString("Hxg"), &kLocale);
    const QImage image = painted(
        [&](QPainter& painter) { label.draw(painter, QRectF(20.4, 30.4, 60, 16), QTextOption()); });
    EXPECT_TRUE(QRect(20, 30, 61, 17).contains(inkOf(image)));
}

} // namespace
} // namespace tovangl
