// SPDX-License-Identifier: MIT
// The surface that every chart is measured and painted on.
#include "layout/bar_layout.h"
#include "paint/CCanvas.h"
#include "support/CTestMeasurer.h"
#include "support/pixels.h"
#include "text/qt_text.h"

#include <gtest/gtest.h>
#include <limits>

namespace tovangl {
namespace {

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();
const QString kText = QString("text");

QRectF extentIn(const CGraph1dSettings& settings, int scale)
{
    QImage image(20, 10, QImage::Format_ARGB32);
    CCanvas canvas(image, settings, {20, 10, scale, OutputDevice::Printer});
    return canvas.measurer().boundingRect(kText, false);
}

QRectF extentAt(int fontSize, int scale)
{
    CGraph1dSettings settings;
    settings.setFont(QString("Tahoma"), fontSize);
    return extentIn(settings, scale);
}

// Without a chart around it.
QRectF extentOfFont(const QFont& font)
{
    return CTestMeasurer(font).boundingRect(kText, false);
}

TEST(Canvas, StartsFullyWhiteAndOpaque)
{
    QImage image(17, 9, QImage::Format_ARGB32);
    image.fill(0x12345678);
    const CCanvas canvas(image, CGraph1dSettings(), CRequest());
    EXPECT_TRUE(isFilled(image, image.rect(), kWhitePixel));
}

TEST(Canvas, LeavesNothingOfTheMemoryBehindATransparentPicture)
{
    CGraph1dSettings settings;
    settings.colors.picture = Qt::transparent;
    QImage image(17, 9, QImage::Format_ARGB32);
    image.fill(0x12345678);
    const CCanvas canvas(image, settings, CRequest());
    EXPECT_TRUE(isFilled(image, image.rect(), 0));
}

TEST(Canvas, HasTheDefaultFontOfTahomaAtElevenPixels)
{
    EXPECT_EQ(extentIn(CGraph1dSettings(), 1), extentOfFont(chartFont("Tahoma", 11)));
}

TEST(Canvas, HasTheFamilyThatIsSet)
{
    CGraph1dSettings settings;
    settings.setFont(QString("DejaVu Sans"), 11);
    EXPECT_EQ(extentIn(settings, 1), extentOfFont(chartFont("DejaVu Sans", 11)));
}

TEST(Canvas, HasAFontThatGrowsWithTheFactor)
{
    EXPECT_EQ(extentAt(11, 3), extentOfFont(chartFont("Tahoma", 33)));
}

TEST(Canvas, HasAFontOfAtMost30000Pixels)
{
    const QRectF largest = extentOfFont(chartFont("Tahoma", 30000));
    EXPECT_EQ(extentAt(30001, 1), largest);
    EXPECT_EQ(extentAt(kMost, 4), largest);
}

TEST(Canvas, HasAFontOfTheDefaultSizeWhereTheSizeIsBelowOne)
{
    QFont font = QFont(QString("Tahoma"));
    font.setStyleStrategy(QFont::NoAntialias);
    qt::setDefaultSize(font, QImage(1, 1, QImage::Format_ARGB32));
    EXPECT_EQ(extentAt(0, 1), extentOfFont(font));
    EXPECT_EQ(extentAt(kLeast, 4), extentOfFont(font));
}

TEST(Canvas, PaintsTextsInOneColourOnly)
{
    CBarInput input(BarKind::Lying, false);
    input.addItem(8, QString::fromUtf8("Sgjö 8"), Qt::white, Qt::white);
    QImage image(200, 100, QImage::Format_ARGB32);
    CCanvas canvas(image, input.settings, CRequest());
    canvas.paint(computeLayout(input, {0}, {200, 100}, canvas.measurer()));
    EXPECT_FALSE(extentOf(image, kBlackPixel).isNull());
    EXPECT_TRUE(extentWhere(image, [](QRgb pixel) {
                    return pixel != kWhitePixel && pixel != kBlackPixel;
                }).isNull());
}

} // namespace
} // namespace tovangl
