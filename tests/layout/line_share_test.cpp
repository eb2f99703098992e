// SPDX-License-Identifier: MIT
#include "layout/line_share.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

struct CShare
{
    int lineWidth;
    int topOrLeft;
    int bottomOrRight;
};

void PrintTo(const CShare& share, std::ostream* stream)
{
    *stream << share.lineWidth;
}

class LineShareTable : public ::testing::TestWithParam<CShare>
{};

TEST_P(LineShareTable, SharesTheWidth)
{
    EXPECT_EQ(lineShare(GetParam().lineWidth, true), GetParam().topOrLeft);
    EXPECT_EQ(lineShare(GetParam().lineWidth, false), GetParam().bottomOrRight);
}

INSTANTIATE_TEST_SUITE_P(Widths, LineShareTable,
                         ::testing::Values(CShare{1, 1, 0}, CShare{2, 2, 0}, CShare{3, 2, 1},
                                           CShare{4, 3, 1}, CShare{0, 1, -1}, CShare{-3, 0, -3}));

} // namespace
} // namespace tovangl
