// SPDX-License-Identifier: MIT
/// @file
/// Where an axis runs, and on which side of it its texts stand.
#ifndef TOVANGL_LAYOUT_CAXISFRAME_H
#define TOVANGL_LAYOUT_CAXISFRAME_H

#include "base/COrientedCoord.h"

#include <QRect>
#include <QSize>

namespace tovangl {

/// Converts (along, across) an axis into (x, y) on the picture. Only this class distinguishes the
/// orientations.
class CAxisFrame
{
public:
    enum Orientation
    {
        LeftToRight = 0,
        RightToLeft = 1,
        BottomToTop = 2,
        TopToBottom = 3
    };

    /// The side of the axis line on which labels and title stand.
    enum LegendLocation
    {
        Top = 0,
        Bottom = 1,
        Left = 2,
        Right = 3
    };

    /// A location that does not suit the orientation becomes Bottom or Left.
    CAxisFrame(Orientation orientation, LegendLocation location);

    [[nodiscard]] Orientation orientation() const { return m_orientation; }
    [[nodiscard]] LegendLocation legendLocation() const { return m_legendLocation; }
    [[nodiscard]] bool isHorizontal() const;
    [[nodiscard]] bool isTopOrLeft() const;
    /// Whether the axis runs toward smaller coordinates of the picture, to the left or upward.
    [[nodiscard]] bool isReversed() const { return alongSign() < 0; }
    /// Whether texts across the axis begin at its line, instead of ending there.
    [[nodiscard]] bool startsAtLine() const;
    [[nodiscard]] int alongSign() const;
    [[nodiscard]] int acrossSign() const;

    /// A distance along the axis with the sign of the picture's direction: rightward or downward.
    [[nodiscard]] int signedAlong(int along) const;
    /// The point on the picture for a coordinate before the signs are applied.
    [[nodiscard]] QPoint resolveOrientedCoordSigned(const COrientedCoord& coord) const;
    [[nodiscard]] QPoint resolveOrientedCoordSigned(int along, int across) const;
    /// A rectangle's size as (along, across) the axis, edges included.
    [[nodiscard]] QSize orientedSize(const QRect& rect) const;
    /// The distance in pixels between a rectangle's first and last pixel along the axis.
    [[nodiscard]] int distanceAlong(const QRect& rect) const;
    /// Where an axis that is fitted to the rectangle starts: at the rectangle's edge on the side
    /// away from the texts. The signs are applied.
    [[nodiscard]] COrientedCoord originIn(const QRect& rect) const;

private:
    Orientation m_orientation;
    LegendLocation m_legendLocation;
};

} // namespace tovangl

#endif
