// SPDX-License-Identifier: MIT
// SVG pictures that follow the display's colour scheme.
#include "support/CAnyChart.h"
#include "svg/parsed_svg.h"

#include <QStringList>

#include <gmock/gmock.h>

namespace tovangl {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

std::string bytesOf(CAnyChart& chart)
{
    return chart.createSvg(400, 300).bytes();
}

CAnyChart chartOf(ChartKind kind, bool background = true)
{
    CAnyChart chart(kind, background);
    chart.addItem(5, "a");
    chart.addItem(3, "b");
    return chart;
}

std::string styleOf(const std::string& svg)
{
    const std::vector<CSvgElement> styles = CParsedSvg(svg).all("style");
    return styles.empty() ? std::string() : styles.front().text.toStdString();
}

// What the style sheet gives to a property of an element, which can have several classes.
std::string darkColor(const std::string& svg, const CSvgElement& element, const char* property)
{
    const std::string style = styleOf(svg);
    for (const QString& name : element["class"].split(QLatin1Char(' '))) {
        const std::string rule = '.' + name.toStdString() + '{' + property + ':';
        const std::size_t begin = style.find(rule);
        if (begin != std::string::npos)
            return style.substr(begin + rule.size(), 7);
    }
    return "";
}

std::string darkGround(const std::string& svg)
{
    return darkColor(svg, CParsedSvg(svg).all("rect").at(0), "fill");
}

TEST(SvgThemes, HaveNoStyleSheetUnlessAskedFor)
{
    for (const ChartKind kind : kChartKinds) {
        CAnyChart chart = chartOf(kind);
        EXPECT_THAT(bytesOf(chart), Not(HasSubstr("<style"))) << nameOf(kind);
    }
}

TEST(SvgThemes, FollowTheDisplayWhereAskedFor)
{
    for (const ChartKind kind : kChartKinds) {
        CAnyChart chart = chartOf(kind);
        ASSERT_EQ(chart.graph().setByName("follow_display", "true"), "");
        const std::string svg = bytesOf(chart);
        EXPECT_THAT(styleOf(svg), StartsWith("@media(prefers-color-scheme:dark){."))
            << nameOf(kind);
        EXPECT_EQ(darkGround(svg), "#1b1f27") << nameOf(kind);
    }
}

// On dark displays, outlines have the colour of the picture's ground.
TEST(SvgThemes, ColourOutlinesAndFillingsEachInTheirOwnWay)
{
    CAnyChart chart = chartOf(ChartKind::Pie);
    ASSERT_EQ(chart.graph().setByName("follow_display", "true"), "");
    const std::string bytes = bytesOf(chart);
    const CParsedSvg svg(bytes);
    const CSvgElement slice = svg.children(svg.items().at(0), "path").at(0);
    EXPECT_EQ(darkColor(bytes, slice, "fill"), "#6cace4");
    EXPECT_EQ(darkColor(bytes, slice, "stroke"), darkGround(bytes));
}

// Outlines stand out more in one theme than in the other.
TEST(SvgThemes, GiveEverySliceTheColoursThatItHasInTheDarkTheme)
{
    CAnyChart following(ChartKind::Pie);
    CAnyChart dark(ChartKind::Pie);
    following.graph().setByName("follow_display", "true");
    dark.graph().setTheme(Theme::Dark);
    for (const long value : {4L, 13L, 22L, 16L, 2L, 3L, 13L, 6L}) {
        following.addItem(value, "a");
        dark.addItem(value, "a");
    }
    const std::string bytes = bytesOf(following);
    const CParsedSvg svg(bytes);
    const CParsedSvg darkSvg(bytesOf(dark));
    for (std::size_t i = 0; i < svg.items().size(); ++i) {
        const CSvgElement slice = svg.children(svg.items()[i], "path").at(0);
        const CSvgElement darkSlice = darkSvg.children(darkSvg.items().at(i), "path").at(0);
        for (const char* property : {"fill", "stroke"})
            EXPECT_EQ(darkColor(bytes, slice, property), darkSlice[property].toStdString()) << i;
    }
}

TEST(SvgThemes, WriteEveryTextInLightLettersOnDarkDisplays)
{
    for (const ChartKind kind : kChartKinds) {
        CAnyChart chart = chartOf(kind);
        chart.graph().setTitle("Title");
        ASSERT_EQ(chart.graph().setByName("follow_display", "true"), "");
        const std::string svg = bytesOf(chart);
        for (const CSvgElement& text : CParsedSvg(svg).all("text"))
            EXPECT_EQ(darkColor(svg, text, "fill"), "#e6e9ef")
                << nameOf(kind) << ' ' << text.text.toStdString();
    }
}

TEST(SvgThemes, KeepTheirOwnColoursOnLightDisplays)
{
    CAnyChart chart = chartOf(ChartKind::VerticalBars);
    const CParsedSvg plain(bytesOf(chart));
    chart.graph().setByName("follow_display", "true");
    const CParsedSvg following(bytesOf(chart));
    ASSERT_EQ(plain.all("rect").size(), following.all("rect").size());
    for (std::size_t i = 0; i < plain.all("rect").size(); ++i)
        EXPECT_EQ(plain.all("rect")[i]["stroke"], following.all("rect")[i]["stroke"]) << i;
}

TEST(SvgThemes, KeepTheColoursOfItemsThatHaveTheirOwn)
{
    CAnyChart chart(ChartKind::VerticalBars);
    chart.addItem(5, "a", {1, 2, 3}, {4, 5, 6});
    chart.graph().setByName("follow_display", "true");
    const CParsedSvg svg(bytesOf(chart));
    EXPECT_EQ(svg.children(svg.items().at(0), "rect").at(0)["class"], "");
}

TEST(SvgThemes, LeaveATransparentPictureToThePage)
{
    CAnyChart chart = chartOf(ChartKind::Pie, false);
    chart.graph().setPictureTransparent();
    chart.graph().setByName("follow_display", "true");
    EXPECT_TRUE(CParsedSvg(bytesOf(chart)).all("rect").empty());
}

TEST(SvgThemes, HaveClassesOfTheirOwnInEveryPicture)
{
    CAnyChart one = chartOf(ChartKind::Pie);
    CAnyChart other = chartOf(ChartKind::VerticalBars);
    one.graph().setByName("follow_display", "true");
    other.graph().setByName("follow_display", "true");
    EXPECT_NE(CParsedSvg(bytesOf(one)).all("rect").at(0)["class"],
              CParsedSvg(bytesOf(other)).all("rect").at(0)["class"]);
}

} // namespace
} // namespace tovangl
