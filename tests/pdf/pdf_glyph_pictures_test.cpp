// SPDX-License-Identifier: MIT
// PDF files in a font whose letters are pictures, as those of emoji are: red to the left, and blue
// to the right. Fonts stay for the process.
#include "pdf/pdf_reader.h"
#include "pdf/shape_comparison.h"
#include "support/CAnyChart.h"
#include "support/pixels.h"
#include "support/png_decoding.h"
#include "support/small_font.h"

#include <QBuffer>
#include <QByteArray>

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

using testing::HasSubstr;

constexpr int kWidth = 200; // points
constexpr int kHeight = 140;
constexpr int kFactor = 4;        // pixels to a point
constexpr int kDotsPerInch = 288; // that many
// In points. Qt 6 makes the lines of such a font several times as high as its letters.
constexpr int kFontSize = 4;
constexpr const char* kCaption = "Jagd";

std::string redAndBluePicture()
{
    QImage picture(40, 44, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    QPainter(&picture).fillRect(20, 0, 20, 44, Qt::blue);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return bytes.toStdString();
}

void addPictureFont(const std::string& family)
{
    CSmallFont font{{windowsName(1, family)}};
    font.picture = redAndBluePicture();
    const std::string file = smallFont(font);
    const auto* bytes = reinterpret_cast<const unsigned char*>(file.data());
    ASSERT_THAT(addFont(bytes, file.size()), testing::ElementsAre(family));
}

class PdfGlyphPictures : public testing::TestWithParam<ChartKind>
{
protected:
    PdfGlyphPictures()
    {
        addPictureFont("Red and Blue");
        m_chart.graph().setFont("Red and Blue", kFontSize);
        for (const char* caption : {kCaption, "usr", "opt"})
            m_chart.addItem(26, caption);
    }
    std::string pdf() { return m_chart.createPdf(kWidth, kHeight).bytes(); }
    QImage picture()
    {
        return decodePng(m_chart.createPixmapForPrinter(kWidth, kHeight, kFactor).bytes());
    }

    CAnyChart m_chart{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(AllCharts, PdfGlyphPictures, testing::ValuesIn(kChartKinds));

TEST_P(PdfGlyphPictures, StandWhereThePictureForPrintHasThem)
{
    constexpr int kNextPixel = 1;
    constexpr int kMostStrayPixels = 8; // at corners of the chart's shapes
    const QImage page = pixelsOfPdf(pdf(), kDotsPerInch);
    EXPECT_GT(extentOf(page, kRedPixel).width(), 3);
    EXPECT_GT(extentOf(page, kBluePixel).width(), 3);
    EXPECT_LE(countStrayPixels(page, picture(), kNextPixel), kMostStrayPixels);
}

TEST_P(PdfGlyphPictures, AreFoundAsText)
{
    EXPECT_THAT(textOfPdf(pdf()), HasSubstr(kCaption));
}

TEST_P(PdfGlyphPictures, AreInTheFileOnceHoweverOftenTheyAreShown)
{
    const std::string images = readPdf(
        pdf(), "pdfimages -list picture.pdf | awk '$3 == \"image\" {print $11}' | sort | uniq -c");
    EXPECT_EQ(std::count(images.begin(), images.end(), '\n'), 1) << images;
    EXPECT_GE(std::stoi(images), 10) << images;
}

TEST_P(PdfGlyphPictures, MakeAValidFileWithTheSameBytesOnEachRun)
{
    const std::string bytes = pdf();
    EXPECT_NO_THROW(static_cast<void>(readPdf(bytes, "qpdf --check picture.pdf")));
    EXPECT_EQ(pdf(), bytes);
}

TEST_P(PdfGlyphPictures, AreNotLostForLaterPngPictures)
{
    const std::string family = std::string("Lasting ") + nameOf(GetParam());
    addPictureFont(family);
    m_chart.graph().setFont(family, kFontSize);
    static_cast<void>(pdf());
    EXPECT_FALSE(extentOf(picture(), kRedPixel).isNull());
}

} // namespace
} // namespace tovangl
