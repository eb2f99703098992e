// SPDX-License-Identifier: MIT
// Compresses the rows of a chart in a short time.
#include "deflate/row_deflating.h"

#include "deflate/zlib_frame.h"

#include <algorithm>

namespace tovangl {

namespace {

// With fewer, codes fit better, but there are more of them: half as many and four times as many
// change files by about a thousandth.
constexpr std::size_t kTokensOfBlock = 16 * 1024;

// Takes the tokens of the next block.
void findTokens(CMatchFinder& finder, std::size_t& position, std::size_t end,
                std::vector<CToken>& tokens)
{
    tokens.clear();
    while (position < end && tokens.size() < kTokensOfBlock) {
        tokens.push_back(finder.tokenAt(position));
        position += std::max<std::size_t>(tokens.back().length, 1);
    }
}

} // namespace

std::size_t deflateRows(CByteRange rows, CRowShape shape, CByteRoom room)
{
    CBitWriter out(room);
    beginZlibStream(out);
    CMatchFinder finder(rows, shape);
    std::vector<CToken> tokens;
    tokens.reserve(kTokensOfBlock);
    for (std::size_t position = 0; position < rows.size;) {
        findTokens(finder, position, rows.size, tokens);
        writeTokens(out, tokens, position == rows.size);
        // Noise, or a picture of a few pixels.
        const bool isLonger = out.position() > kBitsPerByte * position;
        if (isLonger || out.isFull())
            return 0;
    }
    return endZlibStream(out, rows);
}

} // namespace tovangl
