// SPDX-License-Identifier: MIT
// From the host's types to the library's own, and back.
#include "api/conversions.h"

#include "base/pixel_arithmetic.h"

namespace tovangl {

namespace {

constexpr int kLargestChannel = 255;

bool isChannel(int value)
{
    return value >= 0 && value <= kLargestChannel;
}

} // namespace

QColor toQColor(const Color& color)
{
    const bool isSet = isChannel(color.red) && isChannel(color.green) && isChannel(color.blue);
    return isSet ? QColor(color.red, color.green, color.blue) : QColor();
}

Rectangle toRectangle(const QRect& rect)
{
    return Rectangle{rect.left(), rect.top(),
                     clampToInt(inclusiveExtent(rect.left(), rect.right())),
                     clampToInt(inclusiveExtent(rect.top(), rect.bottom()))};
}

void assignRectangles(std::list<Rectangle>& list, const std::vector<QRect>& rects)
{
    std::list<Rectangle> converted;
    for (const QRect& rect : rects)
        converted.push_back(toRectangle(rect));
    list.swap(converted);
}

} // namespace tovangl
