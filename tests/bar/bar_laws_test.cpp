// SPDX-License-Identifier: MIT
// What holds for every bar chart, over seeded random ones.
#include "bar/bar_chart_support.h"
#include "labels/CBarTextLabel.h"

#include <gtest/gtest.h>
#include <random>

namespace tovangl {
namespace {

constexpr int kCharts = 60;

class CRandomCharts
{
public:
    explicit CRandomCharts(unsigned seed)
        : m_random(seed)
    {}

    int between(int least, int greatest)
    {
        return std::uniform_int_distribution<int>(least, greatest)(m_random);
    }

    template <typename Chart>
    QImage fillAndDraw(Chart& chart, int leastValue)
    {
        const int bars = between(1, 40);
        for (int i = 0; i < bars; ++i)
            chart.add(between(leastValue, 5000),
                      std::string(static_cast<std::size_t>(between(0, 12)), 'n').c_str());
        chart.setFont("DejaVu Sans", between(7, 16));
        return chart.getImageForPrinter(between(120, 500), between(120, 400), between(1, 2));
    }

private:
    std::mt19937 m_random;
};

// Labels of one row must not share a pixel along the axis.
void expectNoOverlap(const CAxis& axis)
{
    const bool isAcross = axis.labelDirection() == CAxis::Across;
    const int extent = isAcross ? axis.labelRect().height() : axis.labelRect().width();
    const std::size_t rows = axis.labelDirection() == CAxis::AlongTwoRows ? 2 : 1;
    std::vector<int> ticks;
    for (const CBarTextLabel* label : axis.labels()) {
        if (!label->isHidden())
            ticks.push_back(label->tickCoord());
    }
    for (std::size_t i = rows; i < ticks.size(); ++i)
        EXPECT_GE(ticks[i] - ticks[i - rows] + 1, extent);
}

TEST(BarLaws, ShownLabelsOfOneRowDoNotOverlap)
{
    CRandomCharts random(11);
    for (int i = 0; i < kCharts; ++i) {
        CLyingBars chart;
        random.fillAndDraw(chart, 0);
        expectNoOverlap(*chart.categoryAxis());
    }
}

TEST(BarLaws, BarsOfADerivedWidthStandInsideThePlot)
{
    CRandomCharts random(12);
    for (int i = 0; i < kCharts; ++i) {
        CUprightBars chart;
        random.fillAndDraw(chart, -3000);
        for (const QRect& bar : chart.bars()) {
            if (bar.isValid()) {
                EXPECT_TRUE(chart.plotRect().adjusted(0, 0, 0, 1).contains(bar));
            }
        }
    }
}

TEST(BarLaws, LyingBarsStartOnTheLineAndEndInThePlot)
{
    CRandomCharts random(13);
    for (int i = 0; i < kCharts; ++i) {
        CLyingBars chart;
        random.fillAndDraw(chart, -3000);
        for (const QRect& bar : chart.bars()) {
            if (bar.isValid() && chart.numberAxis()->canDrawBarLabel()) {
                EXPECT_TRUE(chart.plotRect().adjusted(-1, 0, 0, 0).contains(bar));
            }
        }
    }
}

TEST(BarLaws, BarsDoNotOverlap)
{
    CRandomCharts random(14);
    for (int i = 0; i < kCharts; ++i) {
        CUprightBars chart;
        random.fillAndDraw(chart, 1);
        QRect before;
        for (const QRect& bar : chart.bars()) {
            if (bar.isValid() && before.isValid()) {
                EXPECT_GT(bar.left(), before.right());
            }
            before = bar;
        }
    }
}

TEST(BarLaws, GreaterValuesHaveLongerBars)
{
    CRandomCharts random(15);
    for (int i = 0; i < kCharts; ++i) {
        CUprightBars chart;
        random.fillAndDraw(chart, 1);
        for (const CBarGraphItem* a : chart.items()) {
            for (const CBarGraphItem* b : chart.items()) {
                if (a->value() > b->value()) {
                    EXPECT_GE(a->barRect().height(), b->barRect().height());
                }
            }
        }
    }
}

TEST(BarLaws, NothingIsPaintedInTheMargins)
{
    CRandomCharts random(16);
    for (int i = 0; i < kCharts; ++i) {
        CUprightBars upright;
        const QImage image = random.fillAndDraw(upright, 1);
        const int margin = upright.topAxisSpace() / 2;
        EXPECT_TRUE(isWhiteOutside(image, image.rect().adjusted(margin, 0, -margin, -margin)));
    }
}

TEST(BarLaws, TwoRenderingsAreEqual)
{
    CRandomCharts random(17);
    for (int i = 0; i < kCharts; ++i) {
        CLyingBars chart(true);
        random.fillAndDraw(chart, -500);
        EXPECT_EQ(chart.getImage(300, 200), chart.getImage(300, 200));
    }
}

TEST(BarLaws, ARenderingDoesNotDependOnTheOneBefore)
{
    CRandomCharts random(18);
    for (int i = 0; i < kCharts; ++i) {
        CUprightBars chart(true);
        random.fillAndDraw(chart, -500);
        const QImage first = chart.getImage(300, 200);
        chart.getImageForPrinter(90, 400, 3);
        EXPECT_EQ(chart.getImage(300, 200), first);
    }
}

} // namespace
} // namespace tovangl
