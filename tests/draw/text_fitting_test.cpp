// SPDX-License-Identifier: MIT
#include "draw/text_fitting.h"
#include "support/chart_font.h"

#include <QImage>
#include <QPainter>

#include <cmath>
#include <gtest/gtest.h>

namespace tovangl {
namespace cdraw {
namespace {

constexpr double kUnit = 10; // pixels

// Every character is ten pixels wide, and so is a dot of the ellipsis.
double tenPixelsEach(const QString& text)
{
    return kUnit * static_cast<double>(text.size());
}

CFittedText fitted(const char* text, double maxWidth, bool fromLeft = kFromRight,
                   bool strip = kKeepSpaces)
{
    return fitText(QString::fromUtf8(text), maxWidth, fromLeft, strip, tenPixelsEach);
}

QString stripped(const char* text, bool fromLeft, bool fromRight)
{
    QString result = QString::fromUtf8(text);
    stripWhiteSpaces(result, fromLeft, fromRight);
    return result;
}

TEST(StripWhiteSpaces, WithoutAnEndDoesNothing)
{
    EXPECT_EQ(stripped("  a b\t", false, false), QString("  a b\t"));
}

TEST(StripWhiteSpaces, FromTheLeft)
{
    EXPECT_EQ(stripped(" \t\na b \n", true, false), QString("a b \n"));
}

TEST(StripWhiteSpaces, FromTheRight)
{
    EXPECT_EQ(stripped(" \t\na b \n", false, true), QString(" \t\na b"));
}

TEST(StripWhiteSpaces, FromBothEnds)
{
    EXPECT_EQ(stripped(" \t\na b \n", true, true), QString("a b"));
}

TEST(StripWhiteSpaces, KnowsTheSpacesOfUnicode)
{
    constexpr const char* kSpaced =
        "\xe2\x80\x83\xc2\xa0x\xe3\x80\x80"; // em, no-break; ideographic
    EXPECT_EQ(stripped(kSpaced, true, true), QString("x"));
    EXPECT_EQ(stripped(kSpaced, true, false), QString::fromUtf8("x\xe3\x80\x80"));
    EXPECT_EQ(stripped(kSpaced, false, true), QString::fromUtf8("\xe2\x80\x83\xc2\xa0x"));
}

TEST(StripWhiteSpaces, OfSpacesAloneLeavesNothing)
{
    EXPECT_EQ(stripped("   ", true, false), QString());
    EXPECT_EQ(stripped("   ", false, true), QString());
    EXPECT_EQ(stripped("", true, true), QString());
}

TEST(FitText, ANegativeWidthFitsNothing)
{
    EXPECT_FALSE(fitted("", -0.5).fits);
    EXPECT_FALSE(fitted("a", -1).fits);
    EXPECT_EQ(fitted("a", -1).text, QString("a"));
}

TEST(FitText, AnEmptyTextFitsAnyOtherWidth)
{
    EXPECT_TRUE(fitted("", 0).fits);
    EXPECT_EQ(fitted("", 0).text, QString());
}

TEST(FitText, ATextAsWideAsTheRoomIsKeptWhole)
{
    EXPECT_EQ(fitted("abcde", 50).text, QString("abcde"));
    EXPECT_EQ(fitted("abcde", 49.99).text, QString("a..."));
}

TEST(FitText, CutsAtTheEnd)
{
    EXPECT_EQ(fitted("Hello world", 100).text, QString("Hello w..."));
}

TEST(FitText, CutsAtTheBeginning)
{
    EXPECT_EQ(fitted("Hello world", 80, kFromLeft).text, QString("...world"));
}

TEST(FitText, ATextOfOneCharacterCannotBeCut)
{
    EXPECT_FALSE(fitted("a", 9).fits);
    EXPECT_EQ(fitted("a", 9).text, QString("a"));
}

TEST(FitText, TheShortestResultIsOneCharacterWithTheEllipsis)
{
    EXPECT_EQ(fitted("abcdef", 40).text, QString("a..."));
    EXPECT_FALSE(fitted("abcdef", 39).fits);
}

TEST(FitText, StrippingAloneMayBeTheWholeChange)
{
    EXPECT_EQ(fitted("ab ", 20, kFromRight, kStripSpaces).text, QString("ab"));
    EXPECT_EQ(fitted("  ab", 20, kFromLeft, kStripSpaces).text, QString("ab"));
}

TEST(FitText, StripsTheEndThatIsCutOnly)
{
    EXPECT_EQ(fitted(" ab ", 30, kFromRight, kStripSpaces).text, QString(" ab"));
    EXPECT_EQ(fitted(" ab ", 30, kFromLeft, kStripSpaces).text, QString("ab "));
}

TEST(FitText, ATextThatFitsKeepsItsSpaces)
{
    EXPECT_EQ(fitted("ab ", 30, kFromRight, kStripSpaces).text, QString("ab "));
}

TEST(FitText, SpacesAloneAreStrippedToNothingThatFits)
{
    const CFittedText result = fitted("    ", 0, kFromRight, kStripSpaces);
    EXPECT_TRUE(result.fits);
    EXPECT_EQ(result.text, QString());
}

TEST(FitText, WhereNothingFitsEvenStrippedSpacesStay)
{
    const CFittedText result = fitted("abcdef  ", 30, kFromRight, kStripSpaces);
    EXPECT_FALSE(result.fits);
    EXPECT_EQ(result.text, QString("abcdef  "));
}

TEST(FitText, CutsInsideWordsAndSurrogatePairsDeliberately)
{
    const QString result = fitted("ab\xf0\x9f\x98\x80xyz", 60).text;
    EXPECT_EQ(result, QString("ab") + QChar(0xd83d) + QString("..."));
}

TEST(FitText, NegativeMeasuresCountAsNone)
{
    const auto alwaysNegative = [](const QString&) { return -5.0; };
    const CFittedText result = fitText(QString("abc"), 0, kFromRight, kKeepSpaces, alwaysNegative);
    EXPECT_TRUE(result.fits);
    EXPECT_EQ(result.text, QString("abc"));
}

TEST(FitText, NaNFitsNothing)
{
    EXPECT_FALSE(fitted("abc", NAN).fits);
    EXPECT_EQ(fitted("abc", NAN).text, QString("abc"));
}

TEST(FitText, AnInfiniteWidthFitsEverything)
{
    EXPECT_EQ(fitted("abc", INFINITY).text, QString("abc"));
}

// The painter shows the variant of a text that follows its last separator.
TEST(FitText, ALongTextIsCutToItsLastVariant)
{
    const QChar separator(0x9c);
    const auto measure = [&](const QString& text) {
        return tenPixelsEach(text.mid(text.lastIndexOf(separator) + 1));
    };
    const QString text = QString(70000, QLatin1Char('w')) + separator + QString("short");
    const CFittedText result = fitText(text, 100, kFromLeft, kKeepSpaces, measure);
    EXPECT_TRUE(result.fits);
    EXPECT_EQ(result.text, QString("...") + text.right(kLongestMeasuredText));
}

class ShortenText : public ::testing::Test
{
protected:
    ShortenText() { m_painter.setFont(chartFont("DejaVu Sans", 12)); }

