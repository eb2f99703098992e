// SPDX-License-Identifier: MIT
// The frame in which every chart draws itself.
#include "support/CTestChart.h"

#include <QFont>

#include <gtest/gtest.h>
#include <limits>
#include <new>
#include <vector>

namespace tovangl {
namespace {

constexpr QRgb kWhite = 0xffffffff;

bool isAll(const QImage& image, QRgb color)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != color)
                return false;
        }
    }
    return true;
}

QFont fontAt(int pixelSize, int factor)
{
    QFont font;
    CTestChart chart([&font](QPainter& painter) { font = painter.font(); });
    chart.setFont(QString("Tahoma"), pixelSize);
    (void)chart.getImageForPrinter(20, 10, factor);
    return font;
}

TEST(GetImage, HasTheSizeAndFormatAskedFor)
{
    CTestChart chart;
    const QImage image = chart.getImage(40, 30);
    EXPECT_EQ(image.size(), QSize(40, 30));
    EXPECT_EQ(image.format(), QImage::Format_ARGB32);
}

TEST(GetImage, KeepsTheSizeOfTheSurface)
{
    CTestChart chart;
    (void)chart.getImage(40, 30);
    EXPECT_EQ(chart.width(), 40);
    EXPECT_EQ(chart.height(), 30);
}

TEST(GetImage, StartsFullyWhiteAndOpaque)
{
    CTestChart chart;
    EXPECT_TRUE(isAll(chart.getImage(17, 9), kWhite));
}

TEST(GetImage, LeavesPixelsThatTheChartDoesNotTouchWhite)
{
    CTestChart chart([](QPainter& painter) { painter.fillRect(2, 2, 3, 3, Qt::red); });
    const QImage image = chart.getImage(10, 10);
    EXPECT_EQ(image.pixel(3, 3), 0xffff0000);
    EXPECT_EQ(image.pixel(6, 6), kWhite);
}

TEST(GetImage, FillsWithWhiteAfterThePainterIsSetUp)
{
    class CTintingChart : public CTestChart
    {
    public:
        void initPainter(QPainter& painter) const override
        {
            painter.fillRect(0, 0, 5, 5, Qt::red);
        }
    };
    CTintingChart chart;
    EXPECT_TRUE(isAll(chart.getImage(5, 5), kWhite));
}

TEST(GetImage, ChoosesTheItemsAnew)
{
    CTestChart chart;
    chart.add(1);
    (void)chart.getImage(10, 10);
    EXPECT_EQ(chart.selectedValues(), std::vector<long long>{1});
}

TEST(GetImage, ClearsTheRectanglesOfChosenItemsOnly)
{
    CTestChart chart;
    chart.setThreshold(50);
    chart.add(90);
    chart.add(10);
    chart.item(0)->setItemRect(QRect(1, 2, 3, 4));
    chart.item(1)->setItemRect(QRect(5, 6, 7, 8));
    (void)chart.getImage(10, 10);
    EXPECT_EQ(chart.item(0)->itemRect(), QRect());
    EXPECT_EQ(chart.item(1)->itemRect(), QRect(5, 6, 7, 8));
}

TEST(GetImage, WithoutItemsIsDrawnLikeAnyOther)
{
    CTestChart chart;
    EXPECT_FALSE(chart.getImage(10, 10).isNull());
    EXPECT_EQ(chart.drawings, 1);
}

TEST(GetImage, OfNoSizeIsNullButTheSizeIsKept)
{
    CTestChart chart;
    chart.setScale(2);
    EXPECT_TRUE(chart.getImage(0, 100).isNull());
    EXPECT_EQ(chart.width(), 0);
    EXPECT_EQ(chart.height(), 200);
}

TEST(GetImage, OfNoSizeTouchesNeitherItemsNorChoice)
{
    CTestChart chart;
    chart.add(1);
    chart.item(0)->setItemRect(QRect(1, 2, 3, 4));
    EXPECT_TRUE(chart.getImage(-5, 100).isNull());
    EXPECT_EQ(chart.selections, 0);
    EXPECT_EQ(chart.drawings, 0);
    EXPECT_EQ(chart.item(0)->itemRect(), QRect(1, 2, 3, 4));
}

TEST(GetImage, ThatWouldBeTooLargeIsNull)
{
    CTestChart chart;
    EXPECT_TRUE(chart.getImage(40000, 40000).isNull());
    EXPECT_TRUE(chart.getImage(2147483647, 2147483647).isNull());
    EXPECT_EQ(chart.drawings, 0);
}

TEST(GetImage, ProductsBeyondIntAreClamped)
{
    CTestChart chart;
    EXPECT_TRUE(chart.getImageForPrinter(2147483647, 10, 3).isNull());
    EXPECT_EQ(chart.width(), 2147483647);
    EXPECT_EQ(chart.height(), 30);
}

TEST(GetImageForPrinter, DrawsAtAMultipleOfTheResolution)
{
    CTestChart chart;
    EXPECT_EQ(chart.getImageForPrinter(200, 100, 3).size(), QSize(600, 300));
    EXPECT_EQ(chart.width(), 600);
    EXPECT_EQ(chart.height(), 300);
}

TEST(GetImageForPrinter, SetsDeviceAndScaleForTheDrawingOnly)
{
    int scale = 0;
    CGraph1dBase::OutputDevice device = CGraph1dBase::ScreenDevice;
    CTestChart* self = nullptr;
    CTestChart chart([&](QPainter&) {
        scale = self->scale();
        device = self->outputDevice();
    });
    self = &chart;
    (void)chart.getImageForPrinter(20, 10, 3);
    EXPECT_EQ(scale, 3);
    EXPECT_EQ(device, CGraph1dBase::PrinterDevice);
    EXPECT_EQ(chart.scale(), 1);
    EXPECT_EQ(chart.outputDevice(), CGraph1dBase::ScreenDevice);
}

