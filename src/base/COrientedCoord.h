// SPDX-License-Identifier: MIT
/// @file
/// A point as (along, across) an axis.
#ifndef TOVANGL_BASE_CORIENTEDCOORD_H
#define TOVANGL_BASE_CORIENTEDCOORD_H

#include "base/pixel_arithmetic.h"

#include <QPoint>

namespace tovangl {

/// A point whose x runs along an axis and whose y runs across it, in pixels.
class COrientedCoord : public QPoint
{
public:
    COrientedCoord() = default;
    COrientedCoord(int along, int across)
        : QPoint(along, across)
    {}

    [[nodiscard]] int along() const { return x(); }
    [[nodiscard]] int across() const { return y(); }

    /// The point on the picture, for a horizontal or a vertical axis.
    [[nodiscard]] QPoint resolve(bool horizontal) const
    {
        return horizontal ? QPoint(along(), across()) : QPoint(across(), along());
    }
};

[[nodiscard]] inline COrientedCoord operator+(const COrientedCoord& a, const COrientedCoord& b)
{
    return COrientedCoord(addPixels(a.along(), b.along()), addPixels(a.across(), b.across()));
}

} // namespace tovangl

#endif
