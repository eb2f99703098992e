// SPDX-License-Identifier: MIT
#include "common/CFailure.h"
#include "tovangl-chart/csv_columns.h"

#include <gmock/gmock.h>

namespace tovangl::program {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::ThrowsMessage;

const CsvFields kSales = {"region", "amount", "2", "colour"};

CsvColumns want(std::optional<std::string> CsvColumns::*column, const char* name)
{
    CsvColumns wanted;
    wanted.*column = name;
    return wanted;
}

struct WantedColumns
{
    const char* name;
    CsvColumns wanted;
    std::size_t caption;
    std::size_t value;
    std::optional<std::size_t> color = {};
};

void PrintTo(const WantedColumns& columns, std::ostream* stream)
{
    *stream << columns.name;
}

class FoundColumns : public ::testing::TestWithParam<WantedColumns>
{};

TEST_P(FoundColumns, AreTheWantedAndThenTheFirstThatAreFree)
{
    const ItemColumns columns = findItemColumns(kSales, GetParam().wanted);
    EXPECT_EQ(columns.caption, GetParam().caption);
    EXPECT_EQ(columns.value, GetParam().value);
    EXPECT_EQ(columns.color, GetParam().color);
}

INSTANTIATE_TEST_SUITE_P(
    CsvColumns, FoundColumns,
    ::testing::Values(WantedColumns{"WithoutWishes", {}, 0, 1},
                      WantedColumns{"AValue", want(&CsvColumns::value, "region"), 1, 0},
                      WantedColumns{"ACaption", want(&CsvColumns::caption, "amount"), 1, 0},
                      WantedColumns{"AColor", want(&CsvColumns::color, "region"), 1, 2, 0},
                      WantedColumns{"ANumber", want(&CsvColumns::value, "4"), 0, 3},
                      WantedColumns{"TheFirstNumber", want(&CsvColumns::value, "1"), 1, 0},
                      WantedColumns{"ANameBeforeANumber", want(&CsvColumns::value, "2"), 0, 2}),
    [](const auto& info) { return info.param.name; });

TEST(CsvColumns, OneColumnCanBeBoth)
{
    CsvColumns wanted = want(&CsvColumns::value, "amount");
    wanted.caption = "amount";
    const ItemColumns columns = findItemColumns(kSales, wanted);
    EXPECT_EQ(columns.value, 1U);
    EXPECT_EQ(columns.caption, 1U);
}

class UnknownColumn : public ::testing::TestWithParam<const char*>
{};

INSTANTIATE_TEST_SUITE_P(CsvColumns, UnknownColumn,
                         ::testing::Values("Region", "regio", "", "0", "5", "+1", "-1", "1 ", "0x1",
                                           "99999999999999999999"));

TEST_P(UnknownColumn, IsRefusedWithAListOfThoseThatThereAre)
{
    EXPECT_THAT([] { (void)findItemColumns(kSales, want(&CsvColumns::value, GetParam())); },
                ThrowsMessage<CFailure>("there is no column \"" + std::string(GetParam()) +
                                        "\" for --value; the columns are 1 \"region\", "
                                        "2 \"amount\", 3 \"2\", 4 \"colour\""));
}

TEST(CsvColumns, AnUnknownColumnIsToldWithItsOption)
{
    EXPECT_THAT([] { (void)findItemColumns(kSales, want(&CsvColumns::caption, "x")); },
                ThrowsMessage<CFailure>(HasSubstr("\"x\" for --caption;")));
    EXPECT_THAT([] { (void)findItemColumns(kSales, want(&CsvColumns::color, "x")); },
                ThrowsMessage<CFailure>(HasSubstr("\"x\" for --color;")));
}

TEST(CsvColumns, ANameThatSeveralColumnsHaveIsRefused)
{
    const CsvFields header = {"sum", "name", "sum"};
    EXPECT_THAT([&] { (void)findItemColumns(header, want(&CsvColumns::value, "sum")); },
                ThrowsMessage<CFailure>("several columns are \"sum\", so --value needs a number; "
                                        "the columns are 1 \"sum\", 2 \"name\", 3 \"sum\""));
    EXPECT_EQ(findItemColumns(header, want(&CsvColumns::value, "3")).value, 2U);
}

TEST(CsvColumns, NamesThatNobodyWantsMayBeEqual)
{
    const ItemColumns columns = findItemColumns({"?column?", "?column?"}, {});
    EXPECT_EQ(columns.caption, 0U);
    EXPECT_EQ(columns.value, 1U);
}

TEST(CsvColumns, OneColumnIsTooFew)
{
    EXPECT_THAT([] { (void)findItemColumns({"amount"}, {}); },
                ThrowsMessage<CFailure>(
                    "there is no column left for --value; the columns are 1 \"amount\""));
    EXPECT_THAT([] { (void)findItemColumns({"amount"}, want(&CsvColumns::value, "amount")); },
                ThrowsMessage<CFailure>(
                    "there is no column left for --caption; the columns are 1 \"amount\""));
}

TEST(CsvColumns, ALongListIsCut)
{
    const CsvFields header(2000, "x");
    EXPECT_THAT([&] { (void)findItemColumns(header, want(&CsvColumns::value, "y")); },
                ThrowsMessage<CFailure>(EndsWith(", 20 \"x\" and 1980 more")));
}

TEST(CsvColumns, AListOfBrokenNamesIsPrintable)
{
    EXPECT_THAT(
        [] {
            (void)findItemColumns({"a\n\x1b[2J", "\xff"}, want(&CsvColumns::value, "y"));
        },
        ThrowsMessage<CFailure>(EndsWith("1 \"a??[2J\", 2 \"?\"")));
}

} // namespace
} // namespace tovangl::program
