// SPDX-License-Identifier: MIT
// Where an axis runs, and on which side of it its texts stand.
#include "layout/CAxisFrame.h"

namespace tovangl {

namespace {

// A rectangle's edges along an axis and across it.
struct COrientedEdges
{
    int alongFirst, alongLast, acrossFirst, acrossLast;
};

COrientedEdges orientedEdges(const QRect& rect, bool horizontal)
{
    if (horizontal)
        return {rect.left(), rect.right(), rect.top(), rect.bottom()};
    return {rect.top(), rect.bottom(), rect.left(), rect.right()};
}

int applySign(int value, int sign)
{
    return clampToInt(std::int64_t{value} * sign);
}

// One less than the number of pixels between the edges.
int edgeDistance(int first, int last)
{
    return clampToInt(std::int64_t{last} - first);
}

bool isBeside(CAxisFrame::LegendLocation location)
{
    return location == CAxisFrame::Left || location == CAxisFrame::Right;
}

} // namespace

CAxisFrame::CAxisFrame(Orientation orientation, LegendLocation location)
    : m_orientation(orientation)
    , m_legendLocation(location)
{
    if (isHorizontal() == isBeside(location))
        m_legendLocation = isHorizontal() ? Bottom : Left;
}

bool CAxisFrame::isHorizontal() const
{
    return m_orientation == LeftToRight || m_orientation == RightToLeft;
}

bool CAxisFrame::isTopOrLeft() const
{
    return m_legendLocation == Top || m_legendLocation == Left;
}

bool CAxisFrame::startsAtLine() const
{
    return m_legendLocation == Top || m_legendLocation == Right;
}

int CAxisFrame::alongSign() const
{
    return m_orientation == LeftToRight || m_orientation == TopToBottom ? 1 : -1;
}

int CAxisFrame::acrossSign() const
{
    return isHorizontal() ? -1 : 1; // upward, or to the right
}

int CAxisFrame::signedAlong(int along) const
{
    return applySign(along, alongSign());
}

QPoint CAxisFrame::resolveOrientedCoordSigned(const COrientedCoord& coord) const
{
    return resolveOrientedCoordSigned(coord.along(), coord.across());
}

QPoint CAxisFrame::resolveOrientedCoordSigned(int along, int across) const
{
    return COrientedCoord(signedAlong(along), applySign(across, acrossSign()))
        .resolve(isHorizontal());
}

QSize CAxisFrame::orientedSize(const QRect& rect) const
{
    const COrientedEdges edges = orientedEdges(rect, isHorizontal());
    return QSize(addPixels(edgeDistance(edges.alongFirst, edges.alongLast), 1),
                 addPixels(edgeDistance(edges.acrossFirst, edges.acrossLast), 1));
}

int CAxisFrame::distanceAlong(const QRect& rect) const
{
    const COrientedEdges edges = orientedEdges(rect, isHorizontal());
    return edgeDistance(edges.alongFirst, edges.alongLast);
}

COrientedCoord CAxisFrame::originIn(const QRect& rect) const
{
    const COrientedEdges edges = orientedEdges(rect, isHorizontal());
    const int along = isReversed() ? edges.alongLast : edges.alongFirst;
    const int across = isTopOrLeft() ? edges.acrossLast : edges.acrossFirst;
    return COrientedCoord(signedAlong(along), applySign(across, acrossSign()));
}

} // namespace tovangl
