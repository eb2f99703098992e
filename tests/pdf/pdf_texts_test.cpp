// SPDX-License-Identifier: MIT
#include "pdf/pdf_reader.h"
#include "support/CAnyChart.h"

#include <QRect>
#include <QString>

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

constexpr int kWidth = 400; // points
constexpr int kHeight = 300;
constexpr int kFactor = 4; // pixels to a point

CAnyChart bars(const std::string& caption)
{
    CAnyChart chart(ChartKind::HorizontalBars);
    chart.graph().setFont("DejaVu Sans", 11);
    chart.addItem(1234, caption);
    return chart;
}

std::string textOf(CAnyChart& chart)
{
    return textOfPdf(chart.createPdf(kWidth, kHeight).bytes());
}

TEST(PdfTexts, TitleCaptionsAndNumbersAreFound)
{
    CAnyChart chart = bars("Rent & \"me\" (a)");
    chart.graph().setLocale("en", "us");
    chart.graph().setTitle("What we spend");
    const std::string text = textOf(chart);
    EXPECT_THAT(text, HasSubstr("What we spend"));
    EXPECT_THAT(text, HasSubstr("Rent & \"me\" (a)"));
    EXPECT_THAT(text, HasSubstr("1,234"));
}

class PdfTextInScripts : public testing::TestWithParam<const char*>
{};

