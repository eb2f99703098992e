// SPDX-License-Identifier: MIT
// Begins a block of a deflate stream that has codes of its own.
#include "deflate/block_header.h"

#include <algorithm>

namespace tovangl {

namespace {

// Lengths of codes are symbols themselves; three more stand for runs of a length.
constexpr unsigned kRepeat = 16; // of the length before
constexpr unsigned kZeros = 17;
constexpr unsigned kManyZeros = 18;
constexpr std::size_t kLengthSymbols = 19;
constexpr int kLongestLengthCode = 7; // bits

constexpr std::size_t kFewestSymbols = kEndOfBlock + 1;
constexpr std::size_t kFewestDistances = 1;
constexpr std::size_t kFewestLengthSymbols = 4;

// The order in which the codes of lengths are described.
constexpr std::array<std::size_t, kLengthSymbols> kOrder = {16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                                            11, 4,  12, 3, 13, 2, 14, 1, 15};

template <std::size_t N>
std::size_t countUsed(const Codes<N>& codes, std::size_t fewest)
{
    std::size_t count = N;
    while (count > fewest && codes[count - 1].length == 0)
        --count;
    return count;
}

// Writes the lengths of codes as symbols, runs of them as one.
class CLengthRuns
{
public:
    void add(int length, std::size_t count)
    {
        if (length == 0) {
            addRuns(count, {kManyZeros, 7, 11, 138});
            addRuns(count, {kZeros, 3, 3, 10});
        } else {
            addSymbol({static_cast<unsigned>(length), 0, 0});
            --count;
            addRuns(count, {kRepeat, 2, 3, 6});
        }
        for (; count > 0; --count)
            addSymbol({static_cast<unsigned>(length), 0, 0});
    }

    [[nodiscard]] const std::vector<CNumber>& symbols() const { return m_symbols; }
    [[nodiscard]] const std::vector<unsigned>& frequencies() const { return m_frequencies; }

private:
    struct CRunSymbol
    {
        unsigned symbol;
        int extraBits;
        std::size_t shortest;
        std::size_t longest;
    };

    // Takes from the count what the symbol can stand for.
    void addRuns(std::size_t& count, const CRunSymbol& run)
    {
        while (count >= run.shortest) {
            const std::size_t length = std::min(count, run.longest);
            addSymbol({run.symbol, static_cast<unsigned>(length - run.shortest), run.extraBits});
            count -= length;
        }
    }

    void addSymbol(CNumber symbol)
    {
        m_symbols.push_back(symbol);
        ++m_frequencies[symbol.symbol];
    }

    std::vector<CNumber> m_symbols;
    std::vector<unsigned> m_frequencies = std::vector<unsigned>(kLengthSymbols);
};

CLengthRuns runsOf(const CBlockCodes& codes, std::size_t symbols, std::size_t distances)
{
    std::vector<int> lengths;
    lengths.reserve(symbols + distances);
    for (std::size_t i = 0; i < symbols; ++i)
        lengths.push_back(codes.symbols[i].length);
    for (std::size_t i = 0; i < distances; ++i)
        lengths.push_back(codes.distances[i].length);

    CLengthRuns runs;
    for (auto begin = lengths.begin(); begin != lengths.end();) {
        const auto end =
            std::find_if(begin, lengths.end(), [&](int length) { return length != *begin; });
        runs.add(*begin, static_cast<std::size_t>(end - begin));
        begin = end;
    }
    return runs;
}

std::size_t countDescribed(const Codes<kLengthSymbols>& codes)
{
    std::size_t count = kOrder.size();
    while (count > kFewestLengthSymbols && codes[kOrder[count - 1]].length == 0)
        --count;
    return count;
}

} // namespace

void writeBlockHeader(CBitWriter& out, const CBlockCodes& codes, bool isLast)
{
    constexpr unsigned kOwnCodes = 2;
    const std::size_t symbols = countUsed(codes.symbols, kFewestSymbols);
    const std::size_t distances = countUsed(codes.distances, kFewestDistances);
    const CLengthRuns runs = runsOf(codes, symbols, distances);
    Codes<kLengthSymbols> lengthCodes{};
    makeCodes(runs.frequencies(), kLongestLengthCode, lengthCodes.data());
    const std::size_t described = countDescribed(lengthCodes);

    out.put(isLast ? 1 : 0, 1);
    out.put(kOwnCodes, 2);
    out.put(symbols - kFewestSymbols, 5);
    out.put(distances - kFewestDistances, 5);
    out.put(described - kFewestLengthSymbols, 4);
    for (std::size_t i = 0; i < described; ++i)
        out.put(static_cast<unsigned>(lengthCodes[kOrder[i]].length), 3);
    for (const CNumber& symbol : runs.symbols()) {
        out.put(lengthCodes[symbol.symbol].bits, lengthCodes[symbol.symbol].length);
        out.put(symbol.extra, symbol.extraBits);
    }
}

} // namespace tovangl
