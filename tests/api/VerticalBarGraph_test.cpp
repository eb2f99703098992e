// SPDX-License-Identifier: MIT
#include "api/bar_facade_support.h"
#include "labels/CBarTextLabel.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

TEST(VerticalBarGraph, HasAChartOfStandingBars)
{
    CVerticalFacade chart;
    chart.addItem(3, "a");
    chart.addItem(3, "b");
    chart.exported();
    const Rectangle first = chart.getBarRectangle()->front();
    const Rectangle second = chart.getBarRectangle()->back();
    EXPECT_EQ(first.y, second.y);
    EXPECT_LT(first.x + first.width, second.x);
}

TEST(VerticalBarGraph, HorizontalAxisIsThatOfTheCategories)
{
    CVerticalFacade chart;
    chart.addItem(3, "a");
    chart.setHorizontalAxis(AxisProperty::ShowTitle, "categories");
    chart.setVerticalAxis(AxisProperty::ShowLine, "values");
    chart.exported();
    const CBarGraph& graph = *chart.getGraph();
    EXPECT_EQ(graph.categoryAxis()->titleLabel().getText(), QString("categories"));
    EXPECT_EQ(graph.categoryAxis()->properties(), CAxis::Properties(CAxis::ShowTitle));
    EXPECT_EQ(graph.numberAxis()->titleLabel().getText(), QString("values"));
    EXPECT_EQ(graph.numberAxis()->properties(), CAxis::Properties(CAxis::ShowLine));
}

TEST(VerticalBarGraph, CaptionsStandBelowTheirBars)
{
    CVerticalFacade chart;
    chart.addItem(3, "a");
    chart.exported();
    const Rectangle bar = chart.getBarRectangle()->front();
    const Rectangle caption = chart.getRectangle()->front();
    EXPECT_GT(caption.y, bar.y + bar.height);
    EXPECT_NEAR(caption.x + caption.width / 2, bar.x + bar.width / 2, 1);
}

} // namespace
} // namespace tovangl
