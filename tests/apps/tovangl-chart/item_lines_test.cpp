// SPDX-License-Identifier: MIT
#include "apps/support/CTemporaryFolder.h"
#include "common/CFailure.h"
#include "tovangl-chart/item_lines.h"

#include <gmock/gmock.h>
#include <limits>

namespace tovangl::program {
namespace {

using ::testing::ThrowsMessage;

ChartItem fillLine(std::string_view line)
{
    return parseItemLine(line, LineColors::Fill);
}

ChartItems itemsOf(const std::string& path)
{
    ItemSource source;
    source.path = path;
    return readItems(source, LineColors::Fill);
}

ChartItem barLine(std::string_view line)
{
    return parseItemLine(line, LineColors::FillAndOutline);
}

void expectColor(const std::optional<Color>& color, int red, int green, int blue)
{
    ASSERT_TRUE(color);
    EXPECT_EQ(color->red, red);
    EXPECT_EQ(color->green, green);
    EXPECT_EQ(color->blue, blue);
}

TEST(ItemLines, TheCaptionFollowsTheFirstWhiteSpace)
{
    const ChartItem item = fillLine("12 two  words ");
    EXPECT_EQ(item.value, 12);
    EXPECT_EQ(item.caption, "two  words ");
    EXPECT_FALSE(item.fill);
}

TEST(ItemLines, ATabSeparatesAsABlankDoes)
{
    EXPECT_EQ(fillLine("4096\t/usr/share/a b").caption, "/usr/share/a b");
    EXPECT_EQ(fillLine("4096 \t  /usr").caption, "/usr");
}

TEST(ItemLines, WhiteSpaceBeforeTheNumberIsSkipped)
{
    EXPECT_EQ(fillLine("     12 /bin/sh").value, 12);
}

TEST(ItemLines, NumbersReachTheEndsOf64Bits)
{
    EXPECT_EQ(fillLine("9223372036854775807 x").value, std::numeric_limits<long>::max());
    EXPECT_EQ(fillLine("-9223372036854775808 x").value, std::numeric_limits<long>::min());
    EXPECT_EQ(fillLine("+7 x").value, 7);
    EXPECT_EQ(fillLine("0010 x").value, 10);
}

TEST(ItemLines, AColorFollowsATab)
{
    const ChartItem item = fillLine("5 rent\t#10A0ff");
    EXPECT_EQ(item.caption, "rent");
    expectColor(item.fill, 0x10, 0xa0, 0xff);
}

TEST(ItemLines, OnlyTheLastTabLeadsToAColor)
{
    EXPECT_EQ(fillLine("5 a\t#000000\tb").caption, "a\t#000000\tb");
    EXPECT_EQ(fillLine("5 a\tb\t#000000").caption, "a\tb");
}

TEST(ItemLines, WhatHasNotTheFormOfAColorBelongsToTheCaption)
{
    for (const char* text : {"#12345", "#1234567", "#12345g", "123456", "red", "#12345 ", ""}) {
        const ChartItem item = fillLine(std::string("5 a\t") + text);
        EXPECT_EQ(item.caption, std::string("a\t") + text);
        EXPECT_FALSE(item.fill) << text;
    }
}

TEST(ItemLines, AColorIsNotTakenForTheCaption)
{
    const ChartItem item = fillLine("5\t#102030");
    EXPECT_EQ(item.caption, "#102030");
    EXPECT_FALSE(item.fill);
}

TEST(ItemLines, ABarTakesFillAndOutline)
{
    const ChartItem item = barLine("5 a\t#010203\t#040506");
    EXPECT_EQ(item.caption, "a");
    expectColor(item.fill, 1, 2, 3);
    expectColor(item.outline, 4, 5, 6);
}

TEST(ItemLines, ABarsOnlyColorIsItsFill)
{
    const ChartItem item = barLine("5 a\t#010203");
    expectColor(item.fill, 1, 2, 3);
    EXPECT_FALSE(item.outline);
}

TEST(ItemLines, ASliceTakesOneColor)
{
    EXPECT_EQ(fillLine("5 a\t#010203\t#040506").caption, "a\t#010203");
}

struct BadLine
{
    const char* name;
    std::string_view line;
    const char* reason;
};

void PrintTo(const BadLine& line, std::ostream* stream)
{
    *stream << line.name;
}

class BadItemLines : public ::testing::TestWithParam<BadLine>
{};

TEST_P(BadItemLines, AreRefusedWithTheReason)
{
    EXPECT_THAT([] { (void)fillLine(GetParam().line); },
                ThrowsMessage<CFailure>(GetParam().reason));
}

INSTANTIATE_TEST_SUITE_P(
    ItemLines, BadItemLines,
    ::testing::Values(
        BadLine{"NoCaption", "12", "there is no caption behind the number"},
        BadLine{"BlankCaption", "12 \t ", "there is no caption behind the number"},
        BadLine{"Word", "abc x", "\"abc\" is not a whole number"},
        BadLine{"Exponent", "1e3 x", "\"1e3\" is not a whole number"},
        BadLine{"Decimals", "1.5 x",
                "\"1.5\" is not a whole number; round it (printf %.0f does), or multiply all "
                "numbers by 10, 100 or 1000"},
        BadLine{"TwoSigns", "+-5 x", "\"+-5\" is not a whole number"},
        BadLine{"Sign", "- x", "\"-\" is not a whole number"},
        BadLine{"Grouped", "1,000 x", "\"1,000\" is not a whole number"},
        BadLine{"TooLarge", "9223372036854775808 x",
                "\"9223372036854775808\" does not fit into 64 bits"},
        BadLine{"TooSmall", "-9223372036854775809 x",
                "\"-9223372036854775809\" does not fit into 64 bits"},
        BadLine{"TooLongAndNoNumber", "99999999999999999999z x",
                "\"99999999999999999999z\" is not a whole number"},
        BadLine{"BrokenCaption", "12 caf\xe9", "byte 7 of the line is not UTF-8"},
        BadLine{"BrokenNumber", "\xff x", "byte 1 of the line is not UTF-8"}),
    [](const auto& info) { return info.param.name; });

TEST(ItemLines, AFileIsReadInOrder)
{
    const CTemporaryFolder folder;
    folder.write("items", "1 a\n2 b\r\n3 c");
    const ChartItems items = itemsOf(folder.pathOf("items"));
    ASSERT_EQ(items.size(), 3U);
    EXPECT_EQ(items[1].caption, "b");
    EXPECT_EQ(items[2].value, 3);
}

TEST(ItemLines, EmptyLinesAndCommentsArePassedOver)
{
    for (const char* line : {"", " ", "\t \t", "\r", "#", "# 3 x", "#  ", "# caf\xe9"})
        EXPECT_TRUE(isPassedOver(line)) << line;
}

TEST(ItemLines, WhatMayBeAMistypedItemIsNotPassedOver)
{
    for (const char* line : {"#3 x", "##", "#\t3 x", " # 3 x", "#102030", "3 # x", "x", "0"})
        EXPECT_FALSE(isPassedOver(line)) << line;
}

TEST(ItemLines, AFileMayHaveEmptyLinesAndComments)
{
    const CTemporaryFolder folder;
    folder.write("items", "# Towns\r\n#\n\n1 a\n \t\r\n2 # b\n");
    const ChartItems items = itemsOf(folder.pathOf("items"));
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[0].caption, "a");
    EXPECT_EQ(items[1].caption, "# b");
}

TEST(ItemLines, LinesThatArePassedOverCount)
{
    const CTemporaryFolder folder;
    folder.write("items", "# Towns\n\n1 a\n#3 x\n");
    const std::string path = folder.pathOf("items");
    EXPECT_THAT([&] { (void)itemsOf(path); },
                ThrowsMessage<CFailure>(path + ":4: \"#3\" is not a whole number"));
}

TEST(ItemLines, ABadLineIsToldWithItsPlace)
{
    const CTemporaryFolder folder;
    folder.write("items", "1 a\n2 b\nx c\n");
    const std::string path = folder.pathOf("items");
    EXPECT_THAT([&] { (void)itemsOf(path); },
                ThrowsMessage<CFailure>(path + ":3: \"x\" is not a whole number"));
}

} // namespace
} // namespace tovangl::program