    double widthOf(const QString& text)
    {
        return m_painter.boundingRect(QRectF(), 0, text).width();
    }

    QImage m_image = QImage(10, 10, QImage::Format_ARGB32);
    QPainter m_painter{&m_image};
};

TEST_F(ShortenText, KeepsATextThatIsExactlyAsWideAsTheRoom)
{
    QString text = QString("Hello world");
    EXPECT_TRUE(shortenText(text, widthOf(text), m_painter, kFromRight, kStripSpaces));
    EXPECT_EQ(text, QString("Hello world"));
}

TEST_F(ShortenText, CutsToTheCharactersThatFitWithTheEllipsis)
{
    QString text = QString("Hello world");
    const double room = widthOf(QString("Hello w")) + widthOf(QString("..."));
    EXPECT_TRUE(shortenText(text, room, m_painter, kFromRight, kStripSpaces));
    EXPECT_EQ(text, QString("Hello w..."));
}

TEST_F(ShortenText, CutsToTheLongestTailThatFits)
{
    QString text = QString("Hello world");
    const double room = widthOf(QString("world")) + widthOf(QString("..."));
    EXPECT_TRUE(shortenText(text, room, m_painter, kFromLeft, kStripSpaces));
    EXPECT_EQ(text, QString("...world"));
}

TEST_F(ShortenText, LeavesATextThatCannotFit)
{
    QString text = QString("Hello world ");
    EXPECT_FALSE(shortenText(text, 3, m_painter, kFromRight, kStripSpaces));
    EXPECT_EQ(text, QString("Hello world "));
}

TEST_F(ShortenText, CanSucceedWhereOneCharacterAndTheEllipsisFit)
{
    const QString text = QString("Hello world");
    const double room = widthOf(QString("H")) + widthOf(QString("..."));
    EXPECT_TRUE(canShortenText(text, room, m_painter, kFromRight, kStripSpaces));
    EXPECT_FALSE(canShortenText(text, room - 1, m_painter, kFromRight, kStripSpaces));
    EXPECT_FALSE(canShortenText(text, -1, m_painter, kFromRight, kStripSpaces));
    EXPECT_TRUE(canShortenText(QString(), 0, m_painter, kFromRight, kStripSpaces));
}

TEST_F(ShortenText, DropsATrailingSpaceWithoutAnEllipsis)
{
    QString text = QString("ab ");
    EXPECT_TRUE(shortenText(text, widthOf(QString("ab")), m_painter, kFromRight, kStripSpaces));
    EXPECT_EQ(text, QString("ab"));
}

TEST_F(ShortenText, ALineBreakCountsSoTheWidestLineIsTheWidth)
{
    QString text = QString("wide line\nx");
    EXPECT_TRUE(
        shortenText(text, widthOf(QString("wide line")), m_painter, kFromRight, kStripSpaces));
    EXPECT_EQ(text, QString("wide line\nx"));
}

TEST(MeasuredPart, IsTheWholeTextUpToItsBound)
{
    const QString text(kLongestMeasuredText, QLatin1Char('x'));
    EXPECT_EQ(measuredPart(text), text);
    EXPECT_EQ(measuredPart(text + QLatin1Char('y')), text);
}

} // namespace
} // namespace cdraw
} // namespace tovangl
