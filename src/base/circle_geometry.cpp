// SPDX-License-Identifier: MIT
// Helpers for circles and arc angles.
#include "base/circle_geometry.h"

#include <QPointF>

#include <cmath>

namespace tovangl {
namespace cdraw {

int yCircleIntersection(const QPointF& center, double radius, double y, QPointF& first,
                        QPointF& second)
{
    const double distance = y - center.y();
    const double square = radius * radius - distance * distance;
    if (square < 0)
        return 0;
    const double half = square > 0 ? std::sqrt(square) : 0.0;
    first = QPointF(center.x() - half, y);
    second = QPointF(center.x() + half, y);
    return square > 0 ? 2 : 1;
}

} // namespace cdraw
} // namespace tovangl
