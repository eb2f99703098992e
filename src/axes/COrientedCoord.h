// SPDX-License-Identifier: MIT
/// @file
/// A point told as (along, across) an axis.
#ifndef TOVANGL_AXES_CORIENTEDCOORD_H
#define TOVANGL_AXES_CORIENTEDCOORD_H

#include "core/pixel_arithmetic.h"

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
    COrientedCoord(const COrientedCoord&) = default;
    COrientedCoord& operator=(const COrientedCoord&) = default;
    virtual ~COrientedCoord() = default;

    [[nodiscard]] int along() const { return x(); }
    [[nodiscard]] int across() const { return y(); }

    /// The point on the picture, for an axis that runs horizontally or not.
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
