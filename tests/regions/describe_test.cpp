// SPDX-License-Identifier: MIT
#include "regions/region_test_charts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace tovangl {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

void addThree(PieGraph& pie)
{
    pie.addItem(430, "Food");
    pie.addItem(12000, "Rent");
    pie.addItem(20, "Books");
}

std::string describeAlone(const std::string& caption)
{
    PieGraph pie(false);
    pie.addItem(5, caption);
    render(pie, 400, 300);
    return pie.describe();
}

TEST(Description, NamesKindCountsAndExtremes)
{
    PieGraph pie(false);
    pie.setLocale("en", "us");
    addThree(pie);
    render(pie, 400, 300);
    EXPECT_EQ(pie.describe(), "Pie chart, 3 of 3 items drawn: the greatest is “Rent” with 12,000, "
                              "the least is “Books” with 20.");
}

TEST(Description, NamesTheKindOfBarChart)
{
    VerticalBarGraph upright(false);
    HorizontalBarGraph lying(false);
    EXPECT_THAT(upright.describe(), HasSubstr("Vertical bar chart, 0 of 0"));
    EXPECT_THAT(lying.describe(), HasSubstr("Horizontal bar chart, 0 of 0"));
}

TEST(Description, BeginsWithTheTitle)
{
    PieGraph pie(false);
    pie.setTitle("Sales");
    EXPECT_EQ(pie.describe(), "“Sales”. Pie chart, 0 of 0 items drawn.");
    pie.setTitle(" \n ");
    EXPECT_EQ(pie.describe(), "Pie chart, 0 of 0 items drawn.");
}

TEST(Description, SaysATitleThatHasNoRoom)
{
    VerticalBarGraph bars(false);
    bars.setTitle("Sales");
    render(bars, 20, 20);
    EXPECT_THAT(bars.describe(), HasSubstr("“Sales”. Vertical bar chart"));
}

TEST(Description, SaysALongTitleShortenedAndOnOneLine)
{
    PieGraph pie(false);
    pie.setTitle("a\nb" + std::string(1000, 'x'));
    EXPECT_THAT(pie.describe(), HasSubstr("“a b" + std::string(253, 'x') + "…”. Pie"));
}

TEST(Description, IsEmptyWithoutAChart)
{
    const Graph graph;
    EXPECT_EQ(graph.describe(), "");
}

TEST(Description, WritesNumbersAsTheLocaleHasIt)
{
    PieGraph pie(false);
    pie.setLocale("de", "de");
    addThree(pie);
    render(pie, 400, 300);
    EXPECT_THAT(pie.describe(), HasSubstr("with 12.000,"));
}

TEST(Description, TellsWhatTheThresholdLeftIn)
{
    PieGraph pie(false);
    addThree(pie);
    pie.setThreshold(1);
    render(pie, 400, 300);
    EXPECT_THAT(pie.describe(), HasSubstr("2 of 3 items drawn"));
    EXPECT_THAT(pie.describe(), HasSubstr("the least is “Food” with 430."));
}

TEST(Description, TellsThatNothingIsDrawnBeforeAnyRendering)
{
    PieGraph pie(false);
    addThree(pie);
    EXPECT_EQ(pie.describe(), "Pie chart, 0 of 3 items drawn.");
}

TEST(Description, TellsThatNothingIsDrawnAfterClear)
{
    PieGraph pie(false);
    addThree(pie);
    render(pie, 400, 300);
    pie.clear();
    EXPECT_EQ(pie.describe(), "Pie chart, 0 of 0 items drawn.");
}

TEST(Description, TellsThatNothingIsDrawnWhereThePictureHasNoRoom)
{
    PieGraph pie(false);
    addThree(pie);
    render(pie, 400, 300);
    render(pie, 20, 300);
    EXPECT_EQ(pie.describe(), "Pie chart, 0 of 3 items drawn.");
    render(pie, 0, 300);
    EXPECT_EQ(pie.describe(), "Pie chart, 0 of 3 items drawn.");
}

TEST(Description, CountsABarWithoutExtent)
{
    VerticalBarGraph bars(false);
    bars.addItem(5, "five");
    bars.addItem(-5, "minus");
    render(bars, 400, 300);
    EXPECT_THAT(bars.describe(), HasSubstr("2 of 2 items drawn"));
    EXPECT_THAT(bars.describe(), HasSubstr("the least is “minus” with -5."));
}

TEST(Description, MentionsOneItemOnce)
{
    EXPECT_EQ(describeAlone("Rent"), "Pie chart, 1 of 1 items drawn: “Rent” with 5.");
}

TEST(Description, MentionsTwoItemsWhereAllAreEqual)
{
    PieGraph pie(false);
    pie.addItem(5, "first");
    pie.addItem(5, "last");
    render(pie, 400, 300);
    EXPECT_THAT(pie.describe(), HasSubstr("greatest is “first”"));
    EXPECT_THAT(pie.describe(), HasSubstr("least is “last”"));
}

TEST(Description, LeavesOutAnEmptyCaption)
{
    EXPECT_EQ(describeAlone(""), "Pie chart, 1 of 1 items drawn: 5.");
}

TEST(Description, IsOneLineWithoutControlCharacters)
{
    const std::string caption("a\nb\t\x01\x7f c\0d", 11);
    EXPECT_EQ(describeAlone(caption), "Pie chart, 1 of 1 items drawn: “a b c d” with 5.");
}

TEST(Description, CutsAHugeCaption)
{
    const std::string sentence = describeAlone(std::string(1000000, 'x'));
    EXPECT_THAT(sentence, HasSubstr(std::string(256, 'x') + "…”"));
    EXPECT_THAT(sentence, Not(HasSubstr(std::string(257, 'x'))));
}

TEST(Description, LeavesACaptionOfTheGreatestLengthWhole)
{
    EXPECT_THAT(describeAlone(std::string(256, 'x')), HasSubstr(std::string(256, 'x') + "”"));
}

TEST(Description, NeverCutsACharacterInTwo)
{
    const std::string sentence = describeAlone("x" + std::string(255, 'y') + "😀😀");
    EXPECT_THAT(sentence, HasSubstr("y…”"));
    const std::string shifted = describeAlone(std::string(255, 'y') + "😀😀");
    EXPECT_THAT(shifted, HasSubstr(std::string(255, 'y') + "…”"));
}

TEST(Description, TakesTheExtremesOfTheNumbers)
{
    VerticalBarGraph bars(false);
    bars.setLocale("en", "us");
    bars.addItem(std::numeric_limits<long>::max(), "most");
    bars.addItem(std::numeric_limits<long>::min(), "least");
    render(bars, 400, 300);
    EXPECT_THAT(bars.describe(), HasSubstr("“most” with 9,223,372,036,854,775,807"));
    EXPECT_THAT(bars.describe(), HasSubstr("“least” with -9,223,372,036,854,775,808"));
}

} // namespace
} // namespace tovangl
