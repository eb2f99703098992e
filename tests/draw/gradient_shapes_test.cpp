// SPDX-License-Identifier: MIT
#include "draw/CPainterSaver.h"
#include "draw/gradient_shapes.h"

#include <QColor>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>

#include <functional>
#include <gtest/gtest.h>

namespace tovangl {
namespace cdraw {
namespace {

constexpr QRgb kWhite = 0xffffffff;

QImage painted(int width, int height, const std::function<void(QPainter&)>& paint)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(kWhite);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, true);
    paint(painter);
    painter.end();
    return image;
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
    return painted(width, height, [radius](QPainter& painter) {
        drawGradientRoundRect(painter, radius, plainGradient(Qt::red), plainGradient(Qt::blue));
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
    EXPECT_EQ(image.pixel(20, 15), 0xffff0000);
    EXPECT_EQ(image.pixel(20, 1), 0xffff0000);
    EXPECT_EQ(image.pixel(20, 0), 0xff0000ff);
    EXPECT_EQ(image.pixel(20, 29), 0xff0000ff);
    EXPECT_EQ(image.pixel(0, 15), 0xff0000ff);
    EXPECT_EQ(image.pixel(39, 15), 0xff0000ff);
}

TEST(GradientRoundRect, LeavesItsCornersOpen)
{
    const QImage image = paintedRect(40, 30, 11);
    EXPECT_EQ(image.pixel(0, 0), kWhite);
    EXPECT_EQ(image.pixel(39, 0), kWhite);
    EXPECT_EQ(image.pixel(0, 29), kWhite);
    EXPECT_EQ(image.pixel(39, 29), kWhite);
}

TEST(GradientRoundRect, OfRadiusZeroIsAPlainRectangle)
{
    const QImage image = paintedRect(40, 30, 0);
    EXPECT_EQ(image.pixel(0, 0), 0xff0000ff);
    EXPECT_EQ(image.pixel(39, 0), 0xff0000ff);
    EXPECT_EQ(image.pixel(0, 29), 0xff0000ff);
    EXPECT_EQ(image.pixel(39, 29), 0xff0000ff);
    EXPECT_EQ(image.pixel(1, 1), 0xffff0000);
    EXPECT_EQ(image.pixel(38, 28), 0xffff0000);
}

TEST(GradientRoundRect, LeavesThePainterTranslatedByHalfAPixel)
{
    QImage image(10, 10, QImage::Format_ARGB32);
    QPainter painter(&image);
    drawGradientRoundRect(painter, 2, plainGradient(Qt::red), plainGradient(Qt::blue));
    EXPECT_EQ(painter.worldTransform().dx(), 0.5);
    EXPECT_EQ(painter.worldTransform().dy(), 0.5);
}

TEST(GradientRoundRect, RightAndBottomSidesLieAtTheExtentsOfAWindowThatStartsElsewhere)
{
    const QImage image = painted(40, 30, [](QPainter& painter) {
        painter.setWindow(QRect(6, 4, 40, 30));
        drawGradientRoundRect(painter, 0, plainGradient(Qt::red), plainGradient(Qt::blue));
    });
    EXPECT_EQ(image.pixel(0, 10), 0xff0000ff);
    EXPECT_EQ(image.pixel(33, 10), 0xff0000ff); // 39 - 6
    EXPECT_EQ(image.pixel(34, 10), kWhite);
    EXPECT_EQ(image.pixel(10, 25), 0xff0000ff); // 29 - 4
    EXPECT_EQ(image.pixel(10, 26), kWhite);
}

TEST(DefaultGradientBackground, IsLightestAtTheBottom)
{
    const QImage image =
        painted(60, 101, [](QPainter& painter) { drawDefaultGradientBackground(painter); });
    EXPECT_TRUE(isNear(image.pixel(30, 99), QColor(232, 242, 255), 1));
    EXPECT_TRUE(isNear(image.pixel(30, 50), QColor(209, 226, 247), 1));
    EXPECT_TRUE(isNear(image.pixel(30, 1), QColor(186, 209, 238), 1));
}

TEST(DefaultGradientBackground, IsOutlinedInGreyThatIsLightestAtTheBottom)
{
    const QImage image =
        painted(60, 101, [](QPainter& painter) { drawDefaultGradientBackground(painter); });
    EXPECT_TRUE(isNear(image.pixel(30, 100), QColor(186, 194, 204), 1));
    EXPECT_TRUE(isNear(image.pixel(0, 50), QColor(168, 181, 197), 1));
    EXPECT_TRUE(isNear(image.pixel(30, 0), QColor(149, 167, 190), 1));
}

TEST(DefaultGradientBackground, HasCornersOfElevenPixelsWhateverTheSize)
{
    const QImage image =
        painted(200, 150, [](QPainter& painter) { drawDefaultGradientBackground(painter); });
    EXPECT_EQ(image.pixel(2, 2), kWhite);
    EXPECT_NE(image.pixel(4, 4), kWhite);
    EXPECT_EQ(image.pixel(0, 0), kWhite);
    EXPECT_NE(image.pixel(12, 0), kWhite);
}

TEST(GradientLine, FollowsTheGradient)
{
    QLinearGradient gradient(0, 0, 100, 0);
    gradient.setColorAt(0, Qt::black);
    gradient.setColorAt(1, Qt::white);
    const QImage image = painted(101, 11, [&gradient](QPainter& painter) {
        drawGradientLine(painter, QPoint(0, 5), QPoint(100, 5), gradient, 4);
    });
    EXPECT_TRUE(isNear(image.pixel(2, 5), QColor(5, 5, 5), 3));
    EXPECT_TRUE(isNear(image.pixel(50, 5), QColor(128, 128, 128), 3));
    EXPECT_TRUE(isNear(image.pixel(98, 4), QColor(250, 250, 250), 3));
}

TEST(GradientLine, HasTheWidthAskedForAndSquareCaps)
{
    const QImage image = painted(40, 20, [](QPainter& painter) {
        drawGradientLine(painter, QPoint(10, 10), QPoint(30, 10), plainGradient(Qt::red), 4);
    });
    EXPECT_EQ(image.pixel(20, 7), kWhite);
    EXPECT_EQ(image.pixel(20, 8), 0xffff0000);
    EXPECT_EQ(image.pixel(20, 11), 0xffff0000);
    EXPECT_EQ(image.pixel(20, 12), kWhite);
    EXPECT_EQ(image.pixel(7, 10), kWhite);
    EXPECT_EQ(image.pixel(8, 10), 0xffff0000);
    EXPECT_EQ(image.pixel(31, 10), 0xffff0000);
    EXPECT_EQ(image.pixel(32, 10), kWhite);
}

TEST(GradientLine, DoesNotUseThePaintersPen)
{
    const QImage image = painted(40, 20, [](QPainter& painter) {
        painter.setPen(QPen(Qt::green, 9));
        drawGradientLine(painter, QPoint(10, 10), QPoint(30, 10), plainGradient(Qt::red), 2);
        EXPECT_EQ(painter.pen().color(), QColor(Qt::green));
    });
    EXPECT_EQ(image.pixel(20, 10), 0xffff0000);
    EXPECT_EQ(image.pixel(20, 13), kWhite);
}

TEST(LinearInterpolation, TruncatesAndDoesNotRound)
{
    const QColor middle = linearInterpolation(QColor(0, 0, 0), QColor(255, 255, 255), 0.5);
    EXPECT_EQ(middle, QColor(127, 127, 127));
}

TEST(LinearInterpolation, TruncatesTowardZeroOnTheWayDownToo)
{
    const QColor middle = linearInterpolation(QColor(255, 255, 255), QColor(0, 0, 0), 0.5);
    EXPECT_EQ(middle, QColor(128, 128, 128));
}

TEST(LinearInterpolation, EndsAtTheTwoColors)
{
    EXPECT_EQ(linearInterpolation(QColor(1, 2, 3), QColor(200, 100, 0), 0), QColor(1, 2, 3));
    EXPECT_EQ(linearInterpolation(QColor(1, 2, 3), QColor(200, 100, 0), 1), QColor(200, 100, 0));
}

TEST(LinearInterpolation, IsOpaqueWhateverTheColorsAre)
{
    const QColor mixed = linearInterpolation(QColor(0, 0, 0, 10), QColor(100, 100, 100, 20), 0.5);
    EXPECT_EQ(mixed.alpha(), 255);
}

TEST(LinearInterpolation, ContinuesBeyondTheColorsUntilAChannelLeavesItsRange)
{
    const QColor from(100, 100, 100);
    const QColor to(150, 150, 150);
    EXPECT_EQ(linearInterpolation(from, to, 2), QColor(200, 200, 200));
    EXPECT_EQ(linearInterpolation(from, to, -1), QColor(50, 50, 50));
    EXPECT_FALSE(linearInterpolation(from, to, 4).isValid());
    EXPECT_FALSE(linearInterpolation(from, to, -3).isValid());
}

TEST(LinearInterpolation, TakesAnyNumber)
{
    EXPECT_FALSE(linearInterpolation(Qt::black, Qt::white, 1e300).isValid());
    EXPECT_FALSE(linearInterpolation(Qt::black, Qt::white, -1e300).isValid());
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
