// SPDX-License-Identifier: MIT
#include "layout/CPieLayout.h"
#include "paint/CPainterSaver.h"
#include "paint/gradient_shapes.h"
#include "support/pixels.h"

#include <QLinearGradient>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

namespace tovangl {
namespace cdraw {
namespace {

using ::testing::Each;
using ::testing::Ne;

// On a painter that antialiases.
template <typename Paint>
QImage smoothly(int width, int height, const Paint& paint)
{
    return painted(width, height, [&paint](QPainter& painter) {
        painter.setRenderHint(QPainter::Antialiasing, true);
        paint(painter);
    });
}

QLinearGradient plainGradient(const QColor& color)
{
    QLinearGradient gradient(0, 0, 0, 1);
    gradient.setColorAt(0, color);
    gradient.setColorAt(1, color);
    return gradient;
}

QImage paintedRect(int width, int height, int radius)
{
    return smoothly(width, height, [radius](QPainter& painter) {
        drawGradientRoundRect(painter, radius, plainGradient(Qt::red), plainGradient(Qt::blue), 1);
    });
}

const std::vector<QPoint> kCorners = {{0, 0}, {39, 0}, {0, 29}, {39, 29}}; // of 40 by 30 pixels

std::vector<QRgb> pixelsAt(const QImage& image, const std::vector<QPoint>& places)
{
    std::vector<QRgb> pixels;
    for (const QPoint& place : places)
        pixels.push_back(image.pixel(place));
    return pixels;
}

QImage defaultBackground(int width, int height)
{
    return smoothly(width, height, [](QPainter& painter) {
        drawGradientBackground(painter, CPieBackground(), 1);
    });
}

bool isNear(QRgb pixel, const QColor& color, int tolerance)
{
    return std::abs(qRed(pixel) - color.red()) <= tolerance &&
           std::abs(qGreen(pixel) - color.green()) <= tolerance &&
           std::abs(qBlue(pixel) - color.blue()) <= tolerance;
}

TEST(GradientRoundRect, FillsTheWindowAndOutlinesItOnePixelWide)
{
    const QImage image = paintedRect(40, 30, 11);
    EXPECT_THAT(pixelsAt(image, {{20, 15}, {20, 1}}), Each(kRedPixel));
    EXPECT_THAT(pixelsAt(image, {{20, 0}, {20, 29}, {0, 15}, {39, 15}}), Each(kBluePixel));
}

TEST(GradientRoundRect, LeavesItsCornersOpen)
{
    EXPECT_THAT(pixelsAt(paintedRect(40, 30, 11), kCorners), Each(kWhitePixel));
}

TEST(GradientRoundRect, OfRadiusZeroIsAPlainRectangle)
{
    const QImage image = paintedRect(40, 30, 0);
    EXPECT_THAT(pixelsAt(image, kCorners), Each(kBluePixel));
    EXPECT_THAT(pixelsAt(image, {{1, 1}, {38, 28}}), Each(kRedPixel));
}

TEST(GradientRoundRect, LeavesThePainterTranslatedByHalfAPixel)
{
    QImage image(10, 10, QImage::Format_ARGB32);
    QPainter painter(&image);
    drawGradientRoundRect(painter, 2, plainGradient(Qt::red), plainGradient(Qt::blue), 1);
    EXPECT_EQ(painter.worldTransform().dx(), 0.5);
    EXPECT_EQ(painter.worldTransform().dy(), 0.5);
}

TEST(GradientRoundRect, RightAndBottomSidesLieAtTheExtentsOfAWindowThatStartsElsewhere)
{
    const QImage image = smoothly(40, 30, [](QPainter& painter) {
        painter.setWindow(QRect(6, 4, 40, 30));
        drawGradientRoundRect(painter, 0, plainGradient(Qt::red), plainGradient(Qt::blue), 1);
    });
    // The sides that are seen lie at 39 - 6 and at 29 - 4.
    EXPECT_THAT(pixelsAt(image, {{0, 10}, {33, 10}, {10, 25}}), Each(kBluePixel));
    EXPECT_THAT(pixelsAt(image, {{34, 10}, {10, 26}}), Each(kWhitePixel));
}

TEST(DefaultGradientBackground, IsLightestAtTheBottom)
{
    const QImage image = defaultBackground(60, 101);
    EXPECT_TRUE(isNear(image.pixel(30, 99), QColor(232, 242, 255), 1));
    EXPECT_TRUE(isNear(image.pixel(30, 50), QColor(209, 226, 247), 1));
    EXPECT_TRUE(isNear(image.pixel(30, 1), QColor(186, 209, 238), 1));
}

TEST(DefaultGradientBackground, IsOutlinedInGreyThatIsLightestAtTheBottom)
{
    const QImage image = defaultBackground(60, 101);
    EXPECT_TRUE(isNear(image.pixel(30, 100), QColor(186, 194, 204), 1));
    EXPECT_TRUE(isNear(image.pixel(0, 50), QColor(168, 181, 197), 1));
    EXPECT_TRUE(isNear(image.pixel(30, 0), QColor(149, 167, 190), 1));
}

TEST(DefaultGradientBackground, HasCornersOfElevenPixelsWhateverTheSize)
{
    const QImage image = defaultBackground(200, 150);
    EXPECT_THAT(pixelsAt(image, {{0, 0}, {2, 2}}), Each(kWhitePixel));
    EXPECT_THAT(pixelsAt(image, {{4, 4}, {12, 0}}), Each(Ne(kWhitePixel)));
}

TEST(GradientLine, FollowsTheGradient)
{
    QLinearGradient gradient(0, 0, 100, 0);
    gradient.setColorAt(0, Qt::black);
    gradient.setColorAt(1, Qt::white);
    const QImage image = smoothly(101, 11, [&gradient](QPainter& painter) {
        drawGradientLine(painter, QPoint(0, 5), QPoint(100, 5), gradient, 4);
    });
    EXPECT_TRUE(isNear(image.pixel(2, 5), QColor(5, 5, 5), 3));
    EXPECT_TRUE(isNear(image.pixel(50, 5), QColor(128, 128, 128), 3));
    EXPECT_TRUE(isNear(image.pixel(98, 4), QColor(250, 250, 250), 3));
}

TEST(GradientLine, HasTheWidthAskedForAndSquareCaps)
{
    const QImage image = smoothly(40, 20, [](QPainter& painter) {
        drawGradientLine(painter, QPoint(10, 10), QPoint(30, 10), plainGradient(Qt::red), 4);
    });
    EXPECT_THAT(pixelsAt(image, {{20, 7}, {20, 12}, {7, 10}, {32, 10}}), Each(kWhitePixel));
    EXPECT_THAT(pixelsAt(image, {{20, 8}, {20, 11}, {8, 10}, {31, 10}}), Each(kRedPixel));
}

TEST(GradientLine, DoesNotUseThePaintersPen)
{
    const QImage image = smoothly(40, 20, [](QPainter& painter) {
        painter.setPen(QPen(Qt::green, 9));
        drawGradientLine(painter, QPoint(10, 10), QPoint(30, 10), plainGradient(Qt::red), 2);
        EXPECT_EQ(painter.pen().color(), QColor(Qt::green));
    });
    EXPECT_EQ(image.pixel(20, 10), kRedPixel);
    EXPECT_EQ(image.pixel(20, 13), kWhitePixel);
}

TEST(PainterSaver, RestoresThePainterAtTheEndOfItsScope)
{
    QImage image(10, 10, QImage::Format_ARGB32);
    QPainter painter(&image);
    {
        const CPainterSaver saver(painter);
        painter.translate(3, 4);
    }
    EXPECT_TRUE(painter.worldTransform().isIdentity());
}

} // namespace
} // namespace cdraw
} // namespace tovangl
