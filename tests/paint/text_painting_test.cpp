// SPDX-License-Identifier: MIT
// What a text puts on the picture.
#include "layout/CPlacedText.h"
#include "paint/text_painting.h"
#include "support/chart_font.h"
#include "support/pixels.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

namespace tovangl {
namespace {

CPlacedText textIn(const QRectF& room, const char* text = "Hxg")
{
    CPlacedText placed;
    placed.text = QString::fromUtf8(text);
    placed.room = room;
    placed.color = Qt::black;
    return placed;
}

CPlacedText turned(CPlacedText text)
{
    text.isTurned = true;
    return text;
}

QImage drawn(const CPlacedText& text)
{
    return painted(120, 120, [&text](QPainter& painter) {
        painter.setFont(chartFont("DejaVu Sans", 12));
        paintText(painter, text);
    });
}

QRect inkOfText(const CPlacedText& text)
{
    return inkOf(drawn(text));
}

TEST(TextPainting, DrawsTheTextInItsRoom)
{
    const QRect ink = inkOfText(textIn(QRect(20, 30, 60, 16)));
    EXPECT_TRUE(ink.isValid());
    EXPECT_TRUE(QRect(20, 30, 60, 16).contains(ink));
    EXPECT_LE(ink.left(), 22);
}

TEST(TextPainting, CountsTheRoomFromItsOrigin)
{
    CPlacedText moved = textIn(QRectF(5, 10, 60, 16));
    moved.origin = QPointF(15, 20);
    EXPECT_EQ(drawn(moved), drawn(textIn(QRectF(20, 30, 60, 16))));
}

TEST(TextPainting, UsesTheTextsColour)
{
    CPlacedText text = textIn(QRectF(20, 30, 60, 16), "l");
    text.color = Qt::red;
    const QImage image = drawn(text);
    EXPECT_EQ(image.pixel(inkOf(image).center()), kRedPixel);
}

TEST(TextPainting, AlignsTheTextInItsRoom)
{
    CPlacedText text = textIn(QRectF(10, 10, 100, 60), "x");
    text.alignment = Qt::AlignRight | Qt::AlignBottom;
    const QRect ink = inkOfText(text);
    EXPECT_GE(ink.left(), 100);
    EXPECT_GE(ink.top(), 55);
}

TEST(TextPainting, TakesTheDirectionOfReadingFromTheTextAndNotFromTheHost)
{
    const CPlacedText text = textIn(QRectF(10, 10, 100, 20), "ab.");
    const QImage expected = drawn(text);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const QImage ofHost = drawn(text);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    EXPECT_EQ(ofHost, expected);
}

TEST(TextPainting, WrapsWordsThatHaveNoRoomInOneLine)
{
    EXPECT_LT(inkOfText(textIn(QRectF(10, 10, 100, 60), "one two")).height(), 16);
    EXPECT_GT(inkOfText(textIn(QRectF(10, 10, 40, 60), "one two")).height(), 16);
}

// Where there is slack, a text that is wider than its room stays one line, at its place.
TEST(TextPainting, PaintsBeyondTheRoomIntoTheSlack)
{
    for (const Qt::Alignment alignment : {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight}) {
        CPlacedText text = textIn(QRectF(40, 30, 24, 16), "xx xx");
        text.alignment = alignment;
        text.slack = 20;
        CPlacedText roomy = text;
        roomy.slack = 60;
        EXPECT_EQ(drawn(text), drawn(roomy));
        EXPECT_GT(inkOfText(text).width(), 24);
        EXPECT_LT(inkOfText(text).height(), 16);
    }
}

TEST(TextPainting, TurnsTextsWithSlackAroundTheSameCorner)
{
    for (const Qt::Alignment alignment : {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight}) {
        CPlacedText text = turned(textIn(QRectF(40, 80, 60, 16)));
        text.alignment = alignment;
        CPlacedText slack = text;
        slack.slack = 20;
        EXPECT_EQ(drawn(text), drawn(slack));
    }
}

TEST(TextPainting, DrawsOneLineForEachLineBreak)
{
    EXPECT_GT(inkOfText(textIn(QRectF(10, 10, 100, 60), "one\ntwo")).height(), 16);
}

TEST(TextPainting, BoldTextHasMoreInk)
{
    CPlacedText text = textIn(QRectF(20, 30, 90, 16), "text");
    const int plain = inkOfText(text).width();
    text.isBold = true;
    EXPECT_GT(inkOfText(text).width(), plain);
}

TEST(TextPainting, LeavesThePainterAsItWas)
{
    CPlacedText text = turned(textIn(QRectF(20, 90, 60, 16)));
    text.isBold = true;
    text.color = Qt::red;
    text.origin = QPointF(3, 4);
    (void)painted(120, 120, [&text](QPainter& painter) {
        painter.setFont(chartFont("DejaVu Sans", 12));
        const QPen pen = painter.pen();
        const QFont font = painter.font();
        paintText(painter, text);
        EXPECT_EQ(painter.font(), font);
        EXPECT_EQ(painter.pen(), pen);
        EXPECT_TRUE(painter.worldTransform().isIdentity());
    });
}

TEST(TextPainting, ATurnedTextReadsUpwardFromTheTopLeftCorner)
{
    // 60 wide and 16 high: 16 columns to the right of 20, 60 rows above 90.
    const QRect ink = inkOfText(turned(textIn(QRectF(20, 90, 60, 16))));
    EXPECT_TRUE(QRect(20, 30, 16, 60).contains(ink));
    EXPECT_GE(ink.bottom(), 87);
    EXPECT_GT(ink.height(), ink.width());
}

TEST(TextPainting, ATurnedTextIsTheUprightOneTurned)
{
    const QRect upright = inkOfText(textIn(QRectF(20, 30, 60, 16)));
    EXPECT_EQ(inkOfText(turned(textIn(QRectF(20, 90, 60, 16)))).size(),
              upright.size().transposed());
}

TEST(TextPainting, StartsAtFractionsOfPixels)
{
    const QRect ink = inkOfText(textIn(QRectF(20.4, 30.4, 60, 16)));
    EXPECT_TRUE(QRect(20, 30, 61, 17).contains(ink));
}

} // namespace
} // namespace tovangl
