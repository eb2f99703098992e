// SPDX-License-Identifier: MIT
#include "deflate/deflate_streams.h"
#include "output/CDeflater.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr unsigned char kUp = 2;
constexpr std::size_t kStride = 801; // bytes

// Rows of which some are still, in memory as they are packed.
struct CRows
{
    Bytes bytes;
    CStillRows still{kStride, {}};
};

// Runs of rows by turns: the first of them varies.
CRows rowsOf(const std::vector<std::size_t>& counts)
{
    CRows rows;
    bool isStill = false;
    for (const std::size_t count : counts) {
        const std::size_t first = rows.bytes.size() / kStride;
        if (isStill)
            rows.still.runs.push_back({first, count});
        Bytes part = isStill ? Bytes(count * kStride) : repetitiveBytes(count * kStride);
        for (std::size_t row = 0; row < count; ++row)
            part[row * kStride] = kUp;
        rows.bytes.insert(rows.bytes.end(), part.begin(), part.end());
        isStill = !isStill;
    }
    return rows;
}

Bytes deflated(const CRows& rows, const CStillRows& still, std::size_t room)
{
    CDeflater deflater({rows.bytes.data(), rows.bytes.size()}, Compression::Balanced, still);
    Bytes stream(room + 1, 0xa5);
    const std::size_t size = deflater.deflate({stream.data(), room});
    EXPECT_EQ(stream.back(), 0xa5) << room;
    stream.resize(size);
    return stream;
}

Bytes deflated(const CRows& rows)
{
    return deflated(rows, rows.still, 2 * rows.bytes.size());
}

class RowsInPieces : public ::testing::TestWithParam<std::vector<std::size_t>>
{};

TEST_P(RowsInPieces, AreWhatOneStreamHolds)
{
    const CRows rows = rowsOf(GetParam());
    EXPECT_EQ(inflated(deflated(rows), rows.bytes.size()), rows.bytes);
}

TEST_P(RowsInPieces, DoNotTakeMuchMoreThanOneStream)
{
    constexpr std::size_t kForARun = 120; // bytes
    const CRows rows = rowsOf(GetParam());
    const Bytes whole = deflated(rows, CStillRows(), 2 * rows.bytes.size());
    EXPECT_LT(deflated(rows).size(), whole.size() + kForARun * rows.still.runs.size());
}

INSTANTIATE_TEST_SUITE_P(Runs, RowsInPieces,
                         ::testing::Values(std::vector<std::size_t>{1, 100},
                                           std::vector<std::size_t>{10, 100, 3},
                                           std::vector<std::size_t>{400, 500, 400},
                                           std::vector<std::size_t>{0, 50},
                                           std::vector<std::size_t>{1, 60, 1, 70, 1, 80, 1, 90, 2},
                                           std::vector<std::size_t>{1, 10000, 1}));

TEST(Pieces, GiveTheSameStreamEachTime)
{
    const CRows rows = rowsOf({20, 100, 20, 100});
    EXPECT_EQ(deflated(rows), deflated(rows));
}

// Where the pieces do not fit, the one stream may, which is tried then; but never more than there
// is room for is written.
TEST(Pieces, StayInsideAnyRoom)
{
    const CRows rows = rowsOf({5, 100, 5, 200, 1});
    const std::size_t size = deflated(rows).size();
    for (std::size_t room = 0; room < size; ++room) {
        const Bytes stream = deflated(rows, rows.still, room);
        EXPECT_TRUE(stream.empty() || inflated(stream, rows.bytes.size()) == rows.bytes) << room;
    }
    constexpr std::size_t kUnused = 16; // libdeflate wants a few bytes more than it writes
    EXPECT_EQ(deflated(rows, rows.still, size + kUnused).size(), size);
}

} // namespace
} // namespace tovangl
