// SPDX-License-Identifier: MIT
#include "apps/support/CTemporaryFolder.h"
#include "common/CFailure.h"
#include "tovangl-chart/item_lines.h"

#include <array>
#include <gmock/gmock.h>
#include <limits>

namespace tovangl::program {
namespace {

using ::testing::ThrowsMessage;

ChartItems itemsOf(const std::string& path)
{
    ItemSource source;
    source.path = path;
    return readItems(source, LineColors::Fill);
}

struct ReadLine
{
    const char* name;
    LineColors colors;
    const char* line;
    long value;
    const char* caption;
    std::optional<Color> fill = {};
    std::optional<Color> outline = {};
};

void PrintTo(const ReadLine& line, std::ostream* stream)
{
    *stream << line.name;
}

std::string shown(const std::optional<Color>& color)
{
    return color ? ::testing::PrintToString(std::array{color->red, color->green, color->blue})
                 : "none";
}

class ItemOfALine : public ::testing::TestWithParam<ReadLine>
{};

TEST_P(ItemOfALine, HasValueCaptionAndColors)
{
    const ChartItem item = parseItemLine(GetParam().line, GetParam().colors);
    EXPECT_EQ(item.value, GetParam().value);
    EXPECT_EQ(item.caption, GetParam().caption);
    EXPECT_EQ(shown(item.fill), shown(GetParam().fill));
    EXPECT_EQ(shown(item.outline), shown(GetParam().outline));
}

constexpr LineColors kSlice = LineColors::Fill;
constexpr LineColors kBar = LineColors::FillAndOutline;
constexpr Color kBlue = {0x10, 0xa0, 0xff};

INSTANTIATE_TEST_SUITE_P(
    ItemLines, ItemOfALine,
    ::testing::Values(
        ReadLine{"TheCaptionFollowsTheFirstBlank", kSlice, "12 two  words ", 12, "two  words "},
        ReadLine{"ATabSeparates", kSlice, "4096\t/usr/share/a b", 4096, "/usr/share/a b"},
        ReadLine{"WhiteSpaceOfBothKinds", kSlice, "4096 \t  /usr", 4096, "/usr"},
        ReadLine{"WhiteSpaceBeforeTheNumber", kSlice, "     12 /bin/sh", 12, "/bin/sh"},
        ReadLine{"TheGreatestNumber", kSlice, "9223372036854775807 x",
                 std::numeric_limits<long>::max(), "x"},
        ReadLine{"TheLeastNumber", kSlice, "-9223372036854775808 x",
                 std::numeric_limits<long>::min(), "x"},
        ReadLine{"APlusSign", kSlice, "+7 x", 7, "x"},
        ReadLine{"ZerosBeforeANumber", kSlice, "0010 x", 10, "x"},
        ReadLine{"AColorFollowsATab", kSlice, "5 rent\t#10A0ff", 5, "rent", kBlue},
        ReadLine{"OnlyTheLastTabLeadsToAColor", kSlice, "5 a\t#000000\tb", 5, "a\t#000000\tb"},
        ReadLine{"TabsBeforeThatBelongToTheCaption", kSlice, "5 a\tb\t#10a0ff", 5, "a\tb", kBlue},
        ReadLine{"AColorIsNotTakenForTheCaption", kSlice, "5\t#102030", 5, "#102030"},
        ReadLine{"ASliceTakesOneColor", kSlice, "5 a\t#010203\t#10a0ff", 5, "a\t#010203", kBlue},
        ReadLine{"ABarTakesFillAndOutline", kBar, "5 a\t#10a0ff\t#040506", 5, "a", kBlue,
                 Color{4, 5, 6}},
        ReadLine{"ABarsOnlyColorIsItsFill", kBar, "5 a\t#10a0ff", 5, "a", kBlue}),
    [](const auto& info) { return info.param.name; });

TEST(ItemLines, WhatHasNotTheFormOfAColorBelongsToTheCaption)
{
    for (const char* text : {"#12345", "#1234567", "#12345g", "123456", "red", "#12345 ", ""}) {
        const ChartItem item = parseItemLine(std::string("5 a\t") + text, kSlice);
        EXPECT_EQ(item.caption, std::string("a\t") + text);
        EXPECT_FALSE(item.fill) << text;
    }
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
    EXPECT_THAT([] { (void)parseItemLine(GetParam().line, kSlice); },
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
