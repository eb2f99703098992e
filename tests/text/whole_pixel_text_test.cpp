// SPDX-License-Identifier: MIT
// Whole-pixel texts held against the painter of a Qt that rounds by itself.
#include "support/CDice.h"
#include "support/chart_font.h"
#include "support/pixels.h"
#include "text/whole_pixel_text.h"

#include <QFont>
#include <QTextOption>
#include <QTransform>

#include <gtest/gtest.h>
#include <vector>

namespace tovangl {
namespace qt {
namespace {

constexpr int kImageSide = 160; // pixels

using Alphabet = std::vector<QString>;

const Alphabet& textPieces()
{
    static const Alphabet pieces = {
        "word",
        "W",
        "AV",
        "fi",
        ".",
        " ",
        "  ",
        "-",
        "\n",
        "\t",
        "\r",
        "\u2028",
        "\u2029",
        "\u00ad",
        "\u009c",
        "longer",
        "&amp;",
        "e\u0301",
        "\u0645\u0631\u062d\u0628",
        "\u05d0\u05d1",
        "\u0915\u093f",
        "\U0001F600",
        "12",
        "\ufffc",
        "g\u0323",
    };
    return pieces;
}

const Alphabet& rightToLeftPieces()
{
    static const Alphabet pieces = {
        "\u05d0\u05d1\u05d2",
        "\u0645\u0631\u062d\u0628",
        " ",
        "   ",
        "\u00a0",
        "\u2003",
        "\u05d0",
        "ab",
        "12",
        "(",
        ".",
        "\n",
        "\u200f",
        "\u200e",
        "\u202e",
        "\u202c",
        "\u064e",
        "\u009c",
    };
    return pieces;
}

// Draws reproducible fonts, texts, rectangles and options.
class CCases : public CDice
{
public:
    using CDice::CDice;

    QFont font()
    {
        const char* const family = roll(0, 1) ? "Tahoma" : "DejaVu Sans";
        const int pixelSize = roll(5, 40);
        return chartFont(family, pixelSize, roll(0, 3) == 0);
    }

    QString text(const Alphabet& pieces, int mostPieces)
    {
        const int last = static_cast<int>(pieces.size()) - 1;
        QString result;
        for (int count = roll(0, mostPieces); count > 0; --count)
            result += pieces[static_cast<std::size_t>(roll(0, last))];
        return result;
    }

    QRectF rect()
    {
        const double fraction = roll(0, 2) == 0 ? 0.25 * roll(0, 3) : 0;
        return QRectF(roll(-20, 80) + fraction, roll(-20, 80) + fraction, roll(1, 140) + fraction,
                      roll(1, 90) + fraction);
    }

