// SPDX-License-Identifier: MIT
// The pie chart, painted: what single pixels show.
#include "pie/CTestPie.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr int kWidth = 401;
constexpr int kHeight = 301;
const QColor kWhite(255, 255, 255);
const QColor kColors[] = {QColor(200, 0, 0), QColor(0, 150, 0), QColor(0, 0, 200),
                          QColor(120, 60, 0)};

// Four quarters, from nine o'clock over the top.
void addQuarters(CTestPie& pie)
{
    for (const QColor& color : kColors)
        pie.add(1, "quarter", color);
}

QColor pixelAt(const QImage& image, const QPointF& point)
{
    return QColor(image.pixel(static_cast<int>(std::floor(point.x())),
                              static_cast<int>(std::floor(point.y()))));
}

// A point of the pie at an angle in degrees, counter-clockwise from three o'clock.
QPointF pointOn(const CTestPie& pie, double degrees, double shareOfRadius)
{
    const double radians = degrees * 3.14159265358979 / 180;
    const double radius = pie.pieRect().width() / 2 * shareOfRadius;
    return pie.pieRect().center() +
           QPointF(radius * std::cos(radians), -radius * std::sin(radians));
}

bool isAllWhite(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != 0xffffffff)
                return false;
        }
    }
    return true;
}

TEST(PieDrawing, EachSliceHasItsColourOnTheCircle)
{
    CTestPie pie;
    addQuarters(pie);
    const QImage image = pie.getImage(kWidth, kHeight);
    // The beams begin at 0.85 of the radius.
    for (const double share : {0.2, 0.8}) {
        EXPECT_EQ(pixelAt(image, pointOn(pie, 135, share)), kColors[0]);
        EXPECT_EQ(pixelAt(image, pointOn(pie, 45, share)), kColors[1]);
        EXPECT_EQ(pixelAt(image, pointOn(pie, -45, share)), kColors[2]);
        EXPECT_EQ(pixelAt(image, pointOn(pie, -135, share)), kColors[3]);
    }
}

TEST(PieDrawing, SlicesAreFlat)
{
    CTestPie pie;
    addQuarters(pie);
    const QImage image = pie.getImage(kWidth, kHeight);
    for (int degrees = 100; degrees <= 170; degrees += 5)
        EXPECT_EQ(pixelAt(image, pointOn(pie, degrees, 0.8)), kColors[0]) << degrees;
}

TEST(PieDrawing, WhiteLinesSeparateTheSlices)
{
    CTestPie pie;
    addQuarters(pie);
    // The centre lies in the middle of a pixel, so a line of one pixel fills it.
    const QImage image = pie.getImage(kWidth, kHeight);
    for (const int degrees : {0, 90, 180, 270})
        EXPECT_GT(pixelAt(image, pointOn(pie, degrees, 0.5)).lightness(), 200) << degrees;
}

TEST(PieDrawing, SeparatorsTakeTheOutlineColour)
{
    CTestPie pie;
    pie.setPieOutlineColor(Qt::yellow);
    addQuarters(pie);
    const QImage image = pie.getImage(kWidth, kHeight);
    EXPECT_EQ(pixelAt(image, pointOn(pie, 0, 0.5)).blue(), 0);
    EXPECT_GT(pixelAt(image, pointOn(pie, 0, 0.5)).green(), 200);
}

TEST(PieDrawing, OneSliceIsADiscWithoutASeam)
{
    CTestPie pie;
    pie.add(5, "all", kColors[0]);
    const QImage image = pie.getImage(kWidth, kHeight);
    for (double share = 0.02; share < 0.95; share += 0.01)
        ASSERT_EQ(pixelAt(image, pointOn(pie, 180, share)), kColors[0]) << share;
}

TEST(PieDrawing, EverythingAroundThePieAndItsLabelsIsWhite)
{
    CTestPie pie;
    addQuarters(pie);
    const QImage image = pie.getImage(kWidth, kHeight);
    EXPECT_EQ(pixelAt(image, QPointF(0, 0)), kWhite);
    EXPECT_EQ(pixelAt(image, QPointF(kWidth - 1, kHeight - 1)), kWhite);
    for (int degrees = 0; degrees < 360; degrees += 90)
        EXPECT_EQ(pixelAt(image, pointOn(pie, degrees, 1.1)), kWhite) << degrees;
}

TEST(PieDrawing, TheBackgroundIsDarkestAtTheTopAndHasRoundCorners)
{
    CTestPie pie(true);
    addQuarters(pie);
    const QImage image = pie.getImage(kWidth, kHeight);
    const QColor top = pixelAt(image, QPointF(kWidth / 2, 3));
    const QColor bottom = pixelAt(image, QPointF(kWidth / 2, kHeight - 4));
    EXPECT_NEAR(top.red(), 186, 2);
    EXPECT_NEAR(top.green(), 209, 2);
    EXPECT_NEAR(bottom.red(), 232, 2);
    EXPECT_NEAR(bottom.green(), 242, 2);
    EXPECT_EQ(pixelAt(image, QPointF(0, 0)), kWhite);
    EXPECT_EQ(pixelAt(image, QPointF(kWidth - 1, kHeight - 1)), kWhite);
}

