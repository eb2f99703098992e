// SPDX-License-Identifier: MIT
// Compresses rows of which it is known that they are all the same.
#include "output/still_rows_block.h"

#include "output/packed_picture.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace tovangl {

namespace {

// Symbols for bytes and lengths of matches.
constexpr std::size_t kUp = static_cast<std::size_t>(RowFilter::Up);
constexpr std::size_t kZero = 0;
constexpr std::size_t kEndOfBlock = 256;
constexpr std::size_t kFirstLength = 257; // of a match
constexpr std::size_t kLongestLength = 285;
constexpr std::size_t kSymbols = kLongestLength + 1;

constexpr std::size_t kShortestMatch = 3; // bytes
constexpr std::size_t kLongestMatch = 258;

// Symbols for the lengths of codes.
constexpr std::size_t kRunOfZeros = 18;
constexpr std::size_t kShortestRun = 11;
constexpr std::size_t kLongestRun = 138;
constexpr std::size_t kCodeLengths = 19;

constexpr int kLongestCode = 3; // bits

// A code as it is written, its first bit lowest.
struct CCode
{
    unsigned bits = 0;
    int length = 0; // 0: the symbol does not occur
};

template <std::size_t N>
using Codes = std::array<CCode, N>;

// Gives symbols of the same length numbers that follow each other, after the shorter ones.
template <std::size_t N>
void numberCodes(Codes<N>& codes)
{
    unsigned next = 0;
    for (int length = 1; length <= kLongestCode; ++length, next <<= 1) {
        for (CCode& code : codes) {
            if (code.length != length)
                continue;
            for (int bit = 0; bit < length; ++bit)
                code.bits |= (next >> bit & 1U) << (length - 1 - bit);
            ++next;
        }
    }
}

// A match of fewer than 258 bytes: a symbol, and bits that tell the lengths of that symbol apart.
struct CMatch
{
    std::size_t symbol = 0;
    unsigned extra = 0;
    int extraBits = 0;
};

CMatch matchOf(std::size_t length)
{
    const std::size_t steps = length - kShortestMatch;
    CMatch match;
    while (steps >> match.extraBits >= 8)
        ++match.extraBits;
    const auto bits = static_cast<std::size_t>(match.extraBits);
    match.symbol = kFirstLength + 4 * bits + (steps >> bits);
    match.extra = static_cast<unsigned>(steps & ((std::size_t{1} << bits) - 1));
    return match;
}

void put(CBitWriter& out, const CCode& code)
{
    out.put(code.bits, code.length);
}

// --- the codes of a block

// Most of a row are matches of the longest kind, which get one bit.
Codes<kSymbols> codesFor(std::size_t remainder)
{
    const bool hasMatch = remainder >= kShortestMatch;
    Codes<kSymbols> codes{};
    codes[kLongestLength].length = 1;
    codes[kZero].length = hasMatch ? 3 : 2;
    codes[kUp].length = 3;
    codes[kEndOfBlock].length = 3;
    if (hasMatch)
        codes[matchOf(remainder).symbol].length = 3;
    numberCodes(codes);
    return codes;
}

Codes<kCodeLengths> codesOfLengths()
{
    Codes<kCodeLengths> codes{};
    for (const std::size_t common : {std::size_t{1}, std::size_t{3}, kRunOfZeros})
        codes[common].length = 2;
    for (const std::size_t rare : {std::size_t{0}, std::size_t{2}})
        codes[rare].length = 3;
    numberCodes(codes);
    return codes;
}

void putZeroLengths(CBitWriter& out, const Codes<kCodeLengths>& codes, std::size_t count)
{
    while (count >= kShortestRun) {
        const std::size_t run = std::min(count, kLongestRun);
        put(out, codes[kRunOfZeros]);
        out.put(static_cast<unsigned>(run - kShortestRun), 7);
        count -= run;
    }
    for (; count > 0; --count)
        put(out, codes[0]);
}

void putLengths(CBitWriter& out, const Codes<kCodeLengths>& codes, const Codes<kSymbols>& symbols)
{
    std::size_t zeros = 0;
    for (const CCode& symbol : symbols) {
        if (symbol.length == 0) {
            ++zeros;
            continue;
        }
        putZeroLengths(out, codes, zeros);
        zeros = 0;
        put(out, codes[static_cast<std::size_t>(symbol.length)]);
    }
}

void putHeader(CBitWriter& out, const Codes<kSymbols>& symbols, bool isLast)
{
    constexpr unsigned kOwnCodes = 2;
    constexpr unsigned kFewestSymbols = 257;
    constexpr unsigned kFewestCodeLengths = 4;
    // The order in which the lengths of the codes of lengths are written; the last one is never
    // used.
    constexpr std::array<std::size_t, 18> kOrder = {16, 17, 18, 0,  8, 7,  9, 6,  10,
                                                    5,  11, 4,  12, 3, 13, 2, 14, 1};
    out.put(isLast ? 1 : 0, 1);
    out.put(kOwnCodes, 2);
    out.put(kSymbols - kFewestSymbols, 5);
    out.put(0, 5); // one distance
    out.put(kOrder.size() - kFewestCodeLengths, 4);
    const Codes<kCodeLengths> codes = codesOfLengths();
    for (const std::size_t symbol : kOrder)
        out.put(static_cast<unsigned>(codes[symbol].length), 3);
    putLengths(out, codes, symbols);
    put(out, codes[1]); // the distance 1 has one bit
}

// --- rows

void putMatch(CBitWriter& out, const CCode& code, unsigned extra, int extraBits)
{
    put(out, code);
    out.put(extra, extraBits);
    out.put(0, 1); // the distance 1: all bytes of the match equal the one before
}

void putRow(CBitWriter& out, const Codes<kSymbols>& codes, std::size_t rowBytes)
{
    put(out, codes[kUp]);
    put(out, codes[kZero]);
    std::size_t zeros = rowBytes - 1;
    for (; zeros >= kLongestMatch; zeros -= kLongestMatch)
        putMatch(out, codes[kLongestLength], 0, 0);
    if (zeros >= kShortestMatch) {
        const CMatch match = matchOf(zeros);
        putMatch(out, codes[match.symbol], match.extra, match.extraBits);
        return;
    }
    for (; zeros > 0; --zeros)
        put(out, codes[kZero]);
}

} // namespace

void writeStillRows(CBitWriter& out, std::size_t rowBytes, std::size_t rows, bool isLast)
{
    const Codes<kSymbols> codes = codesFor((rowBytes - 1) % kLongestMatch);
    putHeader(out, codes, isLast);
    for (std::size_t row = 0; row < rows; ++row)
        putRow(out, codes, rowBytes);
    put(out, codes[kEndOfBlock]);
}

} // namespace tovangl
