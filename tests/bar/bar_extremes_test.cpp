// SPDX-License-Identifier: MIT
// Bar charts of numbers that do not fit.
#include "bar/bar_chart_support.h"

#include <chrono>
#include <gtest/gtest.h>
#include <limits>
#include <type_traits>

namespace tovangl {
namespace {

constexpr int kMost = std::numeric_limits<int>::max();
constexpr long long kGreatest = std::numeric_limits<long long>::max();
constexpr long long kLeast = std::numeric_limits<long long>::min();

double secondsFor(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

template <typename Chart>
class BarExtremes : public ::testing::Test
{};

struct CChartNames
{
    template <typename Chart>
    static std::string GetName(int)
    {
        return std::is_same_v<Chart, CUprightBars> ? "Upright" : "Lying";
    }
};

using Charts = ::testing::Types<CUprightBars, CLyingBars>;
TYPED_TEST_SUITE(BarExtremes, Charts, CChartNames);

TYPED_TEST(BarExtremes, AllPairsOfExtremeValuesAreDrawn)
{
    const std::vector<long long> values{kLeast, kLeast + 1, -1, 0, 1, kGreatest - 1, kGreatest};
    for (const long long a : values) {
        for (const long long b : values) {
            TypeParam chart(true);
            chart.add(a);
            chart.add(b);
            EXPECT_FALSE(chart.getImage(200, 150).isNull());
            EXPECT_LE(chart.numberAxis()->labels().size(), 1003U);
        }
    }
}

TYPED_TEST(BarExtremes, WidestBarsAreDrawn)
{
    for (const int width : {1000000, kMost}) {
        TypeParam chart(true);
        chart.setBarWidth(width);
        chart.addMany(5);
        EXPECT_FALSE(chart.getImage(200, 150).isNull());
        EXPECT_FALSE(chart.getImageForPrinter(200, 150, 4).isNull());
    }
}

TYPED_TEST(BarExtremes, EveryPositionIsDrawnOrLeftOut)
{
    for (const int x : {0, 9, 10, 11, 188, 189, 199, 200, kMost}) {
        for (const int y : {0, 9, 10, 11, 138, 139, 149, 150, kMost}) {
            TypeParam chart(true);
            chart.setPosition(x, y);
            chart.addMany(5);
            EXPECT_FALSE(chart.getImage(200, 150).isNull());
        }
    }
}

TYPED_TEST(BarExtremes, AllPropertiesAtOnceAreDrawn)
{
    TypeParam chart(true);
    chart.setHorizontalAxis(CAxis::Properties(QFlag(-1)), "title");
    chart.setVerticalAxis(CAxis::Properties(QFlag(-1)), "title");
    chart.addMany(5);
    EXPECT_FALSE(chart.getImage(200, 150).isNull());
}

TYPED_TEST(BarExtremes, SmallestPicturesAreDrawn)
{
    TypeParam chart(true);
    chart.addMany(5);
    for (int width = 1; width < 60; ++width) {
        for (int height = 1; height < 60; ++height)
            ASSERT_FALSE(chart.getImage(width, height).isNull());
    }
}

TYPED_TEST(BarExtremes, NoCategoriesThroughTheThresholdAreDrawnAsAnEmptyChart)
{
    TypeParam chart(true);
    chart.addMany(5);
    for (const double threshold : {101.0, std::numeric_limits<double>::quiet_NaN()}) {
        chart.setThreshold(threshold);
        EXPECT_FALSE(chart.getImage(200, 150).isNull());
        EXPECT_TRUE(chart.bars().empty());
        EXPECT_TRUE(chart.numberAxis()->isGraphEmpty());
    }
}

TYPED_TEST(BarExtremes, OneLargeNegativeValueCostsNoTime)
{
    TypeParam chart(true);
    chart.add(600);
    chart.add(-1000000000000);
    EXPECT_LT(secondsFor([&chart] { chart.getImage(400, 300); }), 1.0);
}

TYPED_TEST(BarExtremes, ManyBarsCostLinearTime)
{
    TypeParam chart(true);
    for (int i = 0; i < 20000; ++i)
        chart.add(i % 1000 + 1, "bar");
    EXPECT_LT(secondsFor([&chart] { chart.getImage(400, 300); }), 10.0);
}

TYPED_TEST(BarExtremes, ClearedChartIsDrawnEmpty)
{
    TypeParam chart(true);
    chart.addMany(5);
    chart.getImage(200, 150);
    chart.clear();
    EXPECT_TRUE(chart.bars().empty());
    EXPECT_FALSE(chart.getImage(200, 150).isNull());
}

} // namespace
} // namespace tovangl