TEST(PieDrawing, AnEmptyPieHasItsBackgroundOnly)
{
    CTestPie pie(true);
    const QImage image = pie.getImage(kWidth, kHeight);
    for (int x = 5; x < kWidth - 5; ++x)
        ASSERT_EQ(image.pixel(x, kHeight / 2), image.pixel(kWidth / 2, kHeight / 2)) << x;
    EXPECT_NE(pixelAt(image, QPointF(5, kHeight / 2)), kWhite);
    EXPECT_TRUE(isAllWhite(CTestPie().getImage(kWidth, kHeight)));
}

TEST(PieDrawing, APictureTooNarrowForTheLabelsStaysWhite)
{
    CTestPie pie(true);
    addQuarters(pie);
    EXPECT_TRUE(isAllWhite(pie.getImage(103, kHeight)));
    EXPECT_FALSE(isAllWhite(pie.getImage(104, kHeight)));
}

TEST(PieDrawing, APictureTooLowForOneLabelStaysWhite)
{
    CTestPie pie(true);
    addQuarters(pie);
    EXPECT_TRUE(isAllWhite(pie.getImage(kWidth, 30)));
}

TEST(PieDrawing, PrintedSlicesArePalerWithDarkGreyOutlinesAndNoBackground)
{
    CTestPie pie(true);
    pie.add(1, "half", QColor(0, 0, 0));
    pie.add(1, "half", QColor(255, 0, 0));
    const QImage image = pie.getImageForPrinter(kWidth, kHeight, 1);
    EXPECT_EQ(pixelAt(image, pointOn(pie, 90, 0.5)), QColor(153, 153, 153));
    EXPECT_EQ(pixelAt(image, pointOn(pie, -90, 0.5)), QColor(255, 153, 153));
    EXPECT_LT(pixelAt(image, pointOn(pie, 0, 0.5)).red(), 120);
    EXPECT_EQ(pixelAt(image, QPointF(5, kHeight / 2)), kWhite);
}

TEST(PieDrawing, OutlinesGrowWithThePrintFactor)
{
    CTestPie pie;
    pie.addEqual(2);
    const QImage image = pie.getImageForPrinter(kWidth, kHeight, 9);
    const QPointF seam = pointOn(pie, 0, 0.5);
    for (int dy = -4; dy <= 3; ++dy)
        EXPECT_EQ(pixelAt(image, seam + QPointF(0, dy)), QColor(64, 64, 64)) << dy;
    EXPECT_NE(pixelAt(image, seam + QPointF(0, 6)), QColor(64, 64, 64));
}

TEST(PieDrawing, BeamsAndLinesTakeTheLineColour)
{
    CTestPie pie;
    pie.setLabelLineColor(QColor(0, 200, 0));
    pie.add(1, "");
    const QImage image = pie.getImageForPrinter(kWidth, kHeight, 10);
    const CPieTextLabel& label = *pie.label(0);
    const QPointF centre = pie.area().center();
    const QPointF middle = (label.elbow() + label.lineEnd()) / 2;
    EXPECT_EQ(pixelAt(image, centre + middle), QColor(0, 200, 0));
    EXPECT_EQ(pixelAt(image, centre + label.beamStart()), QColor(0, 200, 0));
}

TEST(PieDrawing, TheBackgroundShiftsThePieByHalfAPixel)
{
    CTestPie plain(false);
    CTestPie shifted(true);
    plain.add(1, "all", Qt::black);
    shifted.add(1, "all", Qt::black);
    // The top of this disc lies on a pixel edge; half a pixel lower it covers half of its first
    // row.
    const QImage plainImage = plain.getImage(kWidth, kHeight);
    const QImage shiftedImage = shifted.getImage(kWidth, kHeight);
    int moved = 0;
    for (int degrees = 20; degrees < 160; ++degrees) {
        const QPointF edge = pointOn(plain, degrees, 0.985);
        moved += pixelAt(plainImage, edge) == QColor(Qt::black) &&
                         pixelAt(shiftedImage, edge) != QColor(Qt::black)
                     ? 1
                     : 0;
    }
    EXPECT_GT(moved, 5);
}

TEST(PieDrawing, LeavesThePainterAsItWas)
{
    CTestPie pie(true);
    addQuarters(pie);
    QImage image = pie.getImage(kWidth, kHeight);
    QPainter painter(&image);
    const QPen pen = painter.pen();
    pie.drawContents(painter);
    EXPECT_TRUE(painter.worldTransform().isIdentity());
    EXPECT_EQ(painter.pen(), pen);
    EXPECT_EQ(painter.brush(), QBrush());
}

TEST(PieDrawing, TextsTakeTheTextColour)
{
    CTestPie pie;
    pie.setTextColor(QColor(0, 200, 0));
    pie.add(1, "\u2588\u2588\u2588\u2588", kColors[0]);
    const QImage image = pie.getImage(kWidth, kHeight);
    const QRect label = pie.item(0)->itemRect();
    EXPECT_EQ(pixelAt(image, label.topLeft() + QPointF(5, label.height() / 2.0)),
              QColor(0, 200, 0));
}

TEST(PieDrawing, ALabelThatIsHiddenHasNoRectangle)
{
    CTestPie pie;
    pie.addEqual(100, "name");
    (void)pie.getImage(kWidth, 200);
    for (const CPieTextLabel* label : pie.labels())
        EXPECT_EQ(label->getItem()->itemRect().isNull(), label->isHidden());
}

} // namespace
} // namespace tovangl
