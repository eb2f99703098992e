// SPDX-License-Identifier: MIT
// Colours for print and between two others, the same on every version of Qt.
#include "layout/device_colors.h"
#include "support/pixels.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

using cdraw::linearInterpolation;

// The integer nearest to 0.4 x channel + 153. There are no halves: a tenth of an even number.
constexpr int palerChannel(int channel)
{
    return (4 * channel + 1530 + 5) / 10;
}

static_assert(palerChannel(0) == 153);
static_assert(palerChannel(255) == 255);

QColor printed(const QColor& color)
{
    return getOutputDeviceColor(color, OutputDevice::Printer);
}

TEST(PrinterColor, EveryChannelValueMovesTowardWhite)
{
    for (int value = 0; value <= 255; ++value) {
        const int other = 255 - value;
        const QColor color = printed(QColor(value, other, value));
        EXPECT_EQ(color.red(), palerChannel(value)) << value;
        EXPECT_EQ(color.green(), palerChannel(other)) << value;
        EXPECT_EQ(color.blue(), palerChannel(value)) << value;
    }
}

TEST(PrinterColor, EveryChannelValueIsPaintedAsItReads)
{
    for (int value = 0; value <= 255; ++value) {
        const int paler = palerChannel(value);
        const QImage image = painted(8, 8, [value](QPainter& painter) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(printed(QColor(value, 0, value)));
            painter.drawRect(0, 0, 8, 8);
        });
        EXPECT_EQ(image.pixel(4, 4), qRgb(paler, 153, paler)) << value;
    }
}

TEST(PrinterColor, OfTheFirstDefaultColor)
{
    EXPECT_EQ(printed(QColor(23, 52, 124)).rgb(), qRgb(162, 174, 203));
}

TEST(PrinterColor, KeepsAlpha)
{
    EXPECT_EQ(printed(QColor(10, 20, 30, 77)).alpha(), 77);
}

TEST(PrinterColor, IsTheColorItselfOnScreen)
{
    const QColor color(23, 52, 124, 9);
    EXPECT_EQ(getOutputDeviceColor(color, OutputDevice::Screen), color);
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

} // namespace
} // namespace tovangl
