// SPDX-License-Identifier: MIT
// Symbols and codes of deflate streams.
#include "deflate/deflate_codes.h"

#include <algorithm>

namespace tovangl {

namespace {

// Steps from the smallest length, or from the smallest distance. Symbols double the steps that they
// stand for: every four symbols of lengths, every two of distances.
constexpr CNumber numberOf(std::size_t steps, int bitsOfGroup)
{
    CNumber number;
    while (steps >> number.extraBits >= std::size_t{2} << bitsOfGroup)
        ++number.extraBits;
    const auto extraBits = static_cast<unsigned>(number.extraBits);
    number.symbol = (extraBits << bitsOfGroup) + static_cast<unsigned>(steps >> extraBits);
    number.extra = static_cast<unsigned>(steps) & ((1U << extraBits) - 1);
    return number;
}

using LengthNumbers = std::array<CNumber, kLongestMatch - kShortestMatch + 1>;

constexpr LengthNumbers makeLengthNumbers()
{
    constexpr int kBitsOfGroup = 2;
    LengthNumbers numbers{};
    for (std::size_t steps = 0; steps < numbers.size(); ++steps) {
        numbers[steps] = numberOf(steps, kBitsOfGroup);
        numbers[steps].symbol += kEndOfBlock + 1;
    }
    // The longest match has a symbol of its own.
    numbers.back() = {kLongestLength, 0, 0};
    return numbers;
}

// Numbers of distances by their steps, and by groups of steps: far ones share a symbol by whole
// groups.
constexpr std::size_t kGroup = 128;
using DistanceNumbers = std::array<CNumber, kFarthestMatch / kGroup>;

constexpr DistanceNumbers makeDistanceNumbers(std::size_t step)
{
    constexpr int kBitsOfGroup = 1;
    DistanceNumbers numbers{};
    for (std::size_t i = 0; i < numbers.size(); ++i)
        numbers[i] = numberOf(i * step, kBitsOfGroup);
    return numbers;
}

// --- the tree of codes

// A symbol that occurs, or two nodes joined.
struct CNode
{
    unsigned frequency = 0;
    std::size_t symbol = 0;
    std::size_t parent = 0;
    int depth = 0;
};

// The symbols that occur, the rarest first.
std::vector<CNode> leavesOf(const std::vector<unsigned>& frequencies)
{
    std::vector<CNode> nodes;
    nodes.reserve(2 * frequencies.size());
    for (std::size_t symbol = 0; symbol < frequencies.size(); ++symbol) {
        if (frequencies[symbol] > 0)
            nodes.push_back({frequencies[symbol], symbol, 0, 0});
    }
    std::sort(nodes.begin(), nodes.end(), [](const CNode& a, const CNode& b) {
        return a.frequency != b.frequency ? a.frequency < b.frequency : a.symbol < b.symbol;
    });
    return nodes;
}

// Joins the two rarest nodes until one is left, as Huffman does. Joined nodes come out in the order
// of their frequencies too.
void joinNodes(std::vector<CNode>& nodes)
{
    const std::size_t leaves = nodes.size();
    std::size_t leaf = 0;
    std::size_t joined = leaves;
    const auto takeRarest = [&] {
        const bool isLeaf = leaf < leaves && (joined == nodes.size() ||
                                              nodes[leaf].frequency <= nodes[joined].frequency);
        return isLeaf ? leaf++ : joined++;
    };
    while (nodes.size() + 1 < 2 * leaves) {
        const std::size_t a = takeRarest();
        const std::size_t b = takeRarest();
        nodes[a].parent = nodes[b].parent = nodes.size();
        nodes.push_back({nodes[a].frequency + nodes[b].frequency, 0, 0, 0});
    }
}

// The leaves with their depths, the rarest first, which is the deepest.
std::vector<CNode> depthsFor(const std::vector<unsigned>& frequencies)
{
    std::vector<CNode> nodes = leavesOf(frequencies);
    const std::size_t leaves = nodes.size();
    joinNodes(nodes);
    for (std::size_t i = nodes.size(); i-- > 1;)
        nodes[i - 1].depth = nodes[nodes[i - 1].parent].depth + 1;
    // A symbol alone has one bit all the same.
    if (leaves == 1)
        nodes.front().depth = 1;
    nodes.resize(leaves);
    return nodes;
}

// Brings frequencies nearer to each other, so that the rarest symbol gets a shorter code.
void flatten(std::vector<unsigned>& frequencies)
{
    for (unsigned& frequency : frequencies)
        frequency = (frequency + 1) / 2;
}

unsigned reversed(unsigned bits, int count)
{
    unsigned result = 0;
    for (int i = 0; i < count; ++i, bits >>= 1)
        result = result << 1 | (bits & 1U);
    return result;
}

} // namespace

CNumber lengthNumber(std::size_t length)
{
    static constexpr LengthNumbers kNumbers = makeLengthNumbers();
    return kNumbers[length - kShortestMatch];
}

CNumber distanceNumber(std::size_t distance)
{
    static constexpr DistanceNumbers kNear = makeDistanceNumbers(1);
    static constexpr DistanceNumbers kFar = makeDistanceNumbers(kGroup);
    const std::size_t steps = distance - 1;
    if (steps < kNear.size())
        return kNear[steps];
    CNumber number = kFar[steps / kGroup];
    number.extra = static_cast<unsigned>(steps) & ((1U << number.extraBits) - 1);
    return number;
}

void numberCodes(CCode* codes, std::size_t count)
{
    std::array<unsigned, kLongestCode + 1> counts{};
    for (std::size_t i = 0; i < count; ++i)
        ++counts[static_cast<std::size_t>(codes[i].length)];
    counts[0] = 0;
    std::array<unsigned, kLongestCode + 1> next{};
    for (std::size_t length = 1; length < next.size(); ++length)
        next[length] = (next[length - 1] + counts[length - 1]) << 1;
    for (std::size_t i = 0; i < count; ++i) {
        if (codes[i].length > 0)
            codes[i].bits =
                reversed(next[static_cast<std::size_t>(codes[i].length)]++, codes[i].length);
    }
}

void makeCodes(const std::vector<unsigned>& frequencies, int longest, CCode* codes)
{
    std::vector<CNode> symbols = depthsFor(frequencies);
    std::vector<unsigned> flattened = frequencies;
    while (!symbols.empty() && symbols.front().depth > longest) {
        flatten(flattened);
        symbols = depthsFor(flattened);
    }
    for (const CNode& symbol : symbols)
        codes[symbol.symbol].length = symbol.depth;
    numberCodes(codes, frequencies.size());
}

} // namespace tovangl
