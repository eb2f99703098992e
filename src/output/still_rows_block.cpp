// SPDX-License-Identifier: MIT
// Compresses rows of which it is known that they are all the same.
#include "output/still_rows_block.h"

#include "deflate/block_header.h"
#include "output/packed_picture.h"

namespace tovangl {

namespace {

constexpr std::size_t kUp = static_cast<std::size_t>(RowFilter::Up);
constexpr std::size_t kZero = 0;

void put(CBitWriter& out, const CCode& code)
{
    out.put(code.bits, code.length);
}

// Most of a row are matches of the longest kind, which get one bit.
CBlockCodes codesFor(std::size_t remainder)
{
    const bool hasMatch = remainder >= kShortestMatch;
    CBlockCodes codes;
    codes.symbols[kLongestLength].length = 1;
    codes.symbols[kZero].length = hasMatch ? 3 : 2;
    codes.symbols[kUp].length = 3;
    codes.symbols[kEndOfBlock].length = 3;
    if (hasMatch)
        codes.symbols[lengthNumber(remainder).symbol].length = 3;
    numberCodes(codes.symbols.data(), codes.symbols.size());
    codes.distances[0].length = 1; // all bytes of a match equal the one before
    return codes;
}

void putMatch(CBitWriter& out, const CBlockCodes& codes, std::size_t length)
{
    const CNumber number = lengthNumber(length);
    put(out, codes.symbols[number.symbol]);
    out.put(number.extra, number.extraBits);
    put(out, codes.distances[0]);
}

void putRow(CBitWriter& out, const CBlockCodes& codes, std::size_t rowBytes)
{
    put(out, codes.symbols[kUp]);
    put(out, codes.symbols[kZero]);
    std::size_t zeros = rowBytes - 1;
    for (; zeros >= kLongestMatch; zeros -= kLongestMatch)
        putMatch(out, codes, kLongestMatch);
    if (zeros >= kShortestMatch) {
        putMatch(out, codes, zeros);
        return;
    }
    for (; zeros > 0; --zeros)
        put(out, codes.symbols[kZero]);
}

} // namespace

void writeStillRows(CBitWriter& out, std::size_t rowBytes, std::size_t rows, bool isLast)
{
    const CBlockCodes codes = codesFor((rowBytes - 1) % kLongestMatch);
    writeBlockHeader(out, codes, isLast);
    for (std::size_t row = 0; row < rows; ++row)
        putRow(out, codes, rowBytes);
    put(out, codes.symbols[kEndOfBlock]);
}

} // namespace tovangl
