// SPDX-License-Identifier: MIT
// Bar charts of numbers that do not fit.
#include "support/CBarChart.h"

#include <gtest/gtest.h>
#include <limits>

namespace tovangl {
namespace {

constexpr int kMost = std::numeric_limits<int>::max();
constexpr long long kGreatest = std::numeric_limits<long long>::max();
constexpr long long kLeast = std::numeric_limits<long long>::min();
const CRequest kSmall = onScreen(200, 150);

class BarExtremes : public ::testing::TestWithParam<BarKind>
{
protected:
    CBarChart chart{GetParam(), true};
};

INSTANTIATE_TEST_SUITE_P(Kinds, BarExtremes, ::testing::Values(BarKind::Standing, BarKind::Lying),
                         [](const auto& kind) {
                             return kind.param == BarKind::Standing ? "Upright" : "Lying";
                         });

TEST_P(BarExtremes, AllPairsOfExtremeValuesHaveAScaleOfBoundedLength)
{
    const std::vector<long long> values{kLeast, kLeast + 1, -1, 0, 1, kGreatest - 1, kGreatest};
    for (const long long a : values) {
        for (const long long b : values) {
            CBarChart pair(GetParam(), true);
            pair.add(a);
            pair.add(b);
            const CBarLayout layout = pair.drawn(kSmall).layout;
            ASSERT_TRUE(layout.fits());
            EXPECT_LE(layout.numberAxis->labels.size(), 1003U);
        }
    }
}

TEST_P(BarExtremes, WidestBarsKeepTheirWidthOrTheGreatestThereIs)
{
    chart.addMany(5);
    for (const int width : {1000000, kMost}) {
        chart.input.barWidth = width;
        EXPECT_EQ(chart.drawn(kSmall).layout.barWidth, width);
        EXPECT_EQ(chart.drawn(inPrint(200, 150, 4)).layout.barWidth, scalePixels(width, 4));
    }
}

TEST_P(BarExtremes, EveryPositionHasItsPlotInThePictureOrNone)
{
    chart.addMany(5);
    for (const int x : {0, 9, 10, 11, 188, 189, 199, 200, kMost}) {
        for (const int y : {0, 9, 10, 11, 138, 139, 149, 150, kMost}) {
            chart.input.position = QPoint(x, y);
            const CDrawnBars drawn = chart.drawn(kSmall);
            EXPECT_TRUE(!drawn.layout.fits() || drawn.image.rect().contains(drawn.layout.plotRect));
        }
    }
}

TEST_P(BarExtremes, SmallestPicturesHaveTheirPlotInsideOrNone)
{
    chart.addMany(5);
    for (int width = 1; width < 60; ++width) {
        for (int height = 1; height < 60; ++height) {
            const CDrawnBars drawn = chart.drawn(onScreen(width, height));
            ASSERT_TRUE(!drawn.layout.fits() || drawn.image.rect().contains(drawn.layout.plotRect));
        }
    }
}

TEST_P(BarExtremes, AllPropertiesAtOnceShowBothTitles)
{
    const CAxisSettings everything{CAxisSettings::Properties(QFlag(-1)), QString("title")};
    chart.input.horizontalAxis = chart.input.verticalAxis = everything;
    chart.addMany(5);
    const CBarLayout layout = chart.drawn(onScreen(400, 300)).layout;
    EXPECT_EQ(layout.categoryAxis->texts.back().text, QString("title"));
    EXPECT_EQ(layout.numberAxis->texts.back().text, QString("title"));
}

TEST_P(BarExtremes, NoCategoriesThroughTheThresholdAreAnEmptyChart)
{
    chart.addMany(5);
    for (const double threshold : {101.0, std::numeric_limits<double>::quiet_NaN()}) {
        chart.input.settings.threshold = threshold;
        const CBarLayout layout = chart.drawn(kSmall).layout;
        EXPECT_TRUE(layout.bars.empty());
        EXPECT_TRUE(layout.numberAxis->shape.isEmpty);
    }
}

TEST_P(BarExtremes, ManyBarsCostInStepWithTheirNumber)
{
    for (int i = 0; i < 20000; ++i)
        chart.add(i % 1000 + 1, "bar");
    EXPECT_EQ(chart.drawn(onScreen(400, 300)).layout.bars.size(), 20000U);
}

} // namespace
} // namespace tovangl
