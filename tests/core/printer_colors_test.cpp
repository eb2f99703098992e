// SPDX-License-Identifier: MIT
// The paler colours for print, the same on every version of Qt.
#include "support/CTestChart.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

// The integer nearest to 0.4 x channel + 153. There are no halves: a tenth of an even number.
constexpr int palerChannel(int channel)
{
    return (4 * channel + 1530 + 5) / 10;
}

static_assert(palerChannel(0) == 153);
static_assert(palerChannel(255) == 255);

QColor printed(const QColor& color)
{
    CTestChart chart;
    chart.setOutputDevice(CGraph1dBase::PrinterDevice);
    return chart.getOutputDeviceColor(color);
}

QRgb paintedInPrint(const QColor& color)
{
    CTestChart* self = nullptr;
    CTestChart chart([&](QPainter& painter) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(self->getOutputDeviceColor(color));
        painter.drawRect(0, 0, 8, 8);
    });
    self = &chart;
    return chart.getImageForPrinter(8, 8, 1).pixel(4, 4);
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
        EXPECT_EQ(paintedInPrint(QColor(value, 0, value)), qRgb(paler, 153, paler)) << value;
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
    const CTestChart chart;
    EXPECT_EQ(chart.getOutputDeviceColor(QColor(23, 52, 124, 9)), QColor(23, 52, 124, 9));
}

} // namespace
} // namespace tovangl
