// SPDX-License-Identifier: MIT
#include "apps/support/CTemporaryFolder.h"
#include "common/CFailure.h"
#include "common/CLineReader.h"
#include "tovangl-chart/csv_records.h"

#include <gmock/gmock.h>
#include <new>

namespace tovangl::program {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::ThrowsMessage;

using Records = std::vector<CsvFields>;

constexpr const char* kNoEnd = "a quoted field has no end";
constexpr const char* kMisplacedMark = "a quotation mark is out of place; a field that has one is "
                                       "quoted and doubles it, as in \"6\"\" nails\"";

Records recordsOf(const std::string& text)
{
    const CTemporaryFolder folder;
    folder.write("table", text);
    Records records;
    readCsvRecords(folder.pathOf("table"),
                   [&](const CsvFields& fields) { records.push_back(fields); });
    return records;
}

void ignoreRecord(const CsvFields& /*fields*/) {}

/// What is wrong with a file, without its path: "3: reason".
std::string failureOf(const std::string& text, const UseCsvRecord& use = ignoreRecord)
{
    const CTemporaryFolder folder;
    folder.write("table", text);
    const std::string path = folder.pathOf("table");
    try {
        readCsvRecords(path, use);
    } catch (const CFailure& failure) {
        return std::string(failure.what()).substr(path.size() + 1);
    }
    return "nothing";
}

TEST(CsvRecords, AnEmptyFileHasNone)
{
    EXPECT_THAT(recordsOf(""), IsEmpty());
    EXPECT_THAT(recordsOf("\n\r\n\n"), IsEmpty());
}

TEST(CsvRecords, CommasSeparateFields)
{
    EXPECT_THAT(recordsOf("a,b\n,\n1\n"),
                ElementsAre(ElementsAre("a", "b"), ElementsAre("", ""), ElementsAre("1")));
}

TEST(CsvRecords, BlanksBelongToAField)
{
    EXPECT_THAT(recordsOf(" a , b\t\n"), ElementsAre(ElementsAre(" a ", " b\t")));
}

TEST(CsvRecords, AQuotedFieldMayHaveCommasAndDoubledMarks)
{
    EXPECT_THAT(recordsOf("\"a, \"\"b\"\"\",\"\"\n"), ElementsAre(ElementsAre("a, \"b\"", "")));
}

TEST(CsvRecords, AQuotedFieldMayHaveLineBreaks)
{
    EXPECT_THAT(recordsOf("\"a\nb\r\n\nc\",1\n2,3\n"),
                ElementsAre(ElementsAre("a\nb\n\nc", "1"), ElementsAre("2", "3")));
}

TEST(CsvRecords, EveryLineBreakEndsARecord)
{
    EXPECT_THAT(recordsOf("a\r\nb\nc\rd\r\r\ne"),
                ElementsAre(ElementsAre("a"), ElementsAre("b"), ElementsAre("c"), ElementsAre("d"),
                            ElementsAre("e")));
}

TEST(CsvRecords, EmptyLinesArePassedOver)
{
    EXPECT_THAT(recordsOf("\na\n\n\r\nb\n\n"), ElementsAre(ElementsAre("a"), ElementsAre("b")));
}

TEST(CsvRecords, AnEmptyQuotedFieldIsARecord)
{
    EXPECT_THAT(recordsOf("a\n\"\"\nb\n"),
                ElementsAre(ElementsAre("a"), ElementsAre(""), ElementsAre("b")));
}

TEST(CsvRecords, ANumberSignIsNoComment)
{
    EXPECT_THAT(recordsOf("# a,b\n#\n"), ElementsAre(ElementsAre("# a", "b"), ElementsAre("#")));
}

TEST(CsvRecords, AByteOrderMarkIsPassedOverAtTheStartAlone)
{
    EXPECT_THAT(recordsOf("\xef\xbb\xbf\"a\",b\n\xef\xbb\xbf"
                          "c\n"),
                ElementsAre(ElementsAre("a", "b"), ElementsAre("\xef\xbb\xbf"
                                                               "c")));
}

TEST(CsvRecords, NulAndBrokenTextAreBytes)
{
    const std::string nul("a\0b", 3);
    EXPECT_THAT(recordsOf(nul + ",\xff\n"), ElementsAre(ElementsAre(nul, "\xff")));
}

TEST(CsvRecords, AFieldMayBeLongerThanTheBuffers)
{
    const std::string longField(300'000, 'x');
    EXPECT_THAT(recordsOf("\"" + longField + "\n" + longField + "\",1\n"),
                ElementsAre(ElementsAre(longField + "\n" + longField, "1")));
}

TEST(CsvRecords, AMisplacedQuotationMarkIsToldWithItsLine)
{
    EXPECT_EQ(failureOf("a\n6\" nails\n"), std::string("2: ") + kMisplacedMark);
    EXPECT_EQ(failureOf("a\n\"b\"c\n"), std::string("2: ") + kMisplacedMark);
    EXPECT_EQ(failureOf("\"a\nb\" c\n"), std::string("2: ") + kMisplacedMark);
}

TEST(CsvRecords, AQuotedFieldWithoutEndIsToldWithTheLineWhereItsRecordStarts)
{
    EXPECT_EQ(failureOf("a\n\nb,\"c\n\nd\n"), std::string("3: ") + kNoEnd);
    EXPECT_EQ(failureOf("a\r\r\n\""), std::string("2: ") + kNoEnd);
}

TEST(CsvRecords, AQuotedFieldWithoutEndIsNotReadForever)
{
    const std::string line = std::string(CLineReader::kMaxLineBytes / 4, 'x') + '\n';
    EXPECT_EQ(failureOf("a\n\"" + line + line + line + line), std::string("2: ") + kNoEnd);
}

TEST(CsvRecords, AFileMayBeLongerThanARecord)
{
    const std::string line = std::string(CLineReader::kMaxLineBytes / 4, 'x') + "\r\r\n";
    EXPECT_THAT(recordsOf(line + line + line + line + line), SizeIs(5));
}

TEST(CsvRecords, ALineWithoutEndIsAFailure)
{
    EXPECT_THAT([] { readCsvRecords("/dev/zero", ignoreRecord); },
                ThrowsMessage<CFailure>("/dev/zero:1: the line has no end"));
}

TEST(CsvRecords, FieldsAreCounted)
{
    EXPECT_THAT(recordsOf(std::string(kMaxCsvFields - 1, ',')), ElementsAre(SizeIs(kMaxCsvFields)));
    EXPECT_EQ(failureOf("a\n" + std::string(kMaxCsvFields, ',')),
              "2: there are more than 32767 fields");
}

TEST(CsvRecords, WhatTheUserRefusesIsToldWithTheLineWhereTheRecordStarts)
{
    const auto refuseThird = [count = 0](const CsvFields&) mutable {
        if (++count == 3)
            throw CFailure("no third");
    };
    EXPECT_EQ(failureOf("a\n\"b\nb\"\n\"c\nc\"\nd\n", refuseThird), "4: no third");
}

TEST(CsvRecords, NothingIsUsedAfterARefusal)
{
    int count = 0;
    const auto refuse = [&](const CsvFields&) {
        ++count;
        throw CFailure("no");
    };
    EXPECT_EQ(failureOf("a\rb\rc\n", refuse), "1: no");
    EXPECT_EQ(count, 1);
}

TEST(CsvRecords, MemoryThatRunsOutIsNoMatterOfTheFile)
{
    EXPECT_THROW(failureOf("a\n", [](const CsvFields&) { throw std::bad_alloc(); }),
                 std::bad_alloc);
}

TEST(CsvRecords, AMissingFileIsAFailure)
{
    EXPECT_THAT([] { readCsvRecords("/nowhere/x", ignoreRecord); },
                ThrowsMessage<CFailure>("/nowhere/x: No such file or directory"));
}

} // namespace
} // namespace tovangl::program
