// SPDX-License-Identifier: MIT
/// @file
/// The outlines of letters in the form of TrueType fonts.
#ifndef TOVANGL_PDF_GLYPH_OUTLINE_H
#define TOVANGL_PDF_GLYPH_OUTLINE_H

#include <vector>

class QPainterPath;

namespace tovangl {

/// A corner of an outline, or the point that bends the curve between its neighbours.
struct COutlinePoint
{
    int x = 0; ///< font units, growing to the right
    int y = 0; ///< growing upward from the baseline
    bool isOnCurve = true;
};

/// A closed line.
using CContour = std::vector<COutlinePoint>;

/// Converts a path, whose unit is that of the font and whose y grows downward.
///
/// Curves of the second degree, which TrueType fonts consist of, keep their points. Those of the
/// third degree become several of the second, at most half a unit beside them.
[[nodiscard]] std::vector<CContour> toContours(const QPainterPath& path);

} // namespace tovangl

#endif
