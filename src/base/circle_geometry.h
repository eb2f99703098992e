// SPDX-License-Identifier: MIT
/// @file
/// Helpers for circles and arc angles.
#ifndef TOVANGL_BASE_CIRCLE_GEOMETRY_H
#define TOVANGL_BASE_CIRCLE_GEOMETRY_H

class QPointF;

namespace tovangl {
namespace cdraw {

/// Arc angles are in sixteenths of a degree.
inline constexpr int kUnitsPerDegree = 16;
inline constexpr int kFullCircle = 360 * kUnitsPerDegree;
inline constexpr int kHalfCircle = kFullCircle / 2;
inline constexpr int kQuarterCircle = kFullCircle / 4;
static_assert(kFullCircle == 5760);

/// Where the horizontal line at y meets the circle. Returns the number of points, 0 to 2; with 0
/// the points are left as they were, with 1 both are set to it.
int yCircleIntersection(const QPointF& center, double radius, double y, QPointF& first,
                        QPointF& second);

/// Brings an angle in sixteenths of a degree into the closed range of half a turn either way: both
/// -2880 and 2880 stay as they are.
[[nodiscard]] constexpr int normalizeArc(int angle)
{
    const int rest = angle % kFullCircle;
    if (rest < -kHalfCircle)
        return rest + kFullCircle;
    return rest > kHalfCircle ? rest - kFullCircle : rest;
}

} // namespace cdraw
} // namespace tovangl

#endif
