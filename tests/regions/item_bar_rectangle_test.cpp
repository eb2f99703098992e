// SPDX-License-Identifier: MIT
#include "regions/region_test_charts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <type_traits>

namespace tovangl {
namespace {

using ::testing::Each;
using ::testing::IsEmpty;
using ::testing::SizeIs;

template <typename BarChart>
class ItemBarRectangle : public ::testing::Test
{
protected:
    void add(long value, const Color& color) { m_chart.addItem(value, "caption", color, color); }
    void addThree()
    {
        add(500, kRed);
        add(20, kGreen);
        add(480, kBlue);
    }
    std::vector<Rectangle> itemBars() { return copied(m_chart.getItemBarRectangle()); }
    std::vector<Rectangle> drawnBars() { return copied(m_chart.getBarRectangle()); }

    BarChart m_chart{false};
};

struct CChartNames
{
    template <typename Chart>
    static std::string GetName(int)
    {
        return std::is_same_v<Chart, VerticalBarGraph> ? "Upright" : "Lying";
    }
};

using BarCharts = ::testing::Types<VerticalBarGraph, HorizontalBarGraph>;
TYPED_TEST_SUITE(ItemBarRectangle, BarCharts, CChartNames);

TYPED_TEST(ItemBarRectangle, IsZeroBeforeAnyRendering)
{
    EXPECT_THAT(this->itemBars(), IsEmpty());
    this->addThree();
    EXPECT_THAT(this->itemBars(), SizeIs(3));
    EXPECT_THAT(this->itemBars(), Each(kNoRectangle));
}

TYPED_TEST(ItemBarRectangle, IsTheDrawnBarWhereNothingIsLeftOut)
{
    this->addThree();
    render(this->m_chart, 400, 300);
    EXPECT_THAT(this->itemBars(), SizeIs(3));
    EXPECT_EQ(this->itemBars(), this->drawnBars());
}

TYPED_TEST(ItemBarRectangle, CoversTheItemsColour)
{
    this->addThree();
    const QImage image = render(this->m_chart, 400, 300);
    const std::vector<Rectangle> bars = this->itemBars();
    const std::vector<Color> colors = {kRed, kGreen, kBlue};
    for (std::size_t i = 0; i < colors.size(); ++i)
        EXPECT_EQ(colorAt(image, bars[i].x + bars[i].width / 2, bars[i].y + bars[i].height / 2),
                  colors[i]);
}

TYPED_TEST(ItemBarRectangle, KeepsAZeroPlaceForABarBelowTheThreshold)
{
    this->addThree();
    this->m_chart.setThreshold(5);
    render(this->m_chart, 400, 300);
    ASSERT_THAT(this->drawnBars(), SizeIs(2));
    const std::vector<Rectangle> expected = {this->drawnBars()[0], kNoRectangle,
                                             this->drawnBars()[1]};
    EXPECT_EQ(this->itemBars(), expected);
}

TYPED_TEST(ItemBarRectangle, ForgetsABarThatTheThresholdLeftOutLater)
{
    this->addThree();
    render(this->m_chart, 400, 300);
    this->m_chart.setThreshold(5);
    EXPECT_GT(this->itemBars()[1].width, 0) << "setting it changes no picture";
    render(this->m_chart, 400, 300);
    EXPECT_EQ(this->itemBars()[1], kNoRectangle);
}

TYPED_TEST(ItemBarRectangle, IsZeroWhereEveryBarIsBelowTheThreshold)
{
    this->addThree();
    this->m_chart.setThreshold(99);
    render(this->m_chart, 400, 300);
    EXPECT_THAT(this->itemBars(), SizeIs(3));
    EXPECT_THAT(this->itemBars(), Each(kNoRectangle));
}

TYPED_TEST(ItemBarRectangle, IsZeroForABarWithoutExtent)
{
    this->add(500, kRed);
    this->add(0, kGreen);
    render(this->m_chart, 400, 300);
    EXPECT_GT(this->itemBars()[0].height, 0);
    EXPECT_EQ(this->itemBars()[1], kNoRectangle);
}

TYPED_TEST(ItemBarRectangle, CoversABarThatGrowsFromZeroDownTheScale)
{
    this->add(500, kRed);
    this->add(-500, kGreen);
    const QImage image = render(this->m_chart, 400, 300);
    const Rectangle bar = this->itemBars()[1];
    EXPECT_EQ(colorAt(image, bar.x + bar.width / 2, bar.y + bar.height / 2), kGreen);
}

TYPED_TEST(ItemBarRectangle, IsZeroAfterARenderingThatDidNotFit)
{
    this->addThree();
    render(this->m_chart, 400, 300);
    render(this->m_chart, 12, 12);
    EXPECT_THAT(this->itemBars(), SizeIs(3));
    EXPECT_THAT(this->itemBars(), Each(kNoRectangle));
}

TYPED_TEST(ItemBarRectangle, IsZeroAfterANullPicture)
{
    this->addThree();
    for (const int width : {0, -5, 2000000}) {
        render(this->m_chart, 400, 300);
        EXPECT_TRUE(render(this->m_chart, width, 300).isNull());
        EXPECT_THAT(this->itemBars(), SizeIs(3));
        EXPECT_THAT(this->itemBars(), Each(kNoRectangle));
    }
}

TYPED_TEST(ItemBarRectangle, ComesBackWithTheNextRenderingThatFits)
{
    this->addThree();
    render(this->m_chart, 400, 300);
    const std::vector<Rectangle> before = this->itemBars();
    render(this->m_chart, 12, 12);
    render(this->m_chart, 400, 300);
    EXPECT_EQ(this->itemBars(), before);
}

TYPED_TEST(ItemBarRectangle, IsEmptyAfterClear)
{
    this->addThree();
    render(this->m_chart, 400, 300);
    this->m_chart.clear();
    EXPECT_THAT(this->itemBars(), IsEmpty());
}

TYPED_TEST(ItemBarRectangle, IsZeroForItemsAddedAfterTheRendering)
{
    this->addThree();
    render(this->m_chart, 400, 300);
    this->add(700, kRed);
    EXPECT_THAT(this->itemBars(), SizeIs(4));
    EXPECT_GT(this->itemBars()[2].width, 0);
    EXPECT_EQ(this->itemBars()[3], kNoRectangle);

    this->m_chart.clear();
    this->addThree();
    EXPECT_THAT(this->itemBars(), Each(kNoRectangle));
}

TYPED_TEST(ItemBarRectangle, IsInPixelsOfThePrintedPicture)
{
    this->addThree();
    const QImage image = printed(this->m_chart, 400, 300, 3).decoded();
    ASSERT_EQ(image.width(), 1200);
    const Rectangle bar = this->itemBars()[2];
    EXPECT_EQ(colorAt(image, bar.x + bar.width / 2, bar.y + bar.height / 2), kBlue);
    EXPECT_GT(bar.width * bar.height, 1000);
}

TYPED_TEST(ItemBarRectangle, LeavesTheOtherListsAlone)
{
    this->addThree();
    render(this->m_chart, 400, 300);
    const std::list<Rectangle>* bars = this->m_chart.getBarRectangle();
    const std::list<Rectangle>* captions = this->m_chart.getRectangle();
    const std::vector<Rectangle> before = copied(bars);
    const std::vector<Rectangle> captionsBefore = copied(captions);
    EXPECT_EQ(this->m_chart.getItemBarRectangle(), this->m_chart.getItemBarRectangle());
    EXPECT_NE(this->m_chart.getItemBarRectangle(), bars);
    EXPECT_EQ(copied(bars), before);
    EXPECT_EQ(copied(captions), captionsBefore);
}

} // namespace
} // namespace tovangl
