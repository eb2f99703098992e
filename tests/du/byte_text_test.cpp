// SPDX-License-Identifier: MIT
#include "tovangl-du/byte_text.h"

#include <gtest/gtest.h>
#include <limits>

namespace tovangl::program {
namespace {

constexpr long kMost = std::numeric_limits<long>::max();

TEST(AddBytes, StopsAtTheGreatestNumber)
{
    EXPECT_EQ(addBytes(2, 3), 5);
    EXPECT_EQ(addBytes(kMost, 0), kMost);
    EXPECT_EQ(addBytes(kMost, 1), kMost);
    EXPECT_EQ(addBytes(kMost, kMost), kMost);
    EXPECT_EQ(addBytes(kMost - 5, 5), kMost);
}

TEST(FormatCount, GroupsByThree)
{
    EXPECT_EQ(formatCount(0), "0");
    EXPECT_EQ(formatCount(999), "999");
    EXPECT_EQ(formatCount(1000), "1,000");
    EXPECT_EQ(formatCount(1234567), "1,234,567");
    EXPECT_EQ(formatCount(std::numeric_limits<std::uint64_t>::max()), "18,446,744,073,709,551,615");
}

struct BytesCase
{
    long bytes;
    const char* text;
};

void PrintTo(const BytesCase& bytesCase, std::ostream* stream)
{
    *stream << bytesCase.bytes;
}

class FormatBytes : public ::testing::TestWithParam<BytesCase>
{};

TEST_P(FormatBytes, WritesAsThePicturesDo)
{
    EXPECT_EQ(formatBytes(GetParam().bytes), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, FormatBytes,
    ::testing::Values(BytesCase{0, "0 bytes"}, BytesCase{1, "1 byte"},
                      BytesCase{1023, "1,023 bytes"}, BytesCase{1024, "1.0 KB"},
                      BytesCase{1536, "1.5 KB"}, BytesCase{296648, "289 KB"},
                      BytesCase{1024 * 1024 - 1, "1,024.0 KB"}, BytesCase{38875767, "37.1 MB"},
                      BytesCase{5600006992, "5.2 GB"}, BytesCase{kMost, "8.0 EB"}));

TEST(FormatShare, TellsLittleFromNothing)
{
    EXPECT_EQ(formatShare(0, 10), "0.0 %");
    EXPECT_EQ(formatShare(1, 100000), "under 0.1 %");
    EXPECT_EQ(formatShare(1, 3), "33.3 %");
    EXPECT_EQ(formatShare(10, 10), "100.0 %");
    EXPECT_EQ(formatShare(kMost, kMost), "100.0 %");
}

TEST(FormatNumberOf, ChoosesTheNoun)
{
    EXPECT_EQ(formatNumberOf(0, "file", "files"), "0 files");
    EXPECT_EQ(formatNumberOf(1, "file", "files"), "1 file");
    EXPECT_EQ(formatNumberOf(2000, "file", "files"), "2,000 files");
}

} // namespace
} // namespace tovangl::program
