// SPDX-License-Identifier: MIT
#include "deflate/CMatchFinder.h"
#include "deflate/deflate_streams.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

std::vector<CToken> tokensOf(const Bytes& bytes, CRowShape shape)
{
    CMatchFinder finder({bytes.data(), bytes.size()}, shape);
    std::vector<CToken> tokens;
    for (std::size_t position = 0; position < bytes.size();) {
        tokens.push_back(finder.tokenAt(position));
        position += std::max<std::size_t>(tokens.back().length, 1);
    }
    return tokens;
}

bool isMatch(const CToken& token, std::size_t length, std::size_t distance)
{
    return token.length == length && token.value == distance;
}

TEST(MatchFinder, FindsAPixelThatRepeatsTheOneOnItsLeft)
{
    Bytes bytes = {1, 2, 3, 1, 2, 3, 1, 2, 3};
    const Bytes others = anyBytes(20);
    bytes.insert(bytes.end(), others.begin(), others.end());
    const std::vector<CToken> tokens = tokensOf(bytes, {3, 0});
    EXPECT_TRUE(isMatch(tokens[3], 6, 3));
}

TEST(MatchFinder, FindsARowThatRepeatsTheOneAbove)
{
    constexpr std::size_t kStride = 1000;
    Bytes bytes = anyBytes(kStride);
    bytes.insert(bytes.end(), bytes.begin(), bytes.begin() + kStride);
    const std::vector<CToken> tokens = tokensOf(bytes, {1, kStride});
    for (std::size_t i = kStride; i < kStride + 3; ++i)
        EXPECT_TRUE(isMatch(tokens[i], 258, kStride));
}

TEST(MatchFinder, FindsEightBytesElsewhere)
{
    Bytes bytes = anyBytes(400);
    std::copy_n(bytes.begin() + 90, 12, bytes.begin() + 290);
    const std::vector<CToken> tokens = tokensOf(bytes, {1, 70});
    EXPECT_TRUE(std::any_of(tokens.begin(), tokens.end(),
                            [](const CToken& token) { return isMatch(token, 12, 200); }));
}

TEST(MatchFinder, PrefersTheLeftToTheRowAboveWhereBothRepeatAsLong)
{
    const Bytes bytes(10000, 7);
    for (const CToken& token : tokensOf(bytes, {1, 700}))
        EXPECT_TRUE(token.length == 0 || token.value == 1);
}

TEST(MatchFinder, LeavesARowAboveThatIsTooFarAway)
{
    constexpr std::size_t kStride = 32769;
    Bytes bytes = anyBytes(kStride);
    bytes.insert(bytes.end(), bytes.begin(), bytes.begin() + kStride);
    for (const CToken& token : tokensOf(bytes, {1, kStride}))
        EXPECT_EQ(token.length, 0);
}

} // namespace
} // namespace tovangl
