// SPDX-License-Identifier: MIT
/// @file
/// Divides glyphs among the letters that they stand for together.
#ifndef TOVANGL_PDF_LETTER_CELLS_H
#define TOVANGL_PDF_LETTER_CELLS_H

#include <QPointF>

#include <cstdint>
#include <vector>

namespace tovangl {

struct CShapedRun;

/// A glyph in a cell.
struct CCellGlyph
{
    std::uint32_t glyph = 0;
    QPointF place; ///< pixels, from the cell's left end on the baseline
};

/// What stands in an equal part of a run's width.
struct CLetterCell
{
    double left = 0; ///< pixels
    std::vector<CCellGlyph> glyphs;
};

/// Cells that cover a run's width.
struct CLetterCells
{
    double width = 0;               ///< of each, in pixels
    std::vector<CLetterCell> cells; ///< from left to right
};

/// Divides a run into cells, and its glyphs among them by where they begin. Those that are pictures
/// are left out.
///
/// @param right  where the run ends, in pixels from the left end of the baseline
/// @param count  of the cells; above 0
[[nodiscard]] CLetterCells letterCells(const CShapedRun& run, double right, std::size_t count);

} // namespace tovangl

#endif
