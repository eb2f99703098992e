// SPDX-License-Identifier: MIT
#include "support/CTestMeasurer.h"
#include "text/CTextMeasurer.h"
#include "text/qt_text.h"

#include <QImage>

#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr CTextStyle kPlain;
constexpr CTextStyle kBold{true, false};
constexpr CTextStyle kFromLeft{false, true};

class TextMeasurer : public ::testing::Test
{
protected:
    static QPainter& withFont(QPainter& painter, bool isBold)
    {
        painter.setFont(chartFont("DejaVu Sans", 12, isBold));
        return painter;
    }
    double widthOf(const QString& text, bool isBold = false)
    {
        return m_measurer.boundingRect(text, isBold).width();
    }
    // The width of the text before the ellipsis, and of that.
    double roomFor(const char* text) { return widthOf(QString(text)) + widthOf(QString("...")); }
    QString shortened(const char* text, double width, const CTextStyle& style = kPlain)
    {
        return m_measurer.shortened(QString(text), width, style);
    }
    bool canShorten(const char* text, double width)
    {
        return m_measurer.canShorten(QString(text), width, kPlain);
    }

    QImage m_image = QImage(10, 10, QImage::Format_ARGB32);
    QPainter m_painter{&m_image};
    CTextMeasurer m_measurer{withFont(m_painter, false)};
};

TEST_F(TextMeasurer, MeasuresAtTheOriginWhatThePainterDraws)
{
    for (const char* text : {"", "M", "...", "some text", "M", "..."})
        EXPECT_EQ(m_measurer.boundingRect(QString(text), false),
                  qt::measureText(m_painter, QRectF(), QString(text)))
            << text;
}

TEST_F(TextMeasurer, MeasuresOneLineForEachLineBreak)
{
    const QRectF lines = m_measurer.boundingRect(QString("one\ntwo\nthree"), false);
    const QRectF widest = m_measurer.boundingRect(QString("three"), false);
    EXPECT_EQ(lines.width(), widest.width());
    EXPECT_GT(lines.height(), 2 * widest.height());
}

TEST_F(TextMeasurer, MeasuresBoldInTheBoldFontAndLeavesThePainterAsItWas)
{
    const QFont before = m_painter.font();
    const QRectF bold = m_measurer.boundingRect(QString("text"), true);
    EXPECT_EQ(m_painter.font(), before);
    EXPECT_EQ(bold, qt::measureText(withFont(m_painter, true), QRectF(), QString("text")));
}

TEST_F(TextMeasurer, MeasuresNoMoreThanAPartOfAHugeText)
{
    const QString longest(cdraw::kLongestMeasuredText, QLatin1Char('x'));
    EXPECT_EQ(widthOf(longest + QString("more")), widthOf(longest));
}

TEST_F(TextMeasurer, MagnifiesWhatItMeasures)
{
    CTextMeasurer thrice(m_painter, 3);
    const QRectF once = m_measurer.boundingRect(QString("some text"), true);
    EXPECT_EQ(thrice.boundingRect(QString("some text"), true).size(), 3 * once.size());
    EXPECT_EQ(thrice.fontHeight(), 3 * m_measurer.fontHeight());
}

TEST_F(TextMeasurer, ShortensToTheSameWordsInAMagnifiedRoom)
{
    CTextMeasurer thrice(m_painter, 3);
    const QString text("a caption of many words");
    for (int room = 0; room < 200; ++room)
        EXPECT_EQ(thrice.shortened(text, 3 * room, kPlain),
                  m_measurer.shortened(text, room, kPlain));
}

TEST_F(TextMeasurer, AllowsForWiderLettersOnlyWhereItMagnifies)
{
    EXPECT_EQ(m_measurer.slack(100), 0);
    EXPECT_GT(CTextMeasurer(m_painter, 2).slack(100), 10);
}

TEST_F(TextMeasurer, TellsTheHeightOfALine)
{
    EXPECT_EQ(m_measurer.fontHeight(), qt::fontHeight(m_painter));
}

TEST_F(TextMeasurer, KeepsATextThatIsExactlyAsWideAsTheRoom)
{
    EXPECT_EQ(shortened("Hello world", widthOf(QString("Hello world"))), QString("Hello world"));
}

TEST_F(TextMeasurer, ShortensToTheCharactersThatFitWithTheEllipsis)
{
    EXPECT_EQ(shortened("Hello world", roomFor("Hello w")), QString("Hello w..."));
}

TEST_F(TextMeasurer, ShortensToTheLongestTailThatFitsWhereTheBeginningIsCut)
{
    EXPECT_EQ(shortened("Hello world", roomFor("world"), kFromLeft), QString("...world"));
}

TEST_F(TextMeasurer, DropsATrailingSpaceWithoutAnEllipsis)
{
    EXPECT_EQ(shortened("ab ", widthOf(QString("ab"))), QString("ab"));
}

TEST_F(TextMeasurer, TakesTheWidestLineForTheWidth)
{
    EXPECT_EQ(shortened("wide line\nx", widthOf(QString("wide line"))), QString("wide line\nx"));
}

TEST_F(TextMeasurer, LeavesATextThatCannotFit)
{
    EXPECT_EQ(shortened("Hello world ", 3), QString("Hello world "));
}

// Widths of the ellipsis and of single characters are remembered, in each weight its own.
TEST_F(TextMeasurer, ShortensBoldTextsAsInABoldFontAfterPlainOnes)
{
    CTestMeasurer inBoldFont(chartFont("DejaVu Sans", 12, true));
    const QString text = QString("MW way");
    for (double width = 10; width < widthOf(text, true); width += 0.5) {
        (void)m_measurer.shortened(text, width, kPlain);
        EXPECT_EQ(m_measurer.shortened(text, width, kBold),
                  inBoldFont.shortened(text, width, kPlain));
        EXPECT_EQ(m_measurer.canShorten(text, width, kBold),
                  inBoldFont.canShorten(text, width, kPlain));
    }
}

TEST_F(TextMeasurer, CanShortenWhereOneCharacterAndTheEllipsisFit)
{
    const double room = roomFor("H");
    EXPECT_TRUE(canShorten("Hello world", room));
    EXPECT_FALSE(canShorten("Hello world", room - 1));
    EXPECT_FALSE(canShorten("Hello world", -1));
    EXPECT_TRUE(canShorten("", 0));
}

} // namespace
} // namespace tovangl
