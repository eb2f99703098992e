// SPDX-License-Identifier: MIT
#include "text/text_fitting.h"

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
    return shortenText(QString::fromUtf8(text), maxWidth, fromLeft, strip, tenPixelsEach);
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

TEST(ShortenText, ANegativeWidthFitsNothing)
{
    EXPECT_FALSE(fitted("", -0.5).fits);
    EXPECT_FALSE(fitted("a", -1).fits);
    EXPECT_EQ(fitted("a", -1).text, QString("a"));
}

TEST(ShortenText, AnEmptyTextFitsAnyOtherWidth)
{
    EXPECT_TRUE(fitted("", 0).fits);
    EXPECT_EQ(fitted("", 0).text, QString());
}

TEST(ShortenText, ATextAsWideAsTheRoomIsKeptWhole)
{
    EXPECT_EQ(fitted("abcde", 50).text, QString("abcde"));
    EXPECT_EQ(fitted("abcde", 49.99).text, QString("a..."));
}

TEST(ShortenText, CutsAtTheEnd)
{
    EXPECT_EQ(fitted("Hello world", 100).text, QString("Hello w..."));
}

TEST(ShortenText, CutsAtTheBeginning)
{
    EXPECT_EQ(fitted("Hello world", 80, kFromLeft).text, QString("...world"));
}

TEST(ShortenText, ATextOfOneCharacterCannotBeCut)
{
    EXPECT_FALSE(fitted("a", 9).fits);
    EXPECT_EQ(fitted("a", 9).text, QString("a"));
}

TEST(ShortenText, TheShortestResultIsOneCharacterWithTheEllipsis)
{
    EXPECT_EQ(fitted("abcdef", 40).text, QString("a..."));
    EXPECT_FALSE(fitted("abcdef", 39).fits);
}

TEST(ShortenText, StrippingAloneMayBeTheWholeChange)
{
    EXPECT_EQ(fitted("ab ", 20, kFromRight, kStripSpaces).text, QString("ab"));
    EXPECT_EQ(fitted("  ab", 20, kFromLeft, kStripSpaces).text, QString("ab"));
}

TEST(ShortenText, StripsTheEndThatIsCutOnly)
{
    EXPECT_EQ(fitted(" ab ", 30, kFromRight, kStripSpaces).text, QString(" ab"));
    EXPECT_EQ(fitted(" ab ", 30, kFromLeft, kStripSpaces).text, QString("ab "));
}

TEST(ShortenText, ATextThatFitsKeepsItsSpaces)
{
    EXPECT_EQ(fitted("ab ", 30, kFromRight, kStripSpaces).text, QString("ab "));
}

TEST(ShortenText, SpacesAloneAreStrippedToNothingThatFits)
{
    const CFittedText result = fitted("    ", 0, kFromRight, kStripSpaces);
    EXPECT_TRUE(result.fits);
    EXPECT_EQ(result.text, QString());
}

TEST(ShortenText, WhereNothingFitsEvenStrippedSpacesStay)
{
    const CFittedText result = fitted("abcdef  ", 30, kFromRight, kStripSpaces);
    EXPECT_FALSE(result.fits);
    EXPECT_EQ(result.text, QString("abcdef  "));
}

TEST(ShortenText, CutsInsideWordsAndSurrogatePairsDeliberately)
{
    const QString result = fitted("ab\xf0\x9f\x98\x80xyz", 60).text;
    EXPECT_EQ(result, QString("ab") + QChar(0xd83d) + QString("..."));
}

TEST(ShortenText, NegativeMeasuresCountAsNone)
{
    const auto alwaysNegative = [](const QString&) { return -5.0; };
    const CFittedText result =
        shortenText(QString("abc"), 0, kFromRight, kKeepSpaces, alwaysNegative);
    EXPECT_TRUE(result.fits);
    EXPECT_EQ(result.text, QString("abc"));
}

TEST(ShortenText, NaNFitsNothing)
{
    EXPECT_FALSE(fitted("abc", NAN).fits);
    EXPECT_EQ(fitted("abc", NAN).text, QString("abc"));
}

TEST(ShortenText, AnInfiniteWidthFitsEverything)
{
    EXPECT_EQ(fitted("abc", INFINITY).text, QString("abc"));
}

// The painter shows the variant of a text that follows its last separator.
TEST(ShortenText, ALongTextIsCutToItsLastVariant)
{
    const QChar separator(0x9c);
    const auto measure = [&](const QString& text) {
        return tenPixelsEach(text.mid(text.lastIndexOf(separator) + 1));
    };
    const QString text = QString(70000, QLatin1Char('w')) + separator + QString("short");
    const CFittedText result = shortenText(text, 100, kFromLeft, kKeepSpaces, measure);
    EXPECT_TRUE(result.fits);
    EXPECT_EQ(result.text, QString("...") + text.right(kLongestMeasuredText));
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
