// SPDX-License-Identifier: MIT
#include "pdf/pdf_reader.h"
#include "pdf/shape_comparison.h"
#include "support/mixed_charts.h"
#include "support/png_decoding.h"

#include <QColor>
#include <QPainter>
#include <QRect>

#include <gtest/gtest.h>
#include <vector>

namespace tovangl {
namespace {

constexpr int kWidth = 200; // points
constexpr int kHeight = 140;
constexpr int kFactor = 4;           // pixels to a point
constexpr int kDotsPerInch = 288;    // that many
constexpr unsigned kChartCount = 42; // of each kind 14
constexpr int kNextPixel = 1;
// Where a gap is narrower than a pixel, or a slice, antialiasing decides what is seen of it. A dot
// of a beam alone has more pixels than that.
constexpr int kMostStrayPixels = 8;

// The reader moves lines to whole pixels, so its pixels are made smaller than those to compare.
QImage pageOf(const std::string& pdf)
{
    constexpr int kFiner = 2;
    const QImage page = pixelsOfPdf(pdf, kDotsPerInch * kFiner);
    return page.scaled(page.size() / kFiner, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_ARGB32);
}

void cover(QImage& picture, const std::vector<QRect>& boxes)
{
    QPainter painter(&picture);
    for (const QRect& box : boxes)
        painter.fillRect(box, Qt::white);
}

class PdfPixels : public testing::TestWithParam<unsigned>
{};

TEST_P(PdfPixels, ShapesStandWithinOnePixelOfThePictureForPrint)
{
    CAnyChart chart = makeMixedChart(GetParam());
    const std::string pdf = chart.createPdf(kWidth, kHeight).bytes();
    QImage page = pageOf(pdf);
    QImage picture = decodePng(chart.createPixmapForPrinter(kWidth, kHeight, kFactor).bytes());
    // Letters are fitted to pixels in one of them alone.
    const std::vector<QRect> boxes = wordBoxesOfPdf(pdf, kFactor);
    cover(page, boxes);
    cover(picture, boxes);
    EXPECT_LE(countStrayPixels(page, picture, kNextPixel), kMostStrayPixels);
}

INSTANTIATE_TEST_SUITE_P(MixedCharts, PdfPixels, testing::Range(0u, kChartCount));

constexpr int kFitted = 2; // pixels by which letters of the picture are moved

int strayPixelsOf(CAnyChart& chart)
{
    const QImage page = pageOf(chart.createPdf(kWidth, kHeight).bytes());
    const QImage picture =
        decodePng(chart.createPixmapForPrinter(kWidth, kHeight, kFactor).bytes());
    return countStrayPixels(page, picture, kFitted);
}

// Glyphs of several letters are there as parts of other glyphs.
TEST(PdfPixels, VowelMarksStandWhereThePictureForPrintHasThem)
{
    CAnyChart chart(ChartKind::HorizontalBars);
    chart.graph().setFont("DejaVu Sans", 11);
    for (const char* caption : {"שָׁלוֹם", "لِلْعَرَبِيَّةِ", "السَّلَامُ"})
        chart.addItem(1, caption);
    EXPECT_LE(strayPixelsOf(chart), kMostStrayPixels);
}

// The sizes have less room than they need. What follows a text that is cut has its own colour.
TEST(PdfPixels, ATextThatIsCutHidesAndColoursNothingElse)
{
    CAnyChart chart(ChartKind::Pie);
    chart.graph().setFont("DejaVu Sans", 40);
    for (int i = 0; i < 4; ++i)
        chart.addItem(26524, "usr");
    EXPECT_LE(strayPixelsOf(chart), kMostStrayPixels);
}

TEST(PdfPixels, APictureIsFilledToItsEdges)
{
    CAnyChart chart(ChartKind::Pie);
    chart.addItem(1, "all");
    ASSERT_EQ(chart.graph().setByName("picture_color", "#204060"), "");
    const QImage page = pageOf(chart.createPdf(kWidth, kHeight).bytes());
    EXPECT_EQ(QColor(page.pixel(page.width() - 1, page.height() - 1)), QColor("#204060"));
}

TEST(PdfPixels, ATransparentPictureLeavesThePaperAsItIs)
{
    CAnyChart chart(ChartKind::Pie);
    chart.addItem(1, "all");
    const std::size_t filled = chart.createPdf(kWidth, kHeight).bytes().size();
    chart.graph().setPictureTransparent();
    const std::string clear = chart.createPdf(kWidth, kHeight).bytes();
    EXPECT_LT(clear.size(), filled);
    EXPECT_EQ(QColor(pageOf(clear).pixel(1, 1)), QColor(Qt::white));
}

TEST(PdfPixels, NothingInAPageIsMadeOfPixels)
{
    CAnyChart chart(ChartKind::VerticalBars, true);
    chart.addItem(70, "usr");
    const std::string list =
        readPdf(chart.createPdf(kWidth, kHeight).bytes(), "pdfimages -list picture.pdf | wc -l");
    constexpr int kHeadLines = 2;
    EXPECT_EQ(std::stoi(list), kHeadLines);
}

} // namespace
} // namespace tovangl
