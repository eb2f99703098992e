// SPDX-License-Identifier: MIT
// What readers get of an SVG picture besides its shapes: names, descriptions and links.
#include "support/CAnyChart.h"
#include "svg/parsed_svg.h"

#include <gmock/gmock.h>

namespace tovangl {
namespace {

using ::testing::ElementsAre;

CParsedSvg drawn(CAnyChart& chart)
{
    return CParsedSvg(chart.createSvg(400, 300).bytes());
}

CAnyChart chartOf(ChartKind kind)
{
    CAnyChart chart(kind);
    chart.graph().setLocale("en", "us");
    chart.addItem(1200, "Rent");
    chart.addItem(430, "Food");
    return chart;
}

TEST(SvgAccessibility, NamesAndDescribesThePicture)
{
    CAnyChart chart = chartOf(ChartKind::Pie);
    chart.graph().setTitle("Spending");
    const CParsedSvg svg = drawn(chart);
    EXPECT_EQ(svg.elements().at(0)["role"], "img");
    EXPECT_EQ(svg.elements().at(1).name, "title");
    EXPECT_EQ(svg.elements().at(1).text, "Spending");
    EXPECT_EQ(svg.elements().at(2).name, "desc");
    EXPECT_EQ(svg.elements().at(2).text.toStdString(), chart.graph().describe());
}

TEST(SvgAccessibility, NamesAPictureWithoutATitleByItsKind)
{
    CAnyChart chart = chartOf(ChartKind::HorizontalBars);
    EXPECT_EQ(drawn(chart).elements().at(1).text, "Horizontal bar chart");
}

TEST(SvgAccessibility, TellsCaptionAndValueOfEveryItem)
{
    for (const ChartKind kind : kChartKinds) {
        CAnyChart chart = chartOf(kind);
        EXPECT_THAT(drawn(chart).itemTitles(), ElementsAre("Rent: 1,200", "Food: 430"))
            << nameOf(kind);
    }
}

TEST(SvgAccessibility, TellsWhatTheOthersStandFor)
{
    CAnyChart chart = chartOf(ChartKind::Pie);
    chart.addItem(3, "small");
    chart.graph().setThreshold(5);
    chart.graph().setOthers("Rest");
    EXPECT_THAT(drawn(chart).itemTitles(), ElementsAre("Rent: 1,200", "Food: 430", "Rest: 3"));
}

TEST(SvgAccessibility, LeavesOutItemsThatAreNotDrawn)
{
    CAnyChart chart = chartOf(ChartKind::Pie);
    chart.addItem(3, "small");
    chart.graph().setThreshold(5);
    EXPECT_THAT(drawn(chart).itemTitles(), ElementsAre("Rent: 1,200", "Food: 430"));
}

TEST(SvgLinks, LeadFromAnItemToItsAddress)
{
    CAnyChart chart = chartOf(ChartKind::VerticalBars);
    EXPECT_TRUE(chart.graph().setLink(1, "https://example.org/?a=\"1\"&b=<2>"));
    const std::vector<CSvgElement> items = drawn(chart).items();
    EXPECT_EQ(items.at(0).name, "g");
    EXPECT_EQ(items.at(1).name, "a");
    EXPECT_EQ(items.at(1)["href"], "https://example.org/?a=\"1\"&b=<2>");
}

TEST(SvgLinks, LetReadersReachThem)
{
    CAnyChart chart = chartOf(ChartKind::Pie);
    chart.graph().setLink(0, "#rent");
    EXPECT_EQ(drawn(chart).elements().at(0)["role"], "group"); // nothing in an image can be reached
}

TEST(SvgLinks, GoWhereTheirAddressIsTakenAway)
{
    CAnyChart chart = chartOf(ChartKind::Pie);
    chart.graph().setLink(0, "#rent");
    EXPECT_TRUE(chart.graph().setLink(0, ""));
    EXPECT_TRUE(drawn(chart).all("a").empty());
}

TEST(SvgLinks, BelongToItemsThatAreThere)
{
    CAnyChart chart = chartOf(ChartKind::Pie);
    EXPECT_FALSE(chart.graph().setLink(2, "#a"));
    EXPECT_FALSE(chart.graph().setLink(std::size_t(-1), "#a"));
    chart.graph().setOthers("Rest");
    EXPECT_TRUE(chart.graph().setLink(2, "#a"));
    EXPECT_FALSE(chart.graph().setLink(3, "#a"));
}

TEST(SvgLinks, LeadFromTheOthersToo)
{
    CAnyChart chart = chartOf(ChartKind::Pie);
    chart.graph().setThreshold(40);
    chart.graph().setOthers("Rest");
    chart.graph().setLink(2, "#rest");
    const std::vector<CSvgElement> items = drawn(chart).items();
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[1]["href"], "#rest");
}

TEST(SvgLinks, OfTheOthersCanBeSetByNameBeforeTheirCaption)
{
    CAnyChart chart = chartOf(ChartKind::Pie);
    EXPECT_EQ(chart.graph().setByName("others_link", "#rest"), "");
    chart.graph().setThreshold(40);
    chart.graph().setOthers("Rest");
    const std::vector<CSvgElement> items = drawn(chart).items();
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[1]["href"], "#rest");
}

TEST(SvgLinks, KeepTheOldAddressWhereANewOneIsRefused)
{
    CAnyChart chart = chartOf(ChartKind::Pie);
    chart.graph().setLink(0, "#rent");
    EXPECT_FALSE(chart.graph().setLink(0, "javascript:alert(1)"));
    EXPECT_EQ(drawn(chart).items().at(0)["href"], "#rent");
}

} // namespace
} // namespace tovangl
