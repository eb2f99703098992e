// SPDX-License-Identifier: MIT
// Writes bytes and repetitions of earlier bytes as a block of a deflate stream.
#include "deflate/token_block.h"

#include "deflate/block_header.h"

namespace tovangl {

namespace {

CBlockCodes codesFor(const std::vector<CToken>& tokens)
{
    std::vector<unsigned> symbols(kSymbols);
    std::vector<unsigned> distances(kDistances);
    for (const CToken& token : tokens) {
        if (token.length == 0) {
            ++symbols[token.value];
        } else {
            ++symbols[lengthNumber(token.length).symbol];
            ++distances[distanceNumber(token.value).symbol];
        }
    }
    ++symbols[kEndOfBlock];
    // A block without matches has to describe a distance all the same.
    if (distances == std::vector<unsigned>(kDistances))
        distances.front() = 1;

    CBlockCodes codes;
    makeCodes(symbols, kLongestCode, codes.symbols.data());
    makeCodes(distances, kLongestCode, codes.distances.data());
    return codes;
}

// Gathers what one put() writes.
class CBits
{
public:
    void add(unsigned bits, int count)
    {
        m_bits |= std::uint64_t{bits} << m_count;
        m_count += count;
    }
    void add(const CCode& code) { add(code.bits, code.length); }

    void putInto(CBitWriter& out) const { out.put(m_bits, m_count); }

private:
    std::uint64_t m_bits = 0;
    int m_count = 0;
};

// A match takes up to 48 bits: two codes of 15, and 5 and 13 bits behind them.
void putMatch(CBitWriter& out, const CBlockCodes& codes, CToken match)
{
    const CNumber length = lengthNumber(match.length);
    const CNumber distance = distanceNumber(match.value);
    CBits bits;
    bits.add(codes.symbols[length.symbol]);
    bits.add(length.extra, length.extraBits);
    bits.add(codes.distances[distance.symbol]);
    bits.add(distance.extra, distance.extraBits);
    bits.putInto(out);
}

} // namespace

void writeTokens(CBitWriter& out, const std::vector<CToken>& tokens, bool isLast)
{
    const CBlockCodes codes = codesFor(tokens);
    writeBlockHeader(out, codes, isLast);
    for (const CToken& token : tokens) {
        if (token.length == 0) {
            const CCode& code = codes.symbols[token.value];
            out.put(code.bits, code.length);
        } else {
            putMatch(out, codes, token);
        }
    }
    const CCode& end = codes.symbols[kEndOfBlock];
    out.put(end.bits, end.length);
}

} // namespace tovangl
