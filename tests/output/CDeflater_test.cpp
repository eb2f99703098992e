// SPDX-License-Identifier: MIT
#include "output/CDeflater.h"
#include "output/deflate_streams.h"
#include "output/fast_deflating.h"

#include <gtest/gtest.h>
#include <string>

namespace tovangl {
namespace {

constexpr std::size_t kLarge = 600000; // more than what is small, and what is middle

Bytes inflated(const Bytes& stream, std::size_t size)
{
    Bytes bytes(size);
    libdeflate_decompressor* const decompressor = libdeflate_alloc_decompressor();
    const auto result = libdeflate_zlib_decompress(decompressor, stream.data(), stream.size(),
                                                   bytes.data(), bytes.size(), nullptr);
    libdeflate_free_decompressor(decompressor);
    return result == LIBDEFLATE_SUCCESS ? bytes : Bytes();
}

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

Bytes fastDeflated(const Bytes& bytes, Reach reach)
{
    Bytes stream(2 * bytes.size());
    stream.resize(deflateFast({bytes.data(), bytes.size()}, reach, {stream.data(), stream.size()}));
    return stream;
}

class FastestCompressor : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (!canDeflateFast())
            GTEST_SKIP() << "built without it";
    }
};

TEST_F(FastestCompressor, GivesBytesBackHoweverFarItLooks)
{
    for (const Bytes& bytes : {repetitiveBytes(kLarge), anyBytes(kLarge), Bytes(kLarge)}) {
        for (const Reach reach : {Reach::Near, Reach::Far})
            EXPECT_EQ(inflated(fastDeflated(bytes, reach), kLarge), bytes);
    }
}

TEST_F(FastestCompressor, FindsWhatIsAThousandBytesAwayOnlyWhereItLooksFar)
{
    const Bytes bytes = repetitiveBytes(kLarge);
    EXPECT_LT(fastDeflated(bytes, Reach::Far).size(), kLarge / 10);
    EXPECT_GT(fastDeflated(bytes, Reach::Near).size(), kLarge / 2);
}

// Zeros with another byte now and then, as the filter Up leaves them of bars: here a distance
// should take few bits.
TEST_F(FastestCompressor, MakesZerosSmallerWhereItLooksNear)
{
    Bytes bytes(kLarge);
    for (std::size_t i = 0; i < bytes.size(); i += 1201)
        bytes[i] = 2;
    EXPECT_LT(4 * fastDeflated(bytes, Reach::Near).size(),
              3 * fastDeflated(bytes, Reach::Far).size());
}

TEST(Deflater, NamesWhatFastUses)
{
    EXPECT_EQ(std::string(fastCompressor()), canDeflateFast() ? "ISA-L" : "libdeflate");
}

} // namespace
} // namespace tovangl
