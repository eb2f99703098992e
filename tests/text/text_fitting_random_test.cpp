// SPDX-License-Identifier: MIT
// The fast text fitting held against the plain one, on seeded random texts.
#include "support/CDice.h"
#include "support/chart_font.h"
#include "text/plain_text_fitting.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>
#include <vector>

namespace tovangl {
namespace cdraw {
namespace {

constexpr int kVariantSeparator = 0x9c;

using Alphabet = std::vector<QString>;

Alphabet pieces(std::initializer_list<const char*> texts)
{
    Alphabet alphabet;
    for (const char* text : texts)
        alphabet.push_back(QString::fromUtf8(text));
    return alphabet;
}

// Draws reproducible texts, rooms and flags.
class CCases : public CDice
{
public:
    using CDice::CDice;

    int upTo(int most) { return roll(0, most); }
    bool coin() { return upTo(1) == 1; }

    QString text(const Alphabet& alphabet, int mostPieces)
    {
        QString result;
        for (int count = upTo(mostPieces); count > 0; --count)
            result +=
                alphabet[static_cast<std::size_t>(upTo(static_cast<int>(alphabet.size()) - 1))];
        return result;
    }

    // Often exactly the width of some cut, where one pixel decides.
    double room(const QString& text, const TextMeasure& measure)
    {
        const double ellipsis = coin() ? measure(QString("...")) : 0;
        const QString part = coin() ? text.left(upTo(static_cast<int>(text.size())))
                                    : text.right(upTo(static_cast<int>(text.size())));
        const double nudge[] = {0, 0, -0.25, 0.25, -3, 7};
        return measure(part) + ellipsis + nudge[upTo(5)];
    }
};

std::string shown(const QString& text)
{
    return QString(text).replace(QChar(kVariantSeparator), QLatin1Char('|')).toStdString();
}

void compareOnce(CCases& cases, const QString& text, const TextMeasure& measure)
{
    const double room = cases.room(text, measure);
    const bool fromLeft = cases.coin();
    const bool strip = cases.coin();
    const CFittedText plain = plainlyShortenText(text, room, fromLeft, strip, measure);
    const CFittedText fast = shortenText(text, room, fromLeft, strip, measure);
    ASSERT_EQ(fast.fits, plain.fits) << shown(text) << " into " << room;
    ASSERT_EQ(canShortenText(text, room, fromLeft, strip, measure), plain.fits)
        << shown(text) << " into " << room;
    ASSERT_EQ(shown(fast.text), shown(plain.text)) << shown(text) << " into " << room;
}

void compare(const Alphabet& alphabet, int mostPieces, int rounds, const TextMeasure& measure)
{
    CCases cases(static_cast<unsigned>(alphabet.size() * 1000) + static_cast<unsigned>(mostPieces));
    for (int round = 0; round < rounds && !::testing::Test::HasFatalFailure(); ++round)
        compareOnce(cases, cases.text(alphabet, mostPieces), measure);
}

// --- measuring functions that behave like fonts

double ownWidth(QChar character)
{
    return character.isSpace() ? 3 : 2 + character.unicode() % 9;
}

double fixedPitch(const QString& text)
{
    return 7.5 * static_cast<double>(text.size());
}

double proportional(const QString& text)
{
    double width = 0;
    for (const QChar character : text)
        width += ownWidth(character);
    return width;
}

// Pairs stand closer together, by up to four fifths of a pixel.
double kerned(const QString& text)
{
    double width = proportional(text);
    for (int i = 1; i < text.size(); ++i)
        width -= 0.2 * ((text.at(i).unicode() + text.at(i - 1).unicode()) % 5);
    return width;
}

// The last letter has a wide final form, which it loses when another letter follows.
double joined(const QString& text)
{
    const bool endsInLetter = !text.isEmpty() && text.at(text.size() - 1).isLetter();
    return proportional(text) + (endsInLetter ? 9 : 0);
}

// Vowel signs have no width.
double withMarks(const QString& text)
{
    double width = 0;
    for (const QChar character : text)
        width += character.isMark() ? 0 : ownWidth(character);
    return width;
}

double widestLine(const QString& text)
{
    double width = 0;
    for (const QString& line : text.split(QLatin1Char('\n')))
        width = std::max(width, proportional(line));
    return width;
}

double lastVariant(const QString& text)
{
    return proportional(text.mid(text.lastIndexOf(QChar(kVariantSeparator)) + 1));
}

const Alphabet kLatin = pieces({"a", "b", "i", "W", "A", "V", "f", "l", "Tor", " ", "  ", "x y"});

TEST(ShortenTextAgainstPlain, FixedPitch)
{
    compare(kLatin, 30, 4000, fixedPitch);
}

TEST(ShortenTextAgainstPlain, Proportional)
{
    compare(kLatin, 60, 4000, proportional);
}

TEST(ShortenTextAgainstPlain, Kerned)
{
    compare(kLatin, 60, 4000, kerned);
}

TEST(ShortenTextAgainstPlain, FinalFormsWiderThanMedialOnes)
{
    compare(kLatin, 60, 4000, joined);
}

TEST(ShortenTextAgainstPlain, CharactersWithoutWidth)
{
    const Alphabet alphabet = pieces({"a", "W", " ", "\xcc\x81", "\xcc\x82\xcc\x83", "\xcd\xa1"});
    compare(alphabet, 60, 4000, withMarks);
}

TEST(ShortenTextAgainstPlain, SeveralLines)
{
    compare(pieces({"a", "W", " ", "\n", "\n\n", "line"}), 40, 4000, widestLine);
}

TEST(ShortenTextAgainstPlain, SeveralVariants)
{
    compare(pieces({"a", "W", " ", "\xc2\x9c", "\xc2\x9c\xc2\x9c", "variant"}), 40, 4000,
            lastVariant);
}

TEST(ShortenTextAgainstPlain, LongTexts)
{
    compare(kLatin, 2000, 40, kerned);
    compare(pieces({"a", "W", " ", "\xcc\x81", "\n", "line"}), 2000, 25, widestLine);
}

TEST(ShortenTextAgainstPlain, LongTextsOfSeveralVariants)
{
    compare(pieces({"line of text ", "\xc2\x9c", "W"}), 900, 100, lastVariant);
}

TEST(ShortenTextAgainstPlain, LongRunsWithoutWidth)
{
    const Alphabet runs = {QString("W"), QString(300, QChar(0x301)), QString(40, QChar(0x302))};
    compare(runs, 8, 400, withMarks);
}

// --- the painter's own fonts

struct CFontCase
{
    const char* family;
    int pixelSize;
    bool isBold;
};

void PrintTo(const CFontCase& font, std::ostream* stream)
{
    *stream << font.family << ' ' << font.pixelSize << (font.isBold ? " bold" : "");
}

class ShortenTextOverThePainter : public ::testing::TestWithParam<CFontCase>
{
protected:
    ShortenTextOverThePainter()
    {
        m_painter.setFont(chartFont(GetParam().family, GetParam().pixelSize, GetParam().isBold));
    }

