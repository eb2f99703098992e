// SPDX-License-Identifier: MIT
#include "output/CColorIndex.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

TEST(ColorIndex, NumbersColoursInTheOrderOfAdding)
{
    CColorIndex index;
    EXPECT_EQ(index.add(qRgb(1, 2, 3)), 0);
    EXPECT_EQ(index.add(qRgb(4, 5, 6)), 1);
    EXPECT_EQ(index.add(qRgb(1, 2, 3)), 0);
    EXPECT_EQ(index.count(), 2);
    EXPECT_EQ(index.colorAt(1), qRgb(4, 5, 6));
    EXPECT_EQ(index.numberOf(qRgb(4, 5, 6)), 1);
}

TEST(ColorIndex, Holds256ColoursAndNotOneMore)
{
    CColorIndex index;
    for (int i = 0; i < CColorIndex::kMaxColors; ++i)
        EXPECT_EQ(index.add(qRgb(i, 7, 7)), i);
    EXPECT_EQ(index.add(qRgb(7, 7, 8)), CColorIndex::kFull);
    EXPECT_EQ(index.add(qRgb(255, 7, 7)), 255);
    EXPECT_EQ(index.count(), CColorIndex::kMaxColors);
}

} // namespace
} // namespace tovangl
