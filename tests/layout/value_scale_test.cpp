// SPDX-License-Identifier: MIT
#include "layout/value_scale.h"

#include <gtest/gtest.h>
#include <limits>

namespace tovangl {
namespace {

constexpr long long kGreatest = std::numeric_limits<long long>::max();
constexpr long long kLeast = std::numeric_limits<long long>::min();
constexpr int kMost = std::numeric_limits<int>::max();

struct CMapping
{
    CValueScale scale;
    long long value;
    int coord;
};

void PrintTo(const CMapping& mapping, std::ostream* stream)
{
    *stream << mapping.value << " on " << mapping.scale.min << " to " << mapping.scale.max;
}

class ValueScaleTable : public ::testing::TestWithParam<CMapping>
{};

TEST_P(ValueScaleTable, MapsTheValue)
{
    EXPECT_EQ(GetParam().scale.coord(GetParam().value), GetParam().coord);
}

constexpr CValueScale kUpTo40{0, 40, 0, 399};
constexpr CValueScale kMixed{-60, 100, 0, 399};
constexpr CValueScale kEndingAtMax{0, 37, 0, 379};

INSTANTIATE_TEST_SUITE_P(Examples, ValueScaleTable,
                         ::testing::Values(CMapping{kUpTo40, 0, 0}, CMapping{kUpTo40, 10, 99},
                                           CMapping{kUpTo40, 20, 199}, CMapping{kUpTo40, 30, 299},
                                           CMapping{kUpTo40, 40, 399}, CMapping{kMixed, 0, 149},
                                           CMapping{kMixed, -40, 50}, CMapping{kMixed, 20, 198},
                                           CMapping{kMixed, -60, 0},
                                           CMapping{kEndingAtMax, 30, 307},
                                           CMapping{kEndingAtMax, 37, 379}));

TEST(ValueScale, CutsZeroAndLengthSeparatelySoTheTopCanBeOneShort)
{
    EXPECT_EQ(kMixed.coord(100), 398);
    EXPECT_EQ(kMixed.coord(0) + kMixed.size(100), 398);
}

TEST(ValueScale, StartsBehindTheBeginShift)
{
    constexpr CValueScale kShifted{0, 40, 7, 399};
    EXPECT_EQ(kShifted.coord(0), 7);
    EXPECT_EQ(kShifted.coord(10), 106);
    EXPECT_EQ(kShifted.size(10), 99);
}

TEST(ValueScale, WithoutRangePutsEveryValueAtItsStart)
{
    constexpr CValueScale kNoRange{0, 0, 5, 399};
    EXPECT_EQ(kNoRange.size(kGreatest), 0);
    EXPECT_EQ(kNoRange.coord(0), 5);
    EXPECT_EQ(kNoRange.coord(kGreatest), 5);
    EXPECT_EQ(kNoRange.coord(kLeast), 5);
}

TEST(ValueScale, RangeOfOppositeExtremesDoesNotWrap)
{
    constexpr CValueScale kWidest{kLeast, kGreatest, 0, 400};
    EXPECT_EQ(kWidest.coord(kLeast), 0);
    EXPECT_EQ(kWidest.coord(0), 200);
    EXPECT_EQ(kWidest.coord(kGreatest), 400);
}

TEST(ValueScale, WithANegativeSpanRunsBackward)
{
    constexpr CValueScale kNarrow{0, 10, 0, -20};
    EXPECT_EQ(kNarrow.coord(10), -20);
    EXPECT_EQ(kNarrow.coord(5), -10);
}

TEST(ValueScale, StaysInTheRangeOfPixels)
{
    constexpr CValueScale kTiny{0, 1, kMost, 1000000};
    EXPECT_EQ(kTiny.size(kGreatest), kMost);
    EXPECT_EQ(kTiny.coord(kGreatest), kMost);
    EXPECT_EQ(kTiny.size(kLeast), std::numeric_limits<int>::min());
}

} // namespace
} // namespace tovangl
