// SPDX-License-Identifier: MIT
// Lines that may be too long.
#include "apps/support/CTemporaryFolder.h"
#include "common/CFailure.h"
#include "tovangl-chart/CBoundedLines.h"

#include <gmock/gmock.h>
#include <utility>
#include <vector>

namespace tovangl::program {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Pair;
using ::testing::ThrowsMessage;

constexpr std::size_t kLongest = 10;

/// The lines of a file, each with its number; "?" stands for one that is too long.
std::vector<std::pair<std::size_t, std::string>> linesOf(const std::string& text,
                                                         std::size_t longest = kLongest)
{
    const CTemporaryFolder folder;
    folder.write("lines", text);
    CBoundedLines lines(folder.pathOf("lines"), longest);
    std::vector<std::pair<std::size_t, std::string>> result;
    while (const std::optional<NumberedLine> line = lines.next())
        result.emplace_back(line->number, line->isTooLong ? "?" : line->text);
    return result;
}

TEST(BoundedLines, EndInALineBreakOrAtTheEnd)
{
    EXPECT_THAT(linesOf("a\nb\r\nc"), ElementsAre(Pair(1, "a"), Pair(2, "b"), Pair(3, "c")));
    EXPECT_THAT(linesOf("a\n"), ElementsAre(Pair(1, "a")));
    EXPECT_THAT(linesOf(""), ElementsAre());
}

TEST(BoundedLines, AreCountedEvenIfTheyAreBlank)
{
    EXPECT_THAT(linesOf("\n \t\r\na\n\n"), ElementsAre(Pair(3, "a")));
}

TEST(BoundedLines, AreTooLongBeyondTheLimitOnly)
{
    EXPECT_THAT(linesOf("0123456789\n0123456789x\nb\n"),
                ElementsAre(Pair(1, "0123456789"), Pair(2, "?"), Pair(3, "b")));
    EXPECT_THAT(linesOf("0123456789x"), ElementsAre(Pair(1, "?")));
}

TEST(BoundedLines, MayBeLongerThanWhatIsReadAtOnce)
{
    const std::string text(200'000, 'x');
    EXPECT_THAT(linesOf(text + "\nb\n"), ElementsAre(Pair(1, "?"), Pair(2, "b")));
    EXPECT_THAT(linesOf("a\n" + text + "\nb\n", text.size()),
                ElementsAre(Pair(1, "a"), Pair(2, text), Pair(3, "b")));
}

TEST(BoundedLines, TellHowMuchOfTheInputIsDone)
{
    const CTemporaryFolder folder;
    folder.write("lines", "ab\n\ncd");
    CBoundedLines lines(folder.pathOf("lines"), kLongest);
    EXPECT_EQ(lines.size(), 6u);
    EXPECT_EQ(lines.next()->end, 3u);
    EXPECT_EQ(lines.next()->end, 6u);
}

TEST(BoundedLines, KnowNoSizeOfWhatIsNoFile)
{
    EXPECT_EQ(CBoundedLines("/dev/null", kLongest).size(), std::nullopt);
}

TEST(BoundedLines, NameAFileThatIsNotThere)
{
    EXPECT_THAT([] { CBoundedLines("/nowhere/x", kLongest); },
                ThrowsMessage<CFailure>(HasSubstr("/nowhere/x: No such file")));
}

} // namespace
} // namespace tovangl::program
