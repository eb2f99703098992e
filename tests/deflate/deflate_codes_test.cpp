// SPDX-License-Identifier: MIT
#include "deflate/deflate_codes.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

struct CNumberCase
{
    std::size_t value;
    unsigned symbol;
    unsigned extra;
    int extraBits;
};

void expectNumber(const CNumber& number, const CNumberCase& expected)
{
    EXPECT_EQ(number.symbol, expected.symbol);
    EXPECT_EQ(number.extra, expected.extra);
    EXPECT_EQ(number.extraBits, expected.extraBits);
}

class NumberOfALength : public ::testing::TestWithParam<CNumberCase>
{};

TEST_P(NumberOfALength, IsThatOfTheFormat)
{
    expectNumber(lengthNumber(GetParam().value), GetParam());
}

INSTANTIATE_TEST_SUITE_P(DeflateCodes, NumberOfALength,
                         ::testing::Values(CNumberCase{3, 257, 0, 0}, CNumberCase{10, 264, 0, 0},
                                           CNumberCase{11, 265, 0, 1}, CNumberCase{12, 265, 1, 1},
                                           CNumberCase{66, 276, 7, 3}, CNumberCase{227, 284, 0, 5},
                                           CNumberCase{257, 284, 30, 5},
                                           CNumberCase{258, 285, 0, 0}));

class NumberOfADistance : public ::testing::TestWithParam<CNumberCase>
{};

TEST_P(NumberOfADistance, IsThatOfTheFormat)
{
    expectNumber(distanceNumber(GetParam().value), GetParam());
}

INSTANTIATE_TEST_SUITE_P(DeflateCodes, NumberOfADistance,
                         ::testing::Values(CNumberCase{1, 0, 0, 0}, CNumberCase{4, 3, 0, 0},
                                           CNumberCase{5, 4, 0, 1}, CNumberCase{6, 4, 1, 1},
                                           CNumberCase{256, 15, 63, 6}, CNumberCase{257, 16, 0, 7},
                                           CNumberCase{801, 19, 32, 8},
                                           CNumberCase{24577, 29, 0, 13},
                                           CNumberCase{32768, 29, 8191, 13}));

std::vector<CCode> codesFor(const std::vector<unsigned>& frequencies, int longest)
{
    std::vector<CCode> codes(frequencies.size());
    makeCodes(frequencies, longest, codes.data());
    return codes;
}

std::vector<int> lengthsFor(const std::vector<unsigned>& frequencies, int longest = kLongestCode)
{
    std::vector<int> lengths;
    for (const CCode& code : codesFor(frequencies, longest))
        lengths.push_back(code.length);
    return lengths;
}

TEST(DeflateCodes, AreShortForWhatIsFrequent)
{
    EXPECT_EQ(lengthsFor({1, 8, 1, 4, 2}), std::vector<int>({4, 1, 4, 2, 3}));
    EXPECT_EQ(lengthsFor({5, 5, 5, 5}), std::vector<int>({2, 2, 2, 2}));
}

TEST(DeflateCodes, AreMissingForWhatDoesNotOccur)
{
    EXPECT_EQ(lengthsFor({0, 3, 0, 4}), std::vector<int>({0, 1, 0, 1}));
    EXPECT_EQ(lengthsFor({0, 0}), std::vector<int>({0, 0}));
}

TEST(DeflateCodes, HaveABitForASymbolAlone)
{
    EXPECT_EQ(lengthsFor({0, 7, 0}), std::vector<int>({0, 1, 0}));
}

// Each symbol is more frequent than all those before it together.
TEST(DeflateCodes, AreNotLongerThanTheFormatAllows)
{
    std::vector<unsigned> frequencies;
    for (int i = 0; i < 19; ++i)
        frequencies.push_back(1U << i);
    for (const int longest : {7, 15}) {
        const std::vector<int> lengths = lengthsFor(frequencies, longest);
        EXPECT_EQ(*std::max_element(lengths.begin(), lengths.end()), longest);
        int taken = 0; // of all codes of the longest kind
        for (const int length : lengths)
            taken += 1 << (longest - length);
        EXPECT_EQ(taken, 1 << longest);
    }
}

// The example of RFC 1951, 3.2.2; the first bit of a code is written lowest.
TEST(DeflateCodes, AreNumberedAsTheFormatSays)
{
    std::array<CCode, 8> codes{};
    constexpr std::array<int, 8> kLengths = {3, 3, 3, 3, 3, 2, 4, 4};
    for (std::size_t i = 0; i < codes.size(); ++i)
        codes[i].length = kLengths[i];
    numberCodes(codes.data(), codes.size());
    constexpr std::array<unsigned, 8> kBits = {0b010, 0b110, 0b001,  0b101,
                                               0b011, 0b00,  0b0111, 0b1111};
    for (std::size_t i = 0; i < codes.size(); ++i)
        EXPECT_EQ(codes[i].bits, kBits[i]) << i;
}

} // namespace
} // namespace tovangl
