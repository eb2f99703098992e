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

class Description : public ::testing::Test
{
protected:
    void addThree()
    {
        pie.addItem(430, "Food");
        pie.addItem(12000, "Rent");
        pie.addItem(20, "Books");
    }

    PieGraph pie{false};
    VerticalBarGraph bars{false};
};

std::string describeAlone(const std::string& caption)
{
    PieGraph pie(false);
    pie.addItem(5, caption);
    render(pie, 400, 300);
    return pie.describe();
}

TEST_F(Description, NamesKindCountsAndExtremes)
{
    pie.setLocale("en", "us");
    addThree();
    render(pie, 400, 300);
    EXPECT_EQ(pie.describe(), "Pie chart, 3 of 3 items drawn: the greatest is “Rent” with 12,000, "
                              "the least is “Books” with 20.");
}

TEST_F(Description, NamesTheKindOfBarChart)
{
    HorizontalBarGraph lying(false);
    EXPECT_THAT(bars.describe(), HasSubstr("Vertical bar chart, 0 of 0"));
    EXPECT_THAT(lying.describe(), HasSubstr("Horizontal bar chart, 0 of 0"));
}

TEST_F(Description, BeginsWithTheTitle)
{
    pie.setTitle("Sales");
    EXPECT_EQ(pie.describe(), "“Sales”. Pie chart, 0 of 0 items drawn.");
    pie.setTitle(" \n ");
    EXPECT_EQ(pie.describe(), "Pie chart, 0 of 0 items drawn.");
}

TEST_F(Description, SaysATitleThatHasNoRoom)
{
    bars.setTitle("Sales");
    render(bars, 20, 20);
    EXPECT_THAT(bars.describe(), HasSubstr("“Sales”. Vertical bar chart"));
}

TEST_F(Description, SaysALongTitleShortenedAndOnOneLine)
{
    pie.setTitle("a\nb" + std::string(1000, 'x'));
    EXPECT_THAT(pie.describe(), HasSubstr("“a b" + std::string(253, 'x') + "…”. Pie"));
}

TEST_F(Description, IsEmptyWithoutAChart)
{
    const Graph graph;
    EXPECT_EQ(graph.describe(), "");
}

TEST_F(Description, WritesNumbersAsTheLocaleHasIt)
{
    pie.setLocale("de", "de");
    addThree();
    render(pie, 400, 300);
    EXPECT_THAT(pie.describe(), HasSubstr("with 12.000,"));
}

TEST_F(Description, TellsWhatTheThresholdLeftIn)
{
    addThree();
    pie.setThreshold(1);
    render(pie, 400, 300);
    EXPECT_THAT(pie.describe(), HasSubstr("2 of 3 items drawn"));
    EXPECT_THAT(pie.describe(), HasSubstr("the least is “Food” with 430."));
}

TEST_F(Description, TellsThatNothingIsDrawnBeforeAnyRendering)
{
    addThree();
    EXPECT_EQ(pie.describe(), "Pie chart, 0 of 3 items drawn.");
}

TEST_F(Description, TellsThatNothingIsDrawnAfterClear)
{
    addThree();
    render(pie, 400, 300);
    pie.clear();
    EXPECT_EQ(pie.describe(), "Pie chart, 0 of 0 items drawn.");
}

TEST_F(Description, TellsThatNothingIsDrawnWhereThePictureHasNoRoom)
{
    addThree();
    render(pie, 400, 300);
    render(pie, 20, 300);
    EXPECT_EQ(pie.describe(), "Pie chart, 0 of 3 items drawn.");
    render(pie, 0, 300);
    EXPECT_EQ(pie.describe(), "Pie chart, 0 of 3 items drawn.");
}

TEST_F(Description, CountsABarWithoutExtent)
{
    bars.addItem(5, "five");
    bars.addItem(-5, "minus");
    render(bars, 400, 300);
    EXPECT_THAT(bars.describe(), HasSubstr("2 of 2 items drawn"));
    EXPECT_THAT(bars.describe(), HasSubstr("the least is “minus” with -5."));
}

TEST_F(Description, MentionsOneItemOnce)
{
    EXPECT_EQ(describeAlone("Rent"), "Pie chart, 1 of 1 items drawn: “Rent” with 5.");
}

TEST_F(Description, MentionsTwoItemsWhereAllAreEqual)
{
    pie.addItem(5, "first");
    pie.addItem(5, "last");
    render(pie, 400, 300);
    EXPECT_THAT(pie.describe(), HasSubstr("greatest is “first”"));
    EXPECT_THAT(pie.describe(), HasSubstr("least is “last”"));
}

TEST_F(Description, LeavesOutAnEmptyCaption)
{
    EXPECT_EQ(describeAlone(""), "Pie chart, 1 of 1 items drawn: 5.");
}

TEST_F(Description, IsOneLineWithoutControlCharacters)
{
    const std::string caption("a\nb\t\x01\x7f c\0d", 11);
    EXPECT_EQ(describeAlone(caption), "Pie chart, 1 of 1 items drawn: “a b c d” with 5.");
}

TEST_F(Description, CutsAHugeCaption)
{
    const std::string sentence = describeAlone(std::string(1000000, 'x'));
    EXPECT_THAT(sentence, HasSubstr(std::string(256, 'x') + "…”"));
    EXPECT_THAT(sentence, Not(HasSubstr(std::string(257, 'x'))));
}

TEST_F(Description, LeavesACaptionOfTheGreatestLengthWhole)
{
    EXPECT_THAT(describeAlone(std::string(256, 'x')), HasSubstr(std::string(256, 'x') + "”"));
}

TEST_F(Description, NeverCutsACharacterInTwo)
{
    const std::string sentence = describeAlone("x" + std::string(255, 'y') + "😀😀");
    EXPECT_THAT(sentence, HasSubstr("y…”"));
    const std::string shifted = describeAlone(std::string(255, 'y') + "😀😀");
    EXPECT_THAT(shifted, HasSubstr(std::string(255, 'y') + "…”"));
}

TEST_F(Description, TakesTheExtremesOfTheNumbers)
{
    bars.setLocale("en", "us");
    bars.addItem(std::numeric_limits<long>::max(), "most");
    bars.addItem(std::numeric_limits<long>::min(), "least");
    render(bars, 400, 300);
    EXPECT_THAT(bars.describe(), HasSubstr("“most” with 9,223,372,036,854,775,807"));
    EXPECT_THAT(bars.describe(), HasSubstr("“least” with -9,223,372,036,854,775,808"));
}

} // namespace
} // namespace tovangl
