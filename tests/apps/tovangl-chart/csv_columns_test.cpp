// SPDX-License-Identifier: MIT
#include "common/CFailure.h"
#include "tovangl-chart/csv_columns.h"

#include <gmock/gmock.h>

namespace tovangl::program {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Optional;
using ::testing::ThrowsMessage;

const CsvFields kSales = {"region", "amount", "2", "colour"};

CsvColumns wantValue(const std::string& column)
{
    CsvColumns wanted;
    wanted.value = column;
    return wanted;
}

CsvColumns wantCaption(const std::string& column)
{
    CsvColumns wanted;
    wanted.caption = column;
    return wanted;
}

CsvColumns wantColor(const std::string& column)
{
    CsvColumns wanted;
    wanted.color = column;
    return wanted;
}

TEST(CsvColumns, WithoutWishesTheCaptionIsTheFirstAndTheValueTheSecond)
{
    const ItemColumns columns = findItemColumns(kSales, {});
    EXPECT_EQ(columns.caption, 0U);
    EXPECT_EQ(columns.value, 1U);
    EXPECT_FALSE(columns.color);
}

TEST(CsvColumns, TheCaptionIsTheFirstThatTheValueLeaves)
{
    const ItemColumns columns = findItemColumns(kSales, wantValue("region"));
    EXPECT_EQ(columns.value, 0U);
    EXPECT_EQ(columns.caption, 1U);
}

TEST(CsvColumns, TheValueIsTheFirstThatTheCaptionLeaves)
{
    const ItemColumns columns = findItemColumns(kSales, wantCaption("amount"));
    EXPECT_EQ(columns.caption, 1U);
    EXPECT_EQ(columns.value, 0U);
}

TEST(CsvColumns, AColorIsNeitherCaptionNorValue)
{
    const ItemColumns columns = findItemColumns(kSales, wantColor("region"));
    EXPECT_THAT(columns.color, Optional(0U));
    EXPECT_EQ(columns.caption, 1U);
    EXPECT_EQ(columns.value, 2U);
}

TEST(CsvColumns, NumbersCountFromOne)
{
    EXPECT_EQ(findItemColumns(kSales, wantValue("4")).value, 3U);
}

TEST(CsvColumns, ANameComesBeforeANumber)
{
    EXPECT_EQ(findItemColumns(kSales, wantValue("2")).value, 2U);
}

TEST(CsvColumns, OneColumnCanBeBoth)
{
    CsvColumns wanted = wantValue("amount");
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
    EXPECT_THAT([] { (void)findItemColumns(kSales, wantValue(GetParam())); },
                ThrowsMessage<CFailure>("there is no column \"" + std::string(GetParam()) +
                                        "\" for --value; the columns are 1 \"region\", "
                                        "2 \"amount\", 3 \"2\", 4 \"colour\""));
}

TEST(CsvColumns, AnUnknownColumnIsToldWithItsOption)
{
    EXPECT_THAT([] { (void)findItemColumns(kSales, wantCaption("x")); },
                ThrowsMessage<CFailure>(HasSubstr("\"x\" for --caption;")));
    EXPECT_THAT([] { (void)findItemColumns(kSales, wantColor("x")); },
                ThrowsMessage<CFailure>(HasSubstr("\"x\" for --color;")));
}

TEST(CsvColumns, ANameThatSeveralColumnsHaveIsRefused)
{
    const CsvFields header = {"sum", "name", "sum"};
    EXPECT_THAT([&] { (void)findItemColumns(header, wantValue("sum")); },
                ThrowsMessage<CFailure>("several columns are \"sum\", so --value needs a number; "
                                        "the columns are 1 \"sum\", 2 \"name\", 3 \"sum\""));
    EXPECT_EQ(findItemColumns(header, wantValue("3")).value, 2U);
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
    EXPECT_THAT([] { (void)findItemColumns({"amount"}, wantValue("amount")); },
                ThrowsMessage<CFailure>(
                    "there is no column left for --caption; the columns are 1 \"amount\""));
}

TEST(CsvColumns, ALongListIsCut)
{
    const CsvFields header(2000, "x");
    EXPECT_THAT([&] { (void)findItemColumns(header, wantValue("y")); },
                ThrowsMessage<CFailure>(EndsWith(", 20 \"x\" and 1980 more")));
}

TEST(CsvColumns, AListOfBrokenNamesIsPrintable)
{
    EXPECT_THAT(
        [] {
            (void)findItemColumns({"a\n\x1b[2J", "\xff"}, wantValue("y"));
        },
        ThrowsMessage<CFailure>(EndsWith("1 \"a??[2J\", 2 \"?\"")));
}

} // namespace
} // namespace tovangl::program
