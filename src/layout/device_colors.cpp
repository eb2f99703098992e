// SPDX-License-Identifier: MIT
// Colours that depend on the output device or on the position of a shape.
#include "layout/device_colors.h"

#include <cmath>

namespace tovangl {

namespace {

// To save ink, every channel moves this far toward white.
constexpr double kPrinterWhite = 0.6;
constexpr double kPrinterInk = 0.4;

constexpr int kLargestChannel = 255;

// A colour channel as a fraction of 1: double or float, depending on the version of Qt.
using Channel = decltype(QColor().redF());

Channel lightenForPrinter(Channel channel)
{
    return static_cast<Channel>(channel * kPrinterInk + kPrinterWhite);
}

// The difference is truncated to a whole number before it is added.
double interpolateChannel(int from, int to, double t)
{
    return from + std::trunc((to - from) * t);
}

bool isChannel(double value)
{
    return value >= 0 && value <= kLargestChannel;
}

} // namespace

QColor getOutputDeviceColor(const QColor& color, OutputDevice device)
{
    QColor result = color;
    if (device == OutputDevice::Printer) {
        result.setRedF(lightenForPrinter(color.redF()));
        result.setGreenF(lightenForPrinter(color.greenF()));
        result.setBlueF(lightenForPrinter(color.blueF()));
    }
    return result;
}

QColor cdraw::linearInterpolation(const QColor& from, const QColor& to, double t)
{
    const double red = interpolateChannel(from.red(), to.red(), t);
    const double green = interpolateChannel(from.green(), to.green(), t);
    const double blue = interpolateChannel(from.blue(), to.blue(), t);
    if (!isChannel(red) || !isChannel(green) || !isChannel(blue))
        return QColor();
    return QColor(static_cast<int>(red), static_cast<int>(green), static_cast<int>(blue));
}

} // namespace tovangl
