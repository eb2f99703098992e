// SPDX-License-Identifier: MIT
/// @file
/// How margin and axis share the distance between a picture's edge and an axis line.
#ifndef TOVANGL_LAYOUT_AXIS_SPACES_H
#define TOVANGL_LAYOUT_AXIS_SPACES_H

namespace tovangl {

/// All in pixels of the picture.
struct CAxisSpace
{
    int space = 0;     ///< margin at the picture's edge
    int thickness = 0; ///< from the margin to the axis line
};

/// One of a picture's edges, with the axis that lies along it.
struct CEdgeOfPicture
{
    int extent = 0;    ///< the picture's size toward the opposite edge
    int margin = 0;    ///< scaled
    int lineShare = 0; ///< the part of the axis line's width on the edge's side
};

/// Whether an axis line is fixed: a position outside the picture counts as none.
[[nodiscard]] constexpr bool isFixedPosition(int position, int extent)
{
    return position >= 0 && position <= extent - 1;
}

/// The rule for an axis line at a fixed distance from its own edge, top or left. If the line
/// stands inside the margin, the axis has room only for its line.
[[nodiscard]] constexpr CAxisSpace fixedNearSpace(int position, const CEdgeOfPicture& edge)
{
    if (position > edge.margin)
        return {edge.margin, edge.lineShare + (position - edge.margin)};
    return {position, edge.lineShare};
}

/// The rule for an axis at the bottom.
///
/// Deliberate: its position also counts from the top, so its distance is the rest of the height.
[[nodiscard]] constexpr CAxisSpace fixedFarSpace(int position, const CEdgeOfPicture& edge)
{
    return fixedNearSpace(edge.extent - 1 - position, edge);
}

/// The rule for an axis that is not fixed: it gets at most a quarter of the picture.
///
/// @param wanted  how thick the axis would be, in pixels
[[nodiscard]] constexpr CAxisSpace freeSpace(int wanted, const CEdgeOfPicture& edge)
{
    const int most = edge.extent / 4;
    return {edge.margin, wanted < most ? wanted : most};
}

} // namespace tovangl

#endif
