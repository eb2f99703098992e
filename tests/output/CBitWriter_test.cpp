// SPDX-License-Identifier: MIT
#include "output/CBitWriter.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

} // namespace
} // namespace tovangl
