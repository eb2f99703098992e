// SPDX-License-Identifier: MIT
#include "pdf/pdf_reader.h"
#include "support/CAnyChart.h"
#include "support/mixed_charts.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <utility>

namespace tovangl {
namespace {

using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

constexpr int kWidth = 400; // points
constexpr int kHeight = 300;
constexpr int kLargestSide = 14400;

CAnyChart spending()
{
    CAnyChart chart(ChartKind::Pie);
    chart.addItem(1200, "Rent");
    chart.addItem(430, "Food");
    return chart;
}

std::string infoOf(CAnyChart& chart)
{
    return readPdf(chart.createPdf(kWidth, kHeight).bytes(), "pdfinfo -enc UTF-8 picture.pdf");
}

// All objects in the clear.
std::string objectsOf(CAnyChart& chart)
{
    return readPdf(chart.createPdf(kWidth, kHeight).bytes(), "qpdf --qdf picture.pdf -");
}

TEST(PdfProperties, APageIsAsManyPointsLargeAsWasAskedFor)
{
    CAnyChart chart = spending();
    EXPECT_THAT(infoOf(chart), HasSubstr("400 x 300 pts"));
}

TEST(PdfProperties, TheTitleIsThatOfTheChartInOneLine)
{
    CAnyChart chart = spending();
    chart.graph().setTitle("Größe\nin (brackets) \\");
    EXPECT_THAT(infoOf(chart), ContainsRegex("Title: +Größe in \\(brackets\\) \\\\\n"));
}

TEST(PdfProperties, AChartWithoutTitleHasItsDescriptionAsTheTitle)
{
    CAnyChart chart = spending();
    EXPECT_THAT(infoOf(chart), ContainsRegex("Title: +Pie chart, 2 of 2 items drawn"));
}

TEST(PdfProperties, TheDescriptionIsThereForThoseWhoDoNotSeeThePage)
{
    CAnyChart chart = spending();
    chart.graph().setTitle("Spending");
    const std::string figure =
        readPdf(chart.createPdf(kWidth, kHeight).bytes(), "pdfinfo -struct picture.pdf");
    EXPECT_THAT(figure, HasSubstr("Figure"));
    EXPECT_THAT(objectsOf(chart), HasSubstr("/Alt"));
}

// Readers find what a figure shows by a number that it has in common with a part of the page. The
// description does not name the item between the greatest and the least.
TEST(PdfProperties, TheFigureIsWhatThePageShows)
{
    CAnyChart chart = spending();
    chart.addItem(900, "Books");
    EXPECT_THAT(
        readPdf(chart.createPdf(kWidth, kHeight).bytes(), "pdfinfo -struct-text picture.pdf"),
        HasSubstr("Books"));
}

TEST(PdfProperties, TheLanguageIsThatOfTheLocale)
{
    CAnyChart chart = spending();
    chart.graph().setLocale("de", "at");
    EXPECT_THAT(objectsOf(chart), HasSubstr("/Lang (de-AT)"));
}

TEST(PdfProperties, AChartWithoutLanguageIsInEnglish)
{
    CAnyChart chart = spending();
    chart.graph().setLocale("zz", "ZZ");
    EXPECT_THAT(objectsOf(chart), HasSubstr("/Lang (en)"));
}

TEST(PdfProperties, LettersReachBelowTheBaselineByANegativeNumber)
{
    CAnyChart chart = spending();
    EXPECT_THAT(objectsOf(chart), ContainsRegex("/Descent -[1-9]"));
}

// The size of the item has less room than it needs.
TEST(PdfProperties, APageIsCutWhereATextHasNoRoomAndNoLonger)
{
    CAnyChart chart(ChartKind::Pie);
    chart.graph().setFont("DejaVu Sans", 22);
    chart.addItem(26524, "usr");
    const std::string pdf = chart.createPdf(120, 60).bytes();
    for (const char* lines : {"q", "'W n'", "Q"})
        EXPECT_EQ(readPdf(pdf, std::string("qpdf --qdf picture.pdf - | grep -acx ") + lines), "1\n")
            << lines;
}

TEST(PdfProperties, AFileTellsNoDate)
{
    CAnyChart chart = spending();
    EXPECT_THAT(infoOf(chart), Not(HasSubstr("Date")));
}

TEST(PdfProperties, TwoRenderingsGiveTheSameBytes)
{
    CAnyChart first = spending();
    CAnyChart second = spending();
    EXPECT_EQ(first.createPdf(kWidth, kHeight).bytes(), second.createPdf(kWidth, kHeight).bytes());
}

TEST(PdfProperties, APictureOfPixelsInBetweenChangesNothing)
{
    CAnyChart chart = spending();
    const std::string before = chart.createPdf(kWidth, kHeight).bytes();
    static_cast<void>(chart.createPixmap(kWidth, kHeight));
    EXPECT_EQ(chart.createPdf(kWidth, kHeight).bytes(), before);
}

TEST(PdfProperties, RectanglesAreThoseOfThePictureForPrint)
{
    CAnyChart chart = makeMixedChart(4);
    static_cast<void>(chart.createPixmapForPrinter(kWidth, kHeight, 4));
    const auto printed = chart.itemRectangles();
    static_cast<void>(chart.createPdf(kWidth, kHeight));
    const auto onPage = chart.itemRectangles();
    EXPECT_TRUE(std::equal(printed.begin(), printed.end(), onPage.begin(), onPage.end(),
                           [](const Rectangle& a, const Rectangle& b) {
                               return a.x == b.x && a.y == b.y && a.width == b.width &&
                                      a.height == b.height;
                           }));
}

TEST(PdfProperties, APageWithoutRoomForTheChartIsEmptyButWhole)
{
    CAnyChart chart = spending();
    const std::string pdf = chart.createPdf(3, 3).bytes();
    EXPECT_EQ(chart.graph().problem(), Problem::TooSmallForChart);
    EXPECT_NO_THROW(static_cast<void>(readPdf(pdf, "qpdf --check picture.pdf")));
}

TEST(PdfProperties, TheLargestPageIsWhole)
{
    CAnyChart chart = spending();
    const std::string pdf = chart.createPdf(kLargestSide, kLargestSide).bytes();
    EXPECT_EQ(chart.graph().problem(), Problem::None);
    EXPECT_NO_THROW(static_cast<void>(readPdf(pdf, "qpdf --check picture.pdf")));
}

class PdfSizes : public testing::TestWithParam<std::pair<int, int>>
{};

TEST_P(PdfSizes, OtherSizesAreRefused)
{
    CAnyChart chart = spending();
    const CExport file = chart.createPdf(GetParam().first, GetParam().second);
    EXPECT_EQ(file.size, 0);
    EXPECT_NE(file.data, nullptr);
    EXPECT_EQ(chart.graph().problem(), Problem::SizeOutOfRange);
    EXPECT_THAT(chart.graph().problemText(), HasSubstr("14,400 points"));
}

TEST(PdfProperties, TheLimitsOfAPageAreForgottenWhereAPictureOfPixelsIsRefused)
{
    CAnyChart chart = spending();
    static_cast<void>(chart.createPdf(0, kHeight));
    static_cast<void>(chart.createPixmap(0, kHeight));
    EXPECT_THAT(chart.graph().problemText(), HasSubstr("1,000,000 pixels"));
}

INSTANTIATE_TEST_SUITE_P(
    Impossible, PdfSizes,
    testing::Values(std::pair(0, 300), std::pair(400, 0), std::pair(-1, -1),
                    std::pair(kLargestSide + 1, 1), std::pair(1, kLargestSide + 1),
                    std::pair(std::numeric_limits<int>::max(), std::numeric_limits<int>::max())));

class PdfFiles : public testing::TestWithParam<unsigned>
{};

TEST_P(PdfFiles, AStrictReaderFindsNothingWrong)
{
    CAnyChart chart = makeMixedChart(GetParam());
    const std::string pdf = chart.createPdf(kWidth, kHeight).bytes();
    EXPECT_NO_THROW(static_cast<void>(readPdf(pdf, "qpdf --check picture.pdf")));
}

INSTANTIATE_TEST_SUITE_P(MixedCharts, PdfFiles, testing::Range(0u, 12u));

} // namespace
} // namespace tovangl
