// SPDX-License-Identifier: MIT
#include "deflate/CBitWriter.h"
#include "deflate/deflate_streams.h"
#include "deflate/last_block.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

CLastBlock lastBlockOf(const Bytes& stream)
{
    return findLastBlock({stream.data(), stream.size()});
}

TEST(LastBlock, IsTheWholeStreamWhereThereIsOneBlock)
{
    const Bytes stream = rawDeflated(Bytes(1000), 6);
    const CLastBlock block = lastBlockOf(stream);
    EXPECT_EQ(block.begin, 0U);
    EXPECT_LE(block.end, 8 * stream.size());
    EXPECT_GT(block.end, 8 * (stream.size() - 1));
}

class StreamOfBytes : public ::testing::TestWithParam<Bytes>
{};

// If the place were wrong by a single bit, the stream could not be read any more.
TEST_P(StreamOfBytes, GoesOnBehindItsLastBlock)
{
    const Bytes& content = GetParam();
    for (int level = 0; level <= 12; ++level) {
        Bytes stream = rawDeflated(content, level);
        const CLastBlock block = lastBlockOf(stream);
        stream.resize(stream.size() + 8);
        CBitWriter writer({stream.data(), stream.size()});
        writer.clear(block.begin);
        writer.skip(block.end);
        EXPECT_NE(rawInflated(stream, content.size()), content) << "nothing ends it";
        writer.put(1, 3); // stored, the last one
        writer.align();
        writer.put(1, 16); // one byte
        writer.put(0xfffe, 16);
        writer.put('x', 8);
        stream.resize(writer.position() / 8);
        Bytes longer = content;
        longer.push_back('x');
        EXPECT_EQ(rawInflated(stream, longer.size()), longer) << level;
    }
}

INSTANTIATE_TEST_SUITE_P(Contents, StreamOfBytes,
                         ::testing::Values(Bytes(1), Bytes(100000), anyBytes(200000),
                                           repetitiveBytes(1000000)));

} // namespace
} // namespace tovangl
