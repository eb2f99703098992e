// SPDX-License-Identifier: MIT
#include "deflate/CBitWriter.h"

#include <algorithm>
#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

namespace tovangl {
namespace {

using ::testing::ElementsAre;

class BitWriter : public ::testing::Test
{
protected:
    std::array<unsigned char, 3> m_bytes{0xaa, 0xaa, 0xaa};
    CBitWriter m_writer{CByteRoom{m_bytes.data(), m_bytes.size()}};
};

TEST_F(BitWriter, FillsBytesFromTheirLowestBit)
{
    m_writer.put(0b1, 1);
    m_writer.put(0b10, 2);
    m_writer.put(0b1100000001, 10);
    EXPECT_THAT(m_bytes, ElementsAre(0b00001101, 0b00011000, 0xaa));
    EXPECT_EQ(m_writer.position(), 13U);
}

TEST_F(BitWriter, TakesTheLowestBitsOfANumberAlone)
{
    m_writer.put(0xff, 2);
    EXPECT_EQ(m_bytes[0], 0b11);
}

TEST_F(BitWriter, GoesOnWithTheNextByteWhereItIsAligned)
{
    m_writer.put(1, 1);
    m_writer.align();
    m_writer.align();
    EXPECT_EQ(m_writer.rest().data, &m_bytes[1]);
    EXPECT_EQ(m_writer.rest().size, 2U);
    m_writer.put(0xff, 8);
    EXPECT_THAT(m_bytes, ElementsAre(1, 0xff, 0xaa));
}

TEST_F(BitWriter, GoesOnInsideAByteThatSomebodyBegan)
{
    m_bytes = {0xff, 0b101, 0xaa};
    m_writer.skip(11);
    m_writer.put(0b11, 2);
    EXPECT_THAT(m_bytes, ElementsAre(0xff, 0b11101, 0xaa));
}

TEST_F(BitWriter, ClearsOneBit)
{
    m_bytes = {0xff, 0xff, 0xff};
    m_writer.clear(10);
    EXPECT_THAT(m_bytes, ElementsAre(0xff, 0b11111011, 0xff));
}

TEST_F(BitWriter, SaysThatItIsFullInsteadOfWritingBeyondTheRoom)
{
    m_writer.put(0, 16);
    m_writer.put(0xff, 8);
    EXPECT_FALSE(m_writer.isFull());
    m_writer.put(0, 1);
    EXPECT_TRUE(m_writer.isFull());
}

// Far from the end of its room it writes words, near the end bits.
TEST(BitWriterInALargeRoom, WritesTheSameAsInASmallOne)
{
    std::array<unsigned char, 40> large;
    large.fill(0xaa);
    std::array<unsigned char, 21> small = {};
    CBitWriter first({large.data(), large.size()});
    CBitWriter second({small.data(), small.size()});
    for (int count = 0; count <= 17; ++count) {
        first.put(0x1234567, count);
        second.put(0x1234567, count);
    }
    EXPECT_EQ(first.position(), second.position());
    const std::size_t whole = first.position() / 8;
    EXPECT_TRUE(std::equal(large.begin(), large.begin() + whole, small.begin()));
}

TEST(BitWriterInALargeRoom, TakesFiftySixBitsAtOnceWhereAByteIsBegun)
{
    std::array<unsigned char, 16> bytes = {};
    CBitWriter writer({bytes.data(), bytes.size()});
    writer.put(0b1111111, 7);
    writer.put(0x8123456789abcd, CBitWriter::kMostBits);
    writer.put(1, 1);
    EXPECT_THAT(std::vector<int>(bytes.begin(), bytes.begin() + 8),
                ElementsAre(0xff, 0xe6, 0xd5, 0xc4, 0xb3, 0xa2, 0x91, 0xc0));
}

TEST(BitWriterInALargeRoom, KeepsBitsThatSomebodyBegan)
{
    std::array<unsigned char, 16> bytes = {0xff, 0b101};
    CBitWriter writer({bytes.data(), bytes.size()});
    writer.skip(11);
    writer.put(0b11, 2);
    EXPECT_EQ(bytes[1], 0b11101);
}

} // namespace
} // namespace tovangl
