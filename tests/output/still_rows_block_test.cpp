// SPDX-License-Identifier: MIT
#include "deflate/deflate_streams.h"
#include "output/still_rows_block.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr unsigned char kUp = 2;

Bytes stillRows(std::size_t rowBytes, std::size_t rows)
{
    Bytes bytes((1 + rowBytes) * rows);
    for (std::size_t row = 0; row < rows; ++row)
        bytes[(1 + rowBytes) * row] = kUp;
    return bytes;
}

Bytes written(std::size_t rowBytes, std::size_t rows)
{
    Bytes stream(1000 + (rowBytes / 100 + 4) * rows);
    CBitWriter writer({stream.data(), stream.size()});
    writeStillRows(writer, rowBytes, rows, true);
    EXPECT_FALSE(writer.isFull());
    stream.resize((writer.position() + 7) / 8);
    return stream;
}

TEST(StillRows, AreUpAndZeros)
{
    for (std::size_t rowBytes = 1; rowBytes < 530; ++rowBytes)
        EXPECT_EQ(rawInflated(written(rowBytes, 3), (1 + rowBytes) * 3), stillRows(rowBytes, 3))
            << rowBytes;
}

TEST(StillRows, CanBeLongAndMany)
{
    for (const std::size_t rowBytes : {32767u, 32768u, 100000u})
        EXPECT_EQ(rawInflated(written(rowBytes, 40), (1 + rowBytes) * 40), stillRows(rowBytes, 40));
    EXPECT_EQ(rawInflated(written(200, 100000), 201 * 100000), stillRows(200, 100000));
}

TEST(StillRows, TakeTwoBitsForEachMatch)
{
    constexpr std::size_t kRows = 1000;
    constexpr std::size_t kMatches = 12;
    EXPECT_LT(written(1 + 258 * kMatches, kRows).size(), kRows * (2 * kMatches + 6) / 8 + 40);
}

TEST(StillRows, CanBeFollowedByAnotherBlock)
{
    Bytes stream(200);
    CBitWriter writer({stream.data(), stream.size()});
    writeStillRows(writer, 700, 2, false);
    writeStillRows(writer, 700, 5, true);
    stream.resize((writer.position() + 7) / 8);
    EXPECT_EQ(rawInflated(stream, 701 * 7), stillRows(700, 7));
}

} // namespace
} // namespace tovangl
