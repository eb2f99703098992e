// SPDX-License-Identifier: MIT
#include "apps/support/CTemporaryFolder.h"
#include "common/CFailure.h"
#include "tovangl-chart/csv_items.h"

#include <gmock/gmock.h>

namespace tovangl::program {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr const char* kSales = "name,amount,colour\nRent,1200,#102030\nFood,430,\n";

ChartItems itemsOf(const std::string& text, const CsvColumns& columns = {})
{
    const CTemporaryFolder folder;
    folder.write("table", text);
    return readCsvItems(folder.pathOf("table"), columns);
}

CsvColumns withColors()
{
    CsvColumns columns;
    columns.color = "colour";
    return columns;
}

TEST(CsvItems, ComeFromTheRecordsBelowTheHeader)
{
    const ChartItems items = itemsOf(kSales);
    ASSERT_THAT(items, SizeIs(2));
    EXPECT_EQ(items[0].value, 1200);
    EXPECT_EQ(items[0].caption, "Rent");
    EXPECT_FALSE(items[0].fill);
    EXPECT_EQ(items[1].value, 430);
}

TEST(CsvItems, TakeTheColumnsThatAreWanted)
{
    CsvColumns columns;
    columns.value = "count";
    columns.caption = "3";
    const ChartItems items = itemsOf("id,count,town\n9,5,Graz\n", columns);
    ASSERT_THAT(items, SizeIs(1));
    EXPECT_EQ(items[0].value, 5);
    EXPECT_EQ(items[0].caption, "Graz");
}

TEST(CsvItems, AnEmptyColorIsNone)
{
    const ChartItems items = itemsOf(kSales, withColors());
    ASSERT_TRUE(items[0].fill);
    EXPECT_EQ(items[0].fill->green, 0x20);
    EXPECT_FALSE(items[1].fill);
}

TEST(CsvItems, AnEmptyFileHasNone)
{
    EXPECT_THAT(itemsOf(""), IsEmpty());
}

TEST(CsvItems, AHeaderAloneHasNone)
{
    EXPECT_THAT(itemsOf("name,amount\r\n"), IsEmpty());
}

TEST(CsvItems, AHeaderAloneIsChecked)
{
    EXPECT_THROW(itemsOf("name\n"), CFailure);
}

TEST(CsvItems, BlanksAroundNumbersColorsAndNamesAreSkipped)
{
    const ChartItems items = itemsOf("name, amount , colour\na,\t7 , #102030 \n", withColors());
    ASSERT_THAT(items, SizeIs(1));
    EXPECT_EQ(items[0].value, 7);
    EXPECT_TRUE(items[0].fill);
}

TEST(CsvItems, BlanksInACaptionStay)
{
    EXPECT_EQ(itemsOf("name,amount\n  a ,7\n")[0].caption, "  a ");
}

TEST(CsvItems, ACaptionMayBeEmpty)
{
    EXPECT_EQ(itemsOf("name,amount\n,7\n")[0].caption, "");
}

TEST(CsvItems, ACaptionBecomesOneLine)
{
    EXPECT_EQ(itemsOf("name,amount\n\"a\r\nb\nc\rd\",7\n")[0].caption, "a b c d");
}

TEST(CsvItems, FieldsThatNoItemNeedsMayBeMissing)
{
    EXPECT_THAT(itemsOf("name,amount,note\na,1\n"), SizeIs(1));
}

TEST(CsvItems, TextThatNoItemNeedsMayBeBroken)
{
    EXPECT_THAT(itemsOf("name,amount,note\na,1,\xe9\n"), SizeIs(1));
}

struct BadTable
{
    const char* name;
    const char* text;
    const char* failure; // without the path
};

void PrintTo(const BadTable& table, std::ostream* stream)
{
    *stream << table.name;
}

class BadCsvItems : public ::testing::TestWithParam<BadTable>
{};

TEST_P(BadCsvItems, AreToldWithLineColumnAndReason)
{
    const CTemporaryFolder folder;
    folder.write("table", GetParam().text);
    const std::string path = folder.pathOf("table");
    EXPECT_THAT(
        [&] { (void)readCsvItems(path, withColors()); },
        ::testing::ThrowsMessage<CFailure>(::testing::StartsWith(path + GetParam().failure)));
}

INSTANTIATE_TEST_SUITE_P(
    CsvItems, BadCsvItems,
    ::testing::Values(
        BadTable{"NoColumn", "name,amount\na,1\n", ":1: there is no column \"colour\" for --color"},
        BadTable{"TwoColumns", "name,amount,colour,colour\n", ":1: several columns are \"colour\""},
        BadTable{"TooFewFields", "name,amount,colour\na,1,\nb\n",
                 ":3: column 2 \"amount\": there is no such field"},
        BadTable{"NoColor", "name,amount,colour\na,1\n",
                 ":2: column 3 \"colour\": there is no such field"},
        BadTable{"TooManyFields", "name,amount,colour\na,b,1,\n",
                 ":2: there are 4 fields below a header of 3; a field with a comma has to be "
                 "quoted"},
        BadTable{"EmptyValue", "name,amount,colour\na,,\n",
                 ":2: column 2 \"amount\": \"\" is not a whole number"},
        BadTable{"Word", "name,amount,colour\na,b,\n",
                 ":2: column 2 \"amount\": \"b\" is not a whole number"},
        BadTable{"Decimals", "name,amount,colour\na,1.5,\n",
                 ":2: column 2 \"amount\": \"1.5\" is not a whole number; round it"},
        BadTable{"Grouped", "name,amount,colour\na,\"1,000\",\n",
                 ":2: column 2 \"amount\": \"1,000\" is not a whole number"},
        BadTable{"TooLarge", "name,amount,colour\na,9223372036854775808,\n",
                 ":2: column 2 \"amount\": \"9223372036854775808\" does not fit into 64 bits"},
        BadTable{"BrokenCaption", "name,amount,colour\ncaf\xe9,1,\n",
                 ":2: column 1 \"name\": \"caf?\" is not UTF-8"},
        BadTable{"BrokenValue", "name,amount,colour\na,\xff,\n",
                 ":2: column 2 \"amount\": \"?\" is not a whole number"},
        BadTable{"Color", "name,amount,colour\na,1,red\n",
                 ":2: column 3 \"colour\": \"red\" is not a colour such as #4070c0"},
        BadTable{"LineAfterALongField", "name,amount,colour\n\"a\nb\",1,\nc,x,\n",
                 ":4: column 2 \"amount\": \"x\" is not a whole number"}),
    [](const auto& info) { return info.param.name; });

} // namespace
} // namespace tovangl::program
