// SPDX-License-Identifier: MIT
// Tables as databases and spreadsheets write them.
#include "apps/support/CProgramTest.h"
#include "apps/support/failing_commands.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>
#include <tuple>

namespace tovangl::program {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;
using Json = nlohmann::json;

using Item = std::tuple<std::string, long>;

constexpr int kNoCommand = 127; // how a shell ends that finds none

class Csv : public CProgramTest
{
protected:
    /// The items that a command draws. It must write its picture, and succeed in silence.
    std::vector<Item> drawnBy(const std::string& command) const
    {
        runWell(command + " --map map.json");
        const Json map = Json::parse(folder.read("map.json"));
        std::vector<Item> items;
        for (const Json& item : map["items"])
            items.emplace_back(item["caption"], item["value"]);
        return items;
    }
    std::vector<Item> drawn(const std::string& table, const std::string& arguments) const
    {
        folder.write("table.csv", table);
        return drawnBy("tovangl-chart " + arguments + " --csv table.csv -o x.png");
    }
};

/// The line of the README that starts with some words.
std::string readmeLine(const std::string& start)
{
    std::ifstream readme(TOVANGL_APPS_FOLDER "/../README.md");
    for (std::string line; std::getline(readme, line);) {
        if (line.find(start) == line.find_first_not_of(' ') && !line.empty())
            return line;
    }
    ADD_FAILURE() << "the README has no line that starts with " << start;
    return "false";
}

TEST_F(Csv, TheReadmesChartOfADatabaseIsDrawn)
{
    folder.write("shop.sql", R"(CREATE TABLE orders (town TEXT);
        INSERT INTO orders VALUES ('Graz'), ('Linz, "north"'), ('Graz');)");
    const ShellResult made = shell("sqlite3 shop.db <shop.sql");
    if (made.status == kNoCommand)
        GTEST_SKIP() << "there is no sqlite3 here; install the package sqlite3";
    ASSERT_EQ(made.status, 0) << made.errors;
    EXPECT_THAT(drawnBy(readmeLine("sqlite3 -csv -header shop.db")),
                ElementsAre(Item("Graz", 2), Item("Linz, \"north\"", 1)));
    EXPECT_THAT(folder.read("towns.png"), StartsWith("\x89PNG"));
}

TEST_F(Csv, WhatPsqlWritesIsDrawn)
{
    // Without a name for a column, no town in the first record, and a line break in the last.
    EXPECT_THAT(drawn("town,?column?\n,3\nGraz,-4\n\"a\nb \"\"c\"\", d\",5\n", "bars"),
                ElementsAre(Item("", 3), Item("Graz", -4), Item("a b \"c\", d", 5)));
}

TEST_F(Csv, WhatASpreadsheetWritesIsDrawn)
{
    EXPECT_THAT(drawn("\xef\xbb\xbfMonth,\"Sales, net\",Note\r\nMay,1200,\"6\"\" nails\"\r\n"
                      "June,900,\r\n",
                      "hbars --value 'Sales, net' --caption Month"),
                ElementsAre(Item("May", 1200), Item("June", 900)));
}

class ChartOfATable : public CProgramTest, public ::testing::WithParamInterface<const char*>
{};

INSTANTIATE_TEST_SUITE_P(Csv, ChartOfATable, ::testing::Values("pie", "bars", "hbars"),
                         [](const auto& info) { return info.param; });

TEST_P(ChartOfATable, IsThatOfTheSameLines)
{
    folder.write("lines", "3 a\t#a01020\n2 b c\n");
    folder.write("table", "paint,n,name\n#a01020,3,a\n,2,b c\n");
    const std::string command = std::string("tovangl-chart ") + GetParam();
    runWell(command + " lines -o lines.png");
    runWell(command + " --csv --color paint --value n --caption name table -o table.png");
    EXPECT_THAT(folder.read("lines.png"), StartsWith("\x89PNG"));
    EXPECT_EQ(folder.read("lines.png"), folder.read("table.png"));
}

TEST_F(Csv, AnEmptyAnswerIsAnEmptyChart)
{
    EXPECT_THAT(drawn("", "pie"), IsEmpty());
    EXPECT_THAT(drawn("town,orders\n", "bars"), IsEmpty());
}

/// Commands that write tables, and what is said about each.
class HostileCsv : public CProgramTest, public ::testing::WithParamInterface<FailingCommand>
{};

TEST_P(HostileCsv, IsRefusedInOneLine)
{
    const ShellResult result =
        shell(std::string(GetParam().command) + " | tovangl-chart pie --csv -o x.png");
    expectOneLine(result, GetParam().message);
    EXPECT_THAT(result.errors, StartsWith("tovangl-chart: standard input:"));
    EXPECT_THAT(folder.names(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Csv, HostileCsv,
    ::testing::Values(
        FailingCommand{"Picture", "printf '\\211PNG\\r\\n\\032\\n\\0\\0\\0\\rIHDR'",
                       "no column left"},
        FailingCommand{"Utf16", "printf '\\377\\376n\\0,\\0v\\0\\n\\0a\\0,\\0001\\0\\n\\0'",
                       "2: column 2 \"?v?\": \"?1?\" is not a whole number"},
        FailingCommand{"Zeros", "head -c 100000000 /dev/zero", "1: the line has no end"},
        FailingCommand{"Commas", "head -c 60000000 /dev/zero | tr '\\0' ,",
                       "1: there are more than 32767 fields"},
        FailingCommand{"OpenQuote", "(printf 'n,v\\n\"'; yes | head -c 100000000)",
                       "2: a quoted field has no end"},
        FailingCommand{"TerminalSequence", "printf 'n,v\\na,\\033[2J\\n'", "\"?[2J\" is not"},
        FailingCommand{"TerminalSequenceInAName", "printf '\\033[2J,v\\n\\351,1\\n'",
                       "column 1 \"?[2J\": \"?\" is not UTF-8"},
        FailingCommand{"LineBreakInAName", "printf '\"a\\nb\"\\n'", "the columns are 1 \"a?b\"\n"}),
    caseName);

} // namespace
} // namespace tovangl::program
