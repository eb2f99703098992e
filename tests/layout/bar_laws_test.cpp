// SPDX-License-Identifier: MIT
// What holds for every bar chart, over seeded random ones.
#include "support/CBarChart.h"
#include "support/CDice.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr int kCharts = 60;

CBarChart randomChart(CDice& dice, BarKind kind, int leastValue)
{
    CBarChart chart(kind);
    const int bars = dice.roll(1, 40);
    for (int i = 0; i < bars; ++i) {
        const std::string caption(static_cast<std::size_t>(dice.roll(0, 12)), 'n');
        chart.add(dice.roll(leastValue, 5000), caption.c_str());
    }
    chart.input.settings.setFont(QString("DejaVu Sans"), dice.roll(7, 16));
    return chart;
}

CRequest randomRequest(CDice& dice)
{
    const int width = dice.roll(120, 500);
    const int height = dice.roll(120, 400);
    return inPrint(width, height, dice.roll(1, 2));
}

// Looks at the layouts of random charts, each time the same ones.
template <typename Law>
void forLayouts(unsigned seed, BarKind kind, int leastValue, const Law& law)
{
    CDice dice(seed);
    for (int i = 0; i < kCharts; ++i) {
        const CBarChart chart = randomChart(dice, kind, leastValue);
        const CBarLayout layout = chart.layout(randomRequest(dice));
        ASSERT_TRUE(layout.fits());
        law(chart, layout);
    }
}

// Labels of one row must not share a pixel along the axis.
void expectNoOverlap(const CAxisLayout& axis)
{
    const auto rows = static_cast<std::size_t>(axis.shape.rows());
    std::vector<int> ticks;
    for (const CBarTextLabel& label : axis.labels) {
        if (!label.isHidden)
            ticks.push_back(label.tickCoord);
    }
    for (std::size_t i = rows; i < ticks.size(); ++i)
        EXPECT_GE(ticks[i] - ticks[i - rows] + 1, axis.shape.labelExtentAlong());
}

TEST(BarLaws, ShownLabelsOfOneRowDoNotOverlap)
{
    forLayouts(11, BarKind::Lying, 0, [](const CBarChart&, const CBarLayout& layout) {
        expectNoOverlap(*layout.categoryAxis);
    });
}

TEST(BarLaws, BarsOfADerivedWidthStandInsideThePlot)
{
    forLayouts(12, BarKind::Standing, -3000, [](const CBarChart&, const CBarLayout& layout) {
        for (const CBar& bar : layout.bars)
            EXPECT_TRUE(!bar.rect.isValid() ||
                        layout.plotRect.adjusted(0, 0, 0, 1).contains(bar.rect));
    });
}

TEST(BarLaws, LyingBarsStartOnTheLineAndEndInThePlot)
{
    forLayouts(13, BarKind::Lying, -3000, [](const CBarChart&, const CBarLayout& layout) {
        // Where all values lie below zero, the zero lies behind the end of the scale.
        if (layout.scale.span <= 0 || layout.scale.max < 0)
            return;
        for (const CBar& bar : layout.bars)
            EXPECT_TRUE(!bar.rect.isValid() ||
                        layout.plotRect.adjusted(-1, 0, 0, 0).contains(bar.rect));
    });
}

TEST(BarLaws, BarsDoNotOverlap)
{
    forLayouts(14, BarKind::Standing, 1, [](const CBarChart&, const CBarLayout& layout) {
        QRect before;
        for (const CBar& bar : layout.bars) {
            EXPECT_TRUE(!bar.rect.isValid() || !before.isValid() ||
                        bar.rect.left() > before.right());
            before = bar.rect;
        }
    });
}

TEST(BarLaws, GreaterValuesHaveLongerBars)
{
    forLayouts(15, BarKind::Standing, 1, [](const CBarChart& chart, const CBarLayout& layout) {
        const auto valueOf = [&](const CBar& bar) { return chart.input.items[bar.item].value; };
        for (const CBar& a : layout.bars) {
            for (const CBar& b : layout.bars)
                EXPECT_TRUE(valueOf(a) <= valueOf(b) || a.rect.height() >= b.rect.height());
        }
    });
}

TEST(BarLaws, NothingIsPaintedInTheMargins)
{
    CDice dice(16);
    for (int i = 0; i < kCharts; ++i) {
        const CBarChart chart = randomChart(dice, BarKind::Standing, 1);
        const CDrawnBars drawn = chart.drawn(randomRequest(dice));
        const int margin = drawn.layout.spaces.top / 2;
        EXPECT_TRUE(
            isWhiteOutside(drawn.image, drawn.image.rect().adjusted(margin, 0, -margin, -margin)));
    }
}

TEST(BarLaws, BelowATitleStandsTheChartOfALowerPicture)
{
    CDice dice(18);
    for (int i = 0; i < kCharts; ++i) {
        CBarChart chart = randomChart(dice, i % 2 == 0 ? BarKind::Lying : BarKind::Standing, -500);
        CRequest request = randomRequest(dice);
        const QImage lower = chart.drawn(request).image;
        chart.input.settings.title = QString("a title");
        const auto title = chart.layout(request).title;
        ASSERT_TRUE(title);
        request.height += title->chartTop();
        const QImage whole = chart.drawn(request).image;
        EXPECT_EQ(whole.copy(0, title->chartTop(), request.width, lower.height()), lower);
    }
}

TEST(BarLaws, TheTitleLiesInsideThePictureAboveThePlot)
{
    CDice dice(19);
    for (int i = 0; i < kCharts; ++i) {
        CBarChart chart = randomChart(dice, i % 2 == 0 ? BarKind::Lying : BarKind::Standing, -500);
        chart.input.settings.title = QString("title ").repeated(dice.roll(1, 30));
        chart.input.setPosition(dice.roll(-1, 200), dice.roll(-1, 300));
        const CRequest request = randomRequest(dice);
        const CBarLayout layout = chart.layout(request);
        if (!layout.title)
            continue;
        EXPECT_TRUE(QRect(0, 0, request.width, request.height).contains(layout.title->rect));
        EXPECT_GT(layout.plotRect.top(), layout.title->rect.bottom());
    }
}

TEST(BarLaws, TwoRenderingsAreEqualWhateverWasRenderedBetween)
{
    CDice dice(17);
    for (int i = 0; i < kCharts; ++i) {
        const BarKind kind = i % 2 == 0 ? BarKind::Lying : BarKind::Standing;
        CBarChart chart = randomChart(dice, kind, -500);
        chart.input.settings.hasBackground = true;
        const QImage first = chart.drawn(onScreen(300, 200)).image;
        (void)chart.drawn(inPrint(90, 400, 3));
        EXPECT_EQ(chart.drawn(onScreen(300, 200)).image, first);
    }
}

} // namespace
} // namespace tovangl
