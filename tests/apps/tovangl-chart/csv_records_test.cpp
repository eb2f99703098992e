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

struct ReadFile
{
    const char* name;
    std::string text;
    Records records;
};

void PrintTo(const ReadFile& file, std::ostream* stream)
{
    *stream << file.name;
}

class RecordsOfAFile : public ::testing::TestWithParam<ReadFile>
{};

TEST_P(RecordsOfAFile, AreItsFields)
{
    EXPECT_EQ(recordsOf(GetParam().text), GetParam().records);
}

const std::string kMark = "\xef\xbb\xbf";
const std::string kNul("a\0b", 3);

INSTANTIATE_TEST_SUITE_P(
    CsvRecords, RecordsOfAFile,
    ::testing::Values(ReadFile{"AnEmptyFileHasNone", "", {}},
                      ReadFile{"AFileOfEmptyLinesHasNone", "\n\r\n\n", {}},
                      ReadFile{
                          "CommasSeparateFields", "a,b\n,\n1\n", {{"a", "b"}, {"", ""}, {"1"}}},
                      ReadFile{"BlanksBelongToAField", " a , b\t\n", {{" a ", " b\t"}}},
                      ReadFile{"AQuotedFieldMayHaveCommasAndDoubledMarks",
                               "\"a, \"\"b\"\"\",\"\"\n",
                               {{"a, \"b\"", ""}}},
                      ReadFile{"AQuotedFieldMayHaveLineBreaks",
                               "\"a\nb\r\n\nc\",1\n2,3\n",
                               {{"a\nb\n\nc", "1"}, {"2", "3"}}},
                      ReadFile{"EveryLineBreakEndsARecord",
                               "a\r\nb\nc\rd\r\r\ne",
                               {{"a"}, {"b"}, {"c"}, {"d"}, {"e"}}},
                      ReadFile{"EmptyLinesArePassedOver", "\na\n\n\r\nb\n\n", {{"a"}, {"b"}}},
                      ReadFile{"AnEmptyQuotedFieldIsARecord", "a\n\"\"\nb\n", {{"a"}, {""}, {"b"}}},
                      ReadFile{"ANumberSignIsNoComment", "# a,b\n#\n", {{"# a", "b"}, {"#"}}},
                      ReadFile{"AByteOrderMarkIsPassedOverAtTheStartAlone",
                               kMark + "\"a\",b\n" + kMark + "c\n",
                               {{"a", "b"}, {kMark + "c"}}},
                      ReadFile{"NulAndBrokenTextAreBytes", kNul + ",\xff\n", {{kNul, "\xff"}}}),
    [](const auto& info) { return info.param.name; });

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
