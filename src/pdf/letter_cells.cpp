// SPDX-License-Identifier: MIT
// Divides glyphs among the letters that they stand for together.
#include "pdf/letter_cells.h"

#include "pdf/text_shaping.h"

#include <algorithm>

namespace tovangl {

namespace {

// The first cell has what begins there or before.
CLetterCell& cellAt(CLetterCells& cells, double place)
{
    const auto next = std::upper_bound(
        cells.cells.begin() + 1, cells.cells.end(), place,
        [](double position, const CLetterCell& cell) { return position < cell.left; });
    return *(next - 1);
}

} // namespace

CLetterCells letterCells(const CShapedRun& run, double right, std::size_t count)
{
    double left = 0;
    double end = right;
    for (const QPointF& position : run.positions) {
        left = std::min(left, position.x());
        end = std::max(end, position.x());
    }
    CLetterCells result;
    result.width = (end - left) / static_cast<double>(count);
    result.cells.resize(count);
    for (std::size_t i = 0; i < count; ++i)
        result.cells[i].left = left + static_cast<double>(i) * result.width;
    for (std::size_t i = 0; i < run.glyphs.size(); ++i) {
        if (run.isPicture(i))
            continue;
        const QPointF& position = run.positions[i];
        CLetterCell& cell = cellAt(result, position.x());
        cell.glyphs.push_back({run.glyphs[i], position - QPointF(cell.left, 0)});
    }
    return result;
}

} // namespace tovangl
