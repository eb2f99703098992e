// SPDX-License-Identifier: MIT
#include "deflate/deflate_streams.h"
#include "output/CDeflater.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr std::size_t kLarge = 600000; // more than what is small, and what is middle

Bytes deflated(const Bytes& bytes, Compression compression)
{
    CDeflater deflater({bytes.data(), bytes.size()}, compression);
    Bytes stream(deflater.bound());
    stream.resize(deflater.deflate({stream.data(), stream.size()}));
    return stream;
}

class DeflatingBytes : public ::testing::TestWithParam<Compression>
{};

TEST_P(DeflatingBytes, GivesThemBack)
{
    for (const std::size_t size : {1u, 7u, 1000u, 131071u, 131072u, 524288u, 3000000u}) {
        for (const Bytes& bytes : {repetitiveBytes(size), anyBytes(size)})
            EXPECT_EQ(inflated(deflated(bytes, GetParam()), size), bytes) << size;
    }
}

TEST_P(DeflatingBytes, GivesTheSameStreamEachTime)
{
    const Bytes bytes = repetitiveBytes(kLarge);
    const Bytes stream = deflated(bytes, GetParam());
    (void)deflated(anyBytes(kLarge), GetParam());
    EXPECT_EQ(deflated(bytes, GetParam()), stream);
}

TEST_P(DeflatingBytes, GivesNothingWhereTheStreamDoesNotFit)
{
    const Bytes bytes = anyBytes(kLarge);
    for (const std::size_t room : {0u, 1u, 5u, 100u, 4096u, 300000u, 599999u}) {
        Bytes stream(room + 1, 0xa5);
        CDeflater deflater({bytes.data(), bytes.size()}, GetParam());
        EXPECT_EQ(deflater.deflate({stream.data(), room}), 0u) << room;
        EXPECT_EQ(stream.back(), 0xa5) << room;
    }
}

INSTANTIATE_TEST_SUITE_P(Deflater, DeflatingBytes,
                         ::testing::Values(Compression::Balanced, Compression::Fast));

// Bytes of four values, as where labels lie upon each other.
TEST(Deflater, SearchesLongInSmallCrowdedPicturesForSpeedToo)
{
    Bytes bytes = anyBytes(40000);
    for (unsigned char& byte : bytes)
        byte %= 4;
    EXPECT_EQ(deflated(bytes, Compression::Fast), deflated(bytes, Compression::Balanced));
}

} // namespace
} // namespace tovangl