    void compareTexts(const Alphabet& alphabet, int mostPieces)
    {
        compare(alphabet, mostPieces, 250, [this](const QString& text) {
            return m_painter.boundingRect(QRectF(), 0, text).width();
        });
    }

    QImage m_image = QImage(10, 10, QImage::Format_ARGB32);
    QPainter m_painter{&m_image};
};

TEST_P(ShortenTextOverThePainter, LatinWithKerning)
{
    compareTexts(pieces({"AV", "To", "Yo", "LT", "f", "fi", "ffl", "W", ".", " ", "1", "ij"}), 25);
}

TEST_P(ShortenTextOverThePainter, ArabicWithJoining)
{
    compareTexts(pieces({"\u0628", "\u0644", "\u0627", "\u0644\u0627", "\u0644\u0644\u0647",
                         "\u064a", "\u0633", "\u0631", "\u064e", " ", "\u0640", "\u200d", "12"}),
                 25);
}

TEST_P(ShortenTextOverThePainter, Devanagari)
{
    compareTexts(pieces({"\u0915", "\u094d", "\u0937", "\u093f", "\u0930\u094d",
                         "\u0915\u094d\u0937", "\u0940", "\u0902", "\u200c", " "}),
                 25);
}

TEST_P(ShortenTextOverThePainter, CombiningMarks)
{
    compareTexts(pieces({"e", "i", "W", "\u0301", "\u0308", "\u0323", "\u0361", "\u20dd", " "}),
                 30);
}

TEST_P(ShortenTextOverThePainter, Emoji)
{
    compareTexts(pieces({"\U0001F600", "\U0001F468", "\u200d", "\U0001F469", "\ufe0f", "\u2764",
                         "\U0001F1E9", "\U0001F1EA", "\U0001F3FD", "x", " "}),
                 15);
}

TEST_P(ShortenTextOverThePainter, BothDirectionsInOneText)
{
    compareTexts(pieces({"abc", "\u05d0\u05d1", "\u0627\u0628", "12", " ", "(", ")", "\u202e",
                         "\u202c", "\u200f", "-"}),
                 20);
}

TEST_P(ShortenTextOverThePainter, LineBreaksTabsAndControlCharacters)
{
    compareTexts(pieces({"word", "W", "\n", "\r", "\t", "\u2028", "\u2029", "\u00ad", "\u0001",
                         "\ufffc", "&", " "}),
                 20);
}

TEST_P(ShortenTextOverThePainter, VariantsOfDifferentLengths)
{
    compareTexts(pieces({"long variant", "short", "W", "\u009c", " ", "\n"}), 12);
}

INSTANTIATE_TEST_SUITE_P(ShortenText, ShortenTextOverThePainter,
                         ::testing::Values(CFontCase{"Tahoma", 11, false},
                                           CFontCase{"Tahoma", 33, true},
                                           CFontCase{"DejaVu Sans", 12, false},
                                           CFontCase{"DejaVu Sans", 7, true}));

} // namespace
} // namespace cdraw
} // namespace tovangl
