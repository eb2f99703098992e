// SPDX-License-Identifier: MIT
#include "tovangl-du/CMonthTable.h"

#include <ctime>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace tovangl::program {

bool operator==(const CMonthTable::Row& a, const CMonthTable::Row& b)
{
    return a.name == b.name && a.bytes == b.bytes;
}

void PrintTo(const CMonthTable::Row& row, std::ostream* stream)
{
    *stream << row.name << ' ' << row.bytes;
}

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr MonthNumber kMay2024 = 2024 * 12 + 4;

using Row = CMonthTable::Row;

TEST(MonthOf, ChangesAtMidnightByUniversalTime)
{
    EXPECT_EQ(monthName(monthOf(0)), "1970-01");
    EXPECT_EQ(monthName(monthOf(-1)), "1969-12");
    EXPECT_EQ(monthName(monthOf(1709251199)), "2024-02"); // 29 February, 23:59:59
    EXPECT_EQ(monthName(monthOf(1709251200)), "2024-03");
}

TEST(MonthOf, AgreesWithTheSystem)
{
    std::mt19937_64 random(3);
    std::uniform_int_distribution<std::int64_t> seconds(-200'000'000'000, 200'000'000'000);
    for (int i = 0; i < 5000; ++i) {
        const std::time_t time = seconds(random);
        std::tm parts{};
        ASSERT_TRUE(::gmtime_r(&time, &parts));
        EXPECT_EQ(monthOf(time), (parts.tm_year + 1900) * 12LL + parts.tm_mon) << time;
    }
}

TEST(MonthOf, TakesAnyNumber)
{
    using Limits = std::numeric_limits<std::int64_t>;
    EXPECT_LT(monthOf(Limits::min()), monthOf(0));
    EXPECT_GT(monthOf(Limits::max()), monthOf(0));
    CMonthTable table(kMay2024);
    table.add(monthOf(Limits::min()), 1);
    table.add(monthOf(Limits::max()), 2);
    EXPECT_THAT(table.rows(), ElementsAre(Row{"earlier", 1}, Row{"later", 2}));
}

TEST(MonthTable, IsEmptyWithoutBytes)
{
    CMonthTable table(kMay2024);
    EXPECT_THAT(table.rows(), IsEmpty());
    table.add(kMay2024, 0);
    EXPECT_THAT(table.rows(), IsEmpty());
}

TEST(MonthTable, ReachesFromTheFirstToTheLastMonthWithBytes)
{
    CMonthTable table(kMay2024);
    table.add(kMay2024 - 1, 5);
    table.add(kMay2024 - 4, 7);
    table.add(kMay2024 - 1, 6);
    EXPECT_THAT(table.rows(), ElementsAre(Row{"2024-01", 7}, Row{"2024-02", 0}, Row{"2024-03", 0},
                                          Row{"2024-04", 11}));
}

TEST(MonthTable, HasTenYears)
{
    CMonthTable table(kMay2024);
    table.add(kMay2024 - 119, 1);
    table.add(kMay2024 - 120, 2);
    table.add(kMay2024 + 1, 3);
    const std::vector<Row> rows = table.rows();
    EXPECT_EQ(rows.front(), (Row{"earlier", 2}));
    EXPECT_EQ(rows[1], (Row{"2014-06", 1}));
    EXPECT_EQ(rows.back(), (Row{"later", 3}));
}

TEST(MonthTable, AddsAnotherTableMonthByMonth)
{
    CMonthTable a(kMay2024);
    CMonthTable b(kMay2024);
    a.add(kMay2024, 1);
    b.add(kMay2024, 2);
    b.add(kMay2024 - 500, 3);
    a.add(b);
    EXPECT_THAT(a.rows(), ElementsAre(Row{"earlier", 3}, Row{"2024-05", 3}));
}

} // namespace
} // namespace tovangl::program
