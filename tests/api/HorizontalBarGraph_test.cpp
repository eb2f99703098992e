// SPDX-License-Identifier: MIT
#include "api/bar_facade_support.h"
#include "labels/CBarTextLabel.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

// Whether a facade lets the host change its horizontal axis.
template <typename Facade, typename = void>
struct HasHorizontalAxis : std::false_type
{};

template <typename Facade>
struct HasHorizontalAxis<
    Facade, std::void_t<decltype(std::declval<Facade>().setHorizontalAxis(0, std::string()))>>
    : std::true_type
{};

static_assert(HasHorizontalAxis<VerticalBarGraph>::value);
static_assert(!HasHorizontalAxis<HorizontalBarGraph>::value,
              "the values stand beside the bars, and the scale cannot be changed");

TEST(HorizontalBarGraph, HasAChartOfLyingBars)
{
    CHorizontalFacade chart;
    chart.addItem(3, "a");
    chart.addItem(3, "b");
    chart.exported();
    const Rectangle first = chart.getBarRectangle()->front();
    const Rectangle second = chart.getBarRectangle()->back();
    EXPECT_EQ(first.x, second.x);
    EXPECT_LT(first.y + first.height, second.y);
}

TEST(HorizontalBarGraph, VerticalAxisIsThatOfTheCategories)
{
    CHorizontalFacade chart;
    chart.addItem(3, "a");
    chart.setVerticalAxis(AxisProperty::ShowTitle, "categories");
    chart.exported();
    const CLabeledBarGraph& graph = *chart.getGraph();
    EXPECT_EQ(graph.categoryAxis()->titleLabel().getText(), QString("categories"));
    EXPECT_EQ(graph.numberAxis()->titleLabel().getText(), QString());
    EXPECT_EQ(graph.numberAxis()->properties(),
              CAxis::Properties(CAxis::ShowLine | CAxis::ShiftLastLabel));
}

TEST(HorizontalBarGraph, CaptionsStandLeftOfTheirBars)
{
    CHorizontalFacade chart;
    chart.addItem(3, "a");
    chart.exported();
    const Rectangle bar = chart.getBarRectangle()->front();
    const Rectangle caption = chart.getRectangle()->front();
    EXPECT_LT(caption.x + caption.width, bar.x);
    EXPECT_NEAR(caption.y + caption.height / 2, bar.y + bar.height / 2, 1);
}

} // namespace
} // namespace tovangl
