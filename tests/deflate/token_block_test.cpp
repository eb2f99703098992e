// SPDX-License-Identifier: MIT
#include "deflate/deflate_streams.h"
#include "deflate/token_block.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

Bytes written(const std::vector<std::vector<CToken>>& blocks)
{
    Bytes stream(1000000);
    CBitWriter writer({stream.data(), stream.size()});
    for (std::size_t i = 0; i < blocks.size(); ++i)
        writeTokens(writer, blocks[i], i + 1 == blocks.size());
    EXPECT_FALSE(writer.isFull());
    stream.resize((writer.position() + 7) / 8);
    return stream;
}

std::vector<CToken> bytesAsTokens(const Bytes& bytes)
{
    std::vector<CToken> tokens;
    for (const unsigned char byte : bytes)
        tokens.push_back({0, byte});
    return tokens;
}

TEST(TokenBlock, HoldsBytesAlone)
{
    for (const Bytes& bytes : {Bytes(1, 7), Bytes(50, 7), anyBytes(5000), repetitiveBytes(3000)})
        EXPECT_EQ(rawInflated(written({bytesAsTokens(bytes)}), bytes.size()), bytes);
}

TEST(TokenBlock, HoldsMatchesOfAllLengthsAndDistances)
{
    constexpr std::size_t kFarthest = 32768;
    Bytes bytes = anyBytes(kFarthest);
    std::vector<CToken> tokens = bytesAsTokens(bytes);
    std::size_t length = 3;
    for (std::size_t distance = 1; distance <= kFarthest; distance += 1 + distance / 16) {
        tokens.push_back(
            {static_cast<std::uint16_t>(length), static_cast<std::uint16_t>(distance)});
        for (std::size_t i = 0; i < length; ++i)
            bytes.push_back(bytes[bytes.size() - distance]);
        length = length == 258 ? 3 : length + 1;
    }
    tokens.push_back({258, static_cast<std::uint16_t>(kFarthest)});
    for (std::size_t i = 0; i < 258; ++i)
        bytes.push_back(bytes[bytes.size() - kFarthest]);
    EXPECT_EQ(rawInflated(written({tokens}), bytes.size()), bytes);
}

// Bytes that are the rarer the larger they are give codes of all lengths.
TEST(TokenBlock, HoldsWhatIsFrequentAndWhatIsRare)
{
    Bytes bytes;
    for (unsigned value = 0; value < 18; ++value)
        bytes.insert(bytes.end(), std::size_t{1} << (17 - value),
                     static_cast<unsigned char>(value));
    EXPECT_EQ(rawInflated(written({bytesAsTokens(bytes)}), bytes.size()), bytes);
}

TEST(TokenBlock, IsFollowedByOthers)
{
    const std::vector<CToken> first = bytesAsTokens(Bytes(3, 5));
    const Bytes stream = written({first, {{4, 1}, {5, 3}}, first});
    EXPECT_EQ(rawInflated(stream, 15), Bytes(15, 5));
}

TEST(TokenBlock, TakesTwoBitsForEachMatchWhereAllAreAlike)
{
    std::vector<CToken> tokens(8001, CToken{258, 1});
    tokens.front() = {0, 0};
    EXPECT_LT(written({tokens}).size(), 2 * tokens.size() / 8 + 20);
}

} // namespace
} // namespace tovangl
