// SPDX-License-Identifier: MIT
// Tells how far two pictures differ.
#include "golden/image_comparison.h"

#include <QImage>

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace tovangl {

namespace {

int channelDifference(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
}

} // namespace

std::string CImageDifference::text() const
{
    std::ostringstream stream;
    if (!isSameSize)
        stream << "the sizes differ";
    else
        stream << pixels << " pixels differ, by up to " << greatest << ", in " << box.width() << 'x'
               << box.height() << " at " << box.left() << ',' << box.top();
    return stream.str();
}

CImageDifference compareImages(const QImage& a, const QImage& b, int tolerance)
{
    CImageDifference difference;
    difference.isSameSize = a.size() == b.size();
    if (!difference.isSameSize)
        return difference;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const int distance = channelDifference(a.pixel(x, y), b.pixel(x, y));
            difference.greatest = std::max(difference.greatest, distance);
            if (distance <= tolerance)
                continue;
            ++difference.pixels;
            difference.box |= QRect(x, y, 1, 1);
        }
    }
    return difference;
}

} // namespace tovangl
