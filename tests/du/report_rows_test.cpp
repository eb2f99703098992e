// SPDX-License-Identifier: MIT
#include "tovangl-du/report_rows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

namespace tovangl::program {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr MonthNumber kMay2024 = 2024 * 12 + 4;
constexpr long kMost = std::numeric_limits<long>::max();

FolderSummary makeSummary()
{
    return FolderSummary(1, "", 0, kMay2024);
}

void addChild(FolderSummary& folder, const std::string& name, long bytes, FolderId id = 0)
{
    folder.children.add({name, bytes, id});
    folder.bytes = addBytes(folder.bytes, bytes);
}

std::string pageOfSeven(FolderId id)
{
    return id == 7 ? "2.html" : "";
}

bool isSame(const Color& a, const Color& b)
{
    return a.red == b.red && a.green == b.green && a.blue == b.blue;
}

TEST(ChildRows, LeadToPagesAndElseToTheirOwnPlace)
{
    FolderSummary folder = makeSummary();
    addChild(folder, "with", 50, 7);
    addChild(folder, "without", 30, 8);
    addChild(folder, "file", 20);
    const ChildRows rows = childRows(folder, pageOfSeven);
    ASSERT_THAT(rows.table, SizeIs(3));
    EXPECT_EQ(rows.table[0].name, "with/");
    EXPECT_EQ(rows.table[0].link, "2.html");
    EXPECT_EQ(rows.table[1].name, "without/");
    EXPECT_EQ(rows.table[1].link, "#child-2");
    EXPECT_EQ(rows.table[1].anchor, "child-2");
    EXPECT_EQ(rows.table[2].name, "file");
    EXPECT_THAT(rows.pie, SizeIs(3));
}

TEST(ChildRows, GatherWhatIsSmallInOneSlice)
{
    FolderSummary folder = makeSummary();
    addChild(folder, "large", 10000);
    addChild(folder, "small", 10);
    addChild(folder, "smaller", 5);
    const ChildRows rows = childRows(folder, pageOfSeven);
    ASSERT_THAT(rows.pie, SizeIs(2));
    EXPECT_EQ(rows.pie[1].name, "2 others");
    EXPECT_EQ(rows.pie[1].bytes, 15);
    EXPECT_EQ(rows.pie[1].link, "#" + rows.table[1].anchor);
    EXPECT_TRUE(isSame(rows.pie[1].color, rows.table[2].color));
}

TEST(ChildRows, TellWhatIsNotListed)
{
    FolderSummary folder = makeSummary();
    for (int i = 0; i < 130; ++i)
        addChild(folder, "n" + std::to_string(i), 10);
    const ChildRows rows = childRows(folder, pageOfSeven);
    ASSERT_THAT(rows.table, SizeIs(101));
    EXPECT_EQ(rows.table.back().name, "30 more");
    EXPECT_EQ(rows.table.back().bytes, 300);
    EXPECT_EQ(rows.pie.back().name, "119 others");
    long sum = 0;
    for (const ReportRow& slice : rows.pie)
        sum += slice.bytes;
    EXPECT_EQ(sum, folder.bytes);
}

TEST(ChildRows, TakeSizesBeyondTheGreatestNumberTogether)
{
    FolderSummary folder = makeSummary();
    for (const char* name : {"a", "b", "c"})
        addChild(folder, name, kMost);
    addChild(folder, "d", 1);
    const ChildRows rows = childRows(folder, pageOfSeven);
    ASSERT_THAT(rows.pie, SizeIs(4));
    EXPECT_EQ(rows.pie.back().bytes, 0);
}

TEST(ChildRows, AreReadable)
{
    FolderSummary folder = makeSummary();
    addChild(folder, "a\n\xff", 5);
    EXPECT_EQ(childRows(folder, pageOfSeven).table[0].name, "a␊\uFFFD");
}

TEST(FileRows, HaveTheColourOfTheChildThatTheyLieIn)
{
    FolderSummary folder = makeSummary();
    addChild(folder, "sub", 60, 7);
    addChild(folder, "file", 40);
    folder.largestFiles.add({"sub/deep/one", 50});
    folder.largestFiles.add({"file", 40});
    const ChildRows children = childRows(folder, pageOfSeven);
    const ReportRows rows = fileRows(folder, children);
    ASSERT_THAT(rows, SizeIs(2));
    EXPECT_EQ(rows[0].name, "sub/deep/one");
    EXPECT_EQ(rows[0].caption, "one");
    EXPECT_EQ(rows[0].link, "#file-1");
    EXPECT_TRUE(isSame(rows[0].color, children.table[0].color));
    EXPECT_TRUE(isSame(rows[1].color, children.table[1].color));
}

TEST(MonthRows, LeadToTheirOwnPlaces)
{
    FolderSummary folder = makeSummary();
    EXPECT_THAT(monthRows(folder), IsEmpty());
    folder.months.add(kMay2024, 5);
    ASSERT_THAT(monthRows(folder), SizeIs(1));
    EXPECT_EQ(monthRows(folder)[0].link, "#month-2024-05");
}

} // namespace
} // namespace tovangl::program