TEST_P(PdfTextInScripts, IsFoundAsItWasGiven)
{
    CAnyChart chart = bars(GetParam());
    EXPECT_THAT(textOf(chart), HasSubstr(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Captions, PdfTextInScripts,
                         testing::Values("Größe", "Αθήνα", "Москва", "office fi ffl",
                                         "a\u0331\u0308b", "日本語", "हिन्दी", "العربية", "שלום",
                                         "1\u20442", "\U0001f600 face", "a\u2010b-c\u2011d",
                                         "\uab53 in no font"));

// One glyph for two letters, and brackets that look the other way.
INSTANTIATE_TEST_SUITE_P(FromRightToLeft, PdfTextInScripts,
                         testing::Values("سلام", "لا", "الإسلام", "الآن", "كلأ لأ", "لا (الآن)",
                                         "[שלום] (לא)"));

// Marks have places of their own, or one glyph with each other.
INSTANTIATE_TEST_SUITE_P(FromRightToLeftWithMarks, PdfTextInScripts,
                         testing::Values("שָׁלוֹם", "שָׁלוֹם עולם", "עִבְרִית (בדיקה)", "السَّلَامُ", "مُحَمَّد",
                                         "لِلْعَرَبِيَّةِ", "شُكْرًا"));

// Each caption has one word from right to left, which ends in a mark, among others of no or of the
// other direction.
TEST(PdfTexts, AMarkAtTheEndStaysWithItsWordAmongOthersOfTheOtherDirection)
{
    for (const char* caption : {"abc שָׁלָ", "שָׁלָ abc", "abc שָׁלָ def", "12 שָׁלָ", "שָׁלָ 12", "שָׁלָ\ufeff"}) {
        CAnyChart chart = bars(caption);
        EXPECT_THAT(textOf(chart), HasSubstr("שָׁלָ")) << caption;
    }
    CAnyChart pie(ChartKind::Pie);
    pie.graph().setFont("DejaVu Sans", 11);
    pie.addItem(1234, "שָׁלָ");
    EXPECT_THAT(textOf(pie), HasSubstr("שָׁלָ"));
}

// Where glyphs do not tell the letters, a text is there a second time, and can only be marked as a
// whole. The third caption has two letters that share a glyph.
TEST(PdfTexts, LettersAreToldByTheirGlyphsInScriptsThatJoinThem)
{
    for (const char* caption : {"Größe", "العربية", "سلام", "שלום", "مُحَمَّد"}) {
        CAnyChart chart = bars(caption);
        EXPECT_THAT(readPdf(chart.createPdf(kWidth, kHeight).bytes(), "qpdf --qdf picture.pdf -"),
                    Not(HasSubstr("ActualText")))
            << caption;
    }
}

TEST(PdfTexts, AFileIsWholeWhereAFontHasNoRoomForAllLettersWithMarks)
{
    QString caption;
    for (int i = 0; i < 20; ++i)
        caption += QStringLiteral("שָׁלוֹם");
    constexpr int kLettersWithRoom = 32767;
    CAnyChart chart(ChartKind::HorizontalBars);
    chart.graph().setFont("DejaVu Sans", 11);
    for (int letters = 0; letters <= kLettersWithRoom; letters += static_cast<int>(caption.size()))
        chart.addItem(1, caption.toStdString());
    const std::string pdf = chart.createPdf(3000, 5000).bytes();
    EXPECT_NO_THROW(static_cast<void>(readPdf(pdf, "qpdf --check picture.pdf")));
    EXPECT_THAT(readPdf(pdf, "qpdf --qdf picture.pdf -"), HasSubstr("ActualText"));
}

// Cyrillic, eight letters a caption.
TEST(PdfTexts, MoreThanAHundredLettersOfAFontAreFound)
{
    constexpr ushort kFirst = 0x0400;
    constexpr ushort kEnd = 0x0480;
    constexpr ushort kLetters = 8;
    std::vector<std::string> captions;
    for (ushort first = kFirst; first < kEnd; first += kLetters) {
        QString caption;
        for (ushort unit = first; unit < first + kLetters; ++unit)
            caption += QChar(unit);
        captions.push_back(caption.toStdString());
    }
    CAnyChart chart(ChartKind::HorizontalBars);
    chart.graph().setFont("DejaVu Sans", 11);
    for (const std::string& caption : captions)
        chart.addItem(1, caption);
    const std::string text = textOf(chart);
    for (const std::string& caption : captions)
        EXPECT_THAT(text, HasSubstr(caption));
}

TEST(PdfTexts, CaptionsOfBarsThatReadUpwardAreFound)
{
    CAnyChart chart(ChartKind::VerticalBars);
    for (int i = 0; i < 30; ++i)
        chart.addItem(i + 1, "upward");
    EXPECT_THAT(textOf(chart), HasSubstr("upward"));
}

TEST(PdfTexts, AShortenedCaptionIsFoundAsItIsShown)
{
    CAnyChart chart(ChartKind::Pie);
    chart.addItem(1, std::string(200, 'm'));
    const std::string text = textOf(chart);
    EXPECT_THAT(text, ContainsRegex("mm\\.\\.\\."));
    EXPECT_THAT(text, Not(HasSubstr(std::string(200, 'm'))));
}

TEST(PdfTexts, WordsStandInTheRectanglesThatTheChartTells)
{
    CAnyChart chart(ChartKind::Pie);
    for (const char* caption : {"Wave", "fjord", "Iliad", "MMM"})
        chart.addItem(10, caption);
    const auto words = wordBoxesOfPdf(chart.createPdf(kWidth, kHeight).bytes(), kFactor);
    constexpr int kMargin = 3; // of the boxes, and one for the letters' sides
    for (const Rectangle& caption : chart.itemRectangles()) {
        const QRect room(caption.x, caption.y, caption.width, caption.height);
        EXPECT_TRUE(std::any_of(words.begin(), words.end(), [&](const QRect& word) {
            return room.left() - kMargin <= word.left() && word.right() <= room.right() + kMargin &&
                   word.intersects(room);
        }));
    }
}

TEST(PdfTexts, EveryFontIsPartOfTheFileWithItsCharacters)
{
    CAnyChart chart = bars("office");
    chart.graph().setTitle("bold");
    const std::string list =
        readPdf(chart.createPdf(kWidth, kHeight).bytes(), "pdffonts picture.pdf | tail -n +3");
    EXPECT_THAT(list, ContainsRegex("\\+DejaVuSans +CID TrueType +Identity-H +yes yes yes"));
    EXPECT_THAT(list, ContainsRegex("\\+DejaVuSans-?Bold +CID TrueType +Identity-H +yes yes yes"));
}

TEST(PdfTexts, AFileHoldsTheLettersThatItShowsAndNoOthers)
{
    CAnyChart few = bars("aaaaaaaa");
    CAnyChart many = bars("abcdegkq");
    constexpr int kLetters = 7;
    constexpr int kLeastLetter = 60; // bytes of an outline
    EXPECT_LT(few.createPdf(kWidth, kHeight).size + kLetters * kLeastLetter,
              many.createPdf(kWidth, kHeight).size);
}

TEST(PdfTexts, NothingThatACaptionHoldsBecomesPartOfThePage)
{
    CAnyChart chart = bars(") Tj ET Q 1 0 0 rg 0 0 9999 9999 re f >> endstream endobj");
    const std::string pdf = chart.createPdf(kWidth, kHeight).bytes();
    EXPECT_NO_THROW(static_cast<void>(readPdf(pdf, "qpdf --check picture.pdf")));
    EXPECT_THAT(readPdf(pdf, "qpdf --qdf picture.pdf -"), Not(HasSubstr("9999")));
}

} // namespace
} // namespace tovangl