    QTextOption option()
    {
        const Qt::Alignment across[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
        const Qt::Alignment along[] = {Qt::AlignTop, Qt::AlignBottom, Qt::AlignVCenter,
                                       Qt::Alignment()};
        // A direction is fixed by the constructor that takes an alignment, and found in the text
        // after the other one.
        const Qt::Alignment alignment = across[roll(0, 2)] | along[roll(0, 3)];
        QTextOption option = roll(0, 1) ? QTextOption() : QTextOption(alignment);
        option.setAlignment(alignment);
        if (roll(0, 2) == 0)
            option.setWrapMode(QTextOption::NoWrap);
        return option;
    }
};

template <typename Paint>
QImage paintedIn(const QFont& font, const Paint& paint)
{
    return painted(kImageSide, kImageSide, [&](QPainter& painter) {
        painter.setFont(font);
        painter.setRenderHint(QPainter::Antialiasing, true);
        paint(painter);
    });
}

std::string described(const QString& text, const QFont& font)
{
    std::string result = font.toString().toStdString() + ':';
    for (const QChar unit : text)
        result += unit.unicode() >= 0x20 && unit.unicode() < 0x7f
                      ? std::string(1, unit.toLatin1())
                      : " u" + QString::number(unit.unicode(), 16).toStdString() + ' ';
    return result;
}

void expectEqualPicture(CCases& cases, const Alphabet& pieces, int mostPieces,
                        const QTransform& transform = QTransform())
{
    const QFont font = cases.font();
    const QString text = cases.text(pieces, mostPieces);
    const QRectF rect = cases.rect();
    const QTextOption option = cases.option();
    const QImage own = paintedIn(font, [&](QPainter& painter) {
        painter.setTransform(transform);
        drawWholePixelText(painter, rect, text, option);
    });
    const QImage painters = paintedIn(font, [&](QPainter& painter) {
        painter.setTransform(transform);
        painter.drawText(rect, text, option);
    });
    EXPECT_EQ(own, painters) << described(text, font) << " in " << rect.x() << ' ' << rect.y()
                             << ' ' << rect.width() << ' ' << rect.height() << " aligned "
                             << int(option.alignment()) << " wrap " << option.wrapMode();
}

TEST(WholePixelText, MeasuresInFractionsAsThePainterDoes)
{
    CCases cases(1);
    QImage image(10, 10, QImage::Format_ARGB32);
    QPainter painter(&image);
    for (int round = 0; round < 3000; ++round) {
        painter.setFont(cases.font());
        const QString text = cases.text(textPieces(), 8);
        EXPECT_EQ(measureWholePixelText(painter, QRectF(), text),
                  painter.boundingRect(QRectF(), 0, text))
            << described(text, painter.font());
    }
}

TEST(WholePixelText, MeasuresInPixelsAsThePainterDoes)
{
    CCases cases(2);
    QImage image(10, 10, QImage::Format_ARGB32);
    QPainter painter(&image);
    for (int round = 0; round < 3000; ++round) {
        painter.setFont(cases.font());
        const QString text = cases.text(textPieces(), 8);
        EXPECT_EQ(measureWholePixelText(painter, QRectF(QRect()), text).toAlignedRect(),
                  painter.boundingRect(QRect(), 0, text))
            << described(text, painter.font());
    }
}

TEST(WholePixelText, KnowsTheHeightOfAFont)
{
    CCases cases(3);
    QImage image(10, 10, QImage::Format_ARGB32);
    QPainter painter(&image);
    for (int round = 0; round < 300; ++round) {
        painter.setFont(cases.font());
        EXPECT_EQ(wholePixelFontHeight(painter), painter.fontMetrics().height());
    }
}

TEST(WholePixelText, DrawsShortTextsAsThePainterDoes)
{
    CCases cases(4);
    for (int round = 0; round < 3000; ++round)
        expectEqualPicture(cases, textPieces(), 2);
}

TEST(WholePixelText, DrawsLongTextsAsThePainterDoes)
{
    CCases cases(5);
    for (int round = 0; round < 3000; ++round)
        expectEqualPicture(cases, textPieces(), 12);
}

TEST(WholePixelText, DrawsTextsFromRightToLeftAsThePainterDoes)
{
    CCases cases(6);
    for (int round = 0; round < 3000; ++round)
        expectEqualPicture(cases, rightToLeftPieces(), 12);
}

TEST(WholePixelText, DrawsTranslatedTextsAsThePainterDoes)
{
    CCases cases(8);
    for (int round = 0; round < 3000; ++round) {
        const double fraction = cases.roll(0, 9) / 10.0;
        expectEqualPicture(cases, textPieces(), 12, QTransform::fromTranslate(fraction, 0.5));
    }
}

TEST(WholePixelText, DrawsTextsThatAreReadUpwardAsThePainterDoes)
{
    CCases cases(9);
    for (int round = 0; round < 1000; ++round) {
        QTransform transform = QTransform::fromTranslate(cases.roll(0, 9) / 10.0, kImageSide);
        expectEqualPicture(cases, textPieces(), 12, transform.rotate(-90));
    }
}

TEST(WholePixelText, AnEmptyVariantEndsTheDrawingDeliberately)
{
    const QFont font = CCases(7).font();
    const QRectF rect(0, 0, 100, 100);
    const QImage blank = paintedIn(font, [](QPainter&) {});
    const QImage own = paintedIn(font, [&](QPainter& painter) {
        drawWholePixelText(painter, rect, QString("\u009cshown?"), QTextOption());
    });
    EXPECT_EQ(own, blank);
}

} // namespace
} // namespace qt
} // namespace tovangl