class FactorBelowOne : public ::testing::TestWithParam<int>
{};

TEST_P(FactorBelowOne, CountsAsOneButStillPrints)
{
    CTestChart* self = nullptr;
    CGraph1dBase::OutputDevice device = CGraph1dBase::ScreenDevice;
    CTestChart chart([&](QPainter&) { device = self->outputDevice(); });
    self = &chart;
    EXPECT_EQ(chart.getImageForPrinter(200, 100, GetParam()).size(), QSize(200, 100));
    EXPECT_EQ(device, CGraph1dBase::PrinterDevice);
}

INSTANTIATE_TEST_SUITE_P(GetImageForPrinter, FactorBelowOne,
                         ::testing::Values(0, -1, std::numeric_limits<int>::min()));

TEST(GetImageForPrinter, RaisesAScaleBelowOneWhenItIsRestored)
{
    CTestChart chart;
    chart.setScale(-4);
    (void)chart.getImageForPrinter(20, 10, 2);
    EXPECT_EQ(chart.scale(), 1);
}

TEST(GetImageForPrinter, RestoresAnyDevice)
{
    CTestChart chart;
    chart.setOutputDevice(CGraph1dBase::PrinterDevice);
    (void)chart.getImageForPrinter(20, 10, 2);
    EXPECT_EQ(chart.outputDevice(), CGraph1dBase::PrinterDevice);
}

TEST(GetImageForPrinter, RestoresWhenTheDrawingThrows)
{
    CTestChart chart([](QPainter&) { throw std::bad_alloc(); });
    EXPECT_THROW((void)chart.getImageForPrinter(20, 10, 2), std::bad_alloc);
    EXPECT_EQ(chart.scale(), 1);
    EXPECT_EQ(chart.outputDevice(), CGraph1dBase::ScreenDevice);
}

TEST(GetImageForPrinter, GoesThroughTheChartsOwnGetImage)
{
    CTestChart chart;
    (void)chart.getImageForPrinter(20, 10, 2);
    EXPECT_EQ(chart.images, 1);
}

TEST(GetPixmap, DrawsLikeAnImage)
{
    CTestChart chart([](QPainter& painter) { painter.fillRect(2, 2, 3, 3, Qt::red); });
    const QImage image = chart.getPixmap(10, 8).toImage();
    EXPECT_EQ(image.size(), QSize(10, 8));
    EXPECT_EQ(image.pixel(3, 3), 0xffff0000);
    EXPECT_EQ(image.pixel(8, 7), kWhite);
}

TEST(GetPixmap, OfNoSizeIsNull)
{
    CTestChart chart;
    EXPECT_TRUE(chart.getPixmap(10, 0).isNull());
    EXPECT_EQ(chart.drawings, 0);
}

TEST(GetPixmapForPrinter, GoesThroughTheChartsOwnGetPixmap)
{
    CTestChart chart;
    EXPECT_EQ(chart.getPixmapForPrinter(20, 10, 2).size(), QSize(40, 20));
    EXPECT_EQ(chart.pixmaps, 1);
    EXPECT_EQ(chart.scale(), 1);
}

TEST(InitPainter, TheDefaultFontIsTahomaAtElevenPixels)
{
    QFont font;
    CTestChart chart([&font](QPainter& painter) { font = painter.font(); });
    (void)chart.getImage(20, 10);
    EXPECT_EQ(font.family(), QString("Tahoma"));
    EXPECT_EQ(font.pixelSize(), 11);
}

TEST(InitPainter, TheFontGrowsWithTheFactor)
{
    EXPECT_EQ(fontAt(11, 3).pixelSize(), 33);
}

TEST(InitPainter, AFontSizeIsAtMost30000Pixels)
{
    EXPECT_EQ(fontAt(30001, 1).pixelSize(), 30000);
    EXPECT_EQ(fontAt(std::numeric_limits<int>::max(), 4).pixelSize(), 30000);
}

TEST(InitPainter, AFontSizeBelowOneLeavesTheDefaultSize)
{
    const QFont standard;
    EXPECT_EQ(fontAt(0, 1).pixelSize(), standard.pixelSize());
    EXPECT_EQ(fontAt(std::numeric_limits<int>::min(), 4).pixelSize(), standard.pixelSize());
}

TEST(InitPainter, ShapesAreAntialiasedAndTextsAreNot)
{
    QPainter::RenderHints hints;
    QFont font;
    CTestChart chart([&](QPainter& painter) {
        hints = painter.renderHints();
        font = painter.font();
    });
    (void)chart.getImage(20, 10);
    EXPECT_TRUE(hints & QPainter::Antialiasing);
    EXPECT_TRUE(hints & QPainter::SmoothPixmapTransform);
    EXPECT_FALSE(hints & QPainter::TextAntialiasing);
    EXPECT_EQ(font.styleStrategy(), QFont::NoAntialias);
}

TEST(InitPainter, TextIsDrawnInOneColorOnly)
{
    CTestChart chart([](QPainter& painter) {
        painter.drawText(QRectF(2, 2, 80, 20), QString::fromUtf8("Sgjö 8"));
    });
    const QImage image = chart.getImage(84, 24);
    int black = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            ASSERT_TRUE(pixel == kWhite || pixel == 0xff000000) << x << ' ' << y;
            black += pixel != kWhite;
        }
    }
    EXPECT_GT(black, 20);
}

} // namespace
} // namespace tovangl
