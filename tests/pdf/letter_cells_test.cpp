// SPDX-License-Identifier: MIT
#include "pdf/letter_cells.h"
#include "pdf/text_shaping.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr double kRight = 12; // pixels

CShapedRun runOf(const std::vector<QPointF>& positions)
{
    CShapedRun run;
    run.positions = positions;
    for (std::size_t i = 0; i < positions.size(); ++i)
        run.glyphs.push_back(static_cast<std::uint32_t>(i));
    return run;
}

TEST(LetterCells, AreEqualPartsOfARun)
{
    const CLetterCells cells = letterCells(runOf({{0, 0}, {9, 0}}), kRight, 3);
    EXPECT_DOUBLE_EQ(cells.width, 4);
    ASSERT_EQ(cells.cells.size(), 3u);
    EXPECT_DOUBLE_EQ(cells.cells[0].left, 0);
    EXPECT_DOUBLE_EQ(cells.cells[2].left, 8);
}

TEST(LetterCells, HaveTheGlyphsThatBeginInThem)
{
    const CLetterCells cells = letterCells(runOf({{0, 0}, {1, -3}, {9, 0}}), kRight, 3);
    EXPECT_EQ(cells.cells[0].glyphs.size(), 2u);
    EXPECT_EQ(cells.cells[1].glyphs.size(), 0u);
    ASSERT_EQ(cells.cells[2].glyphs.size(), 1u);
    EXPECT_EQ(cells.cells[2].glyphs[0].glyph, 2u);
}

TEST(LetterCells, HaveNoGlyphsThatImagesShow)
{
    CShapedRun run = runOf({{0, 0}, {9, 0}});
    run.pictures = {1};
    const CLetterCells cells = letterCells(run, kRight, 3);
    EXPECT_EQ(cells.cells[0].glyphs.size(), 1u);
    EXPECT_EQ(cells.cells[2].glyphs.size(), 0u);
}

TEST(LetterCells, LeaveGlyphsWhereTheyAre)
{
    const CLetterCells cells = letterCells(runOf({{9, -3}}), kRight, 3);
    ASSERT_EQ(cells.cells[2].glyphs.size(), 1u);
    EXPECT_EQ(cells.cells[2].glyphs[0].place, QPointF(1, -3));
}

TEST(LetterCells, BeginWhereTheFirstGlyphHangsOutToTheLeft)
{
    const CLetterCells cells = letterCells(runOf({{-4, 0}, {0, 0}}), kRight, 2);
    EXPECT_DOUBLE_EQ(cells.width, 8);
    EXPECT_DOUBLE_EQ(cells.cells[0].left, -4);
    EXPECT_EQ(cells.cells[0].glyphs.size(), 2u);
}

TEST(LetterCells, OfNoWidthHaveAllGlyphsInTheLastOne)
{
    const CLetterCells cells = letterCells(runOf({{0, 0}, {0, 0}}), 0, 2);
    EXPECT_DOUBLE_EQ(cells.width, 0);
    EXPECT_EQ(cells.cells[1].glyphs.size(), 2u);
}

} // namespace
} // namespace tovangl
