// SPDX-License-Identifier: MIT
#include "apps/support/CTemporaryFolder.h"
#include "common/CFailure.h"
#include "common/CLineReader.h"

#include <gmock/gmock.h>
#include <vector>

namespace tovangl::program {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::ThrowsMessage;

std::vector<std::string> linesOf(const std::string& text)
{
    const CTemporaryFolder folder;
    folder.write("lines", text);
    CLineReader reader(folder.pathOf("lines"));
    std::vector<std::string> lines;
    std::string line;
    while (reader.readLine(line))
        lines.push_back(line);
    return lines;
}

TEST(LineReader, AnEmptyFileHasNoLines)
{
    EXPECT_THAT(linesOf(""), IsEmpty());
}

TEST(LineReader, TheLastLineNeedsNoLineBreak)
{
    EXPECT_THAT(linesOf("a\nb"), ElementsAre("a", "b"));
    EXPECT_THAT(linesOf("a\nb\n"), ElementsAre("a", "b"));
}

TEST(LineReader, EmptyLinesAreLines)
{
    EXPECT_THAT(linesOf("\n\na\n"), ElementsAre("", "", "a"));
}

TEST(LineReader, BothLineBreaksAreTakenOff)
{
    EXPECT_THAT(linesOf("a\r\nb\rc\r\n"), ElementsAre("a", "b\rc"));
}

TEST(LineReader, ANulIsACharacter)
{
    EXPECT_THAT(linesOf(std::string("a\0b\n", 4)), ElementsAre(std::string("a\0b", 3)));
}

TEST(LineReader, LinesMayBeLongerThanTheBuffer)
{
    const std::string longLine(300'000, 'x');
    EXPECT_THAT(linesOf("a\n" + longLine + "\nb\n"), ElementsAre("a", longLine, "b"));
}

TEST(LineReader, ThePlaceNamesFileAndLine)
{
    const CTemporaryFolder folder;
    folder.write("lines", "a\nb\n");
    CLineReader reader(folder.pathOf("lines"));
    std::string line;
    ASSERT_TRUE(reader.readLine(line));
    ASSERT_TRUE(reader.readLine(line));
    EXPECT_EQ(reader.place(), folder.pathOf("lines") + ":2");
}

TEST(LineReader, AMissingFileIsAFailure)
{
    EXPECT_THAT([] { CLineReader("/nowhere/x"); },
                ThrowsMessage<CFailure>("/nowhere/x: No such file or directory"));
}

TEST(LineReader, AFolderIsAFailure)
{
    CLineReader reader("/");
    std::string line;
    EXPECT_THAT([&] { (void)reader.readLine(line); }, ThrowsMessage<CFailure>("/: Is a directory"));
}

TEST(LineReader, AnEndlessLineIsAFailure)
{
    CLineReader reader("/dev/zero");
    std::string line;
    EXPECT_THAT([&] { (void)reader.readLine(line); },
                ThrowsMessage<CFailure>("/dev/zero:1: the line has no end"));
}

} // namespace
} // namespace tovangl::program
