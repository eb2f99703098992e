// SPDX-License-Identifier: MIT
#include "deflate/deflate_streams.h"
#include "deflate/row_deflating.h"

#include <array>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

Bytes deflated(const Bytes& rows, CRowShape shape, std::size_t room)
{
    Bytes stream(room + 1, 0xa5);
    const std::size_t size = deflateRows({rows.data(), rows.size()}, shape, {stream.data(), room});
    EXPECT_EQ(stream.back(), 0xa5) << room;
    stream.resize(size);
    return stream;
}

Bytes deflated(const Bytes& rows, CRowShape shape)
{
    return deflated(rows, shape, 2 * rows.size() + 1000);
}

constexpr std::array<CRowShape, 4> kShapes = {{{1, 0}, {1, 1000}, {3, 7}, {4, 40000}}};

TEST(DeflatedRows, GiveTheirBytesBackWhateverTheirShape)
{
    for (const std::size_t size : {1500u, 5000u, 300000u}) {
        for (const Bytes& bytes : {repetitiveBytes(size), Bytes(size)}) {
            for (const CRowShape shape : kShapes)
                EXPECT_EQ(inflated(deflated(bytes, shape), size), bytes) << size;
        }
    }
}

TEST(DeflatedRows, EndWithAnyByteOfAMatch)
{
    for (std::size_t size = 100; size < 800; ++size)
        EXPECT_EQ(inflated(deflated(Bytes(size), {1, 9}), size), Bytes(size)) << size;
}

TEST(DeflatedRows, AreNothingWhereBytesDoNotRepeat)
{
    for (const std::size_t size : {1u, 8u, 1000u, 300000u}) {
        for (const CRowShape shape : kShapes)
            EXPECT_TRUE(deflated(anyBytes(size), shape).empty()) << size;
    }
}

TEST(DeflatedRows, AreSmallWhereTheyRepeat)
{
    const Bytes bytes = repetitiveBytes(600000);
    EXPECT_LT(deflated(bytes, {1, 1000}).size(), bytes.size() / 50);
}

TEST(DeflatedRows, AreNothingWhereTheStreamDoesNotFit)
{
    const Bytes bytes = repetitiveBytes(60000);
    const std::size_t size = deflated(bytes, {1, 1000}).size();
    for (std::size_t room = 0; room < size; room += 1 + room / 8)
        EXPECT_TRUE(deflated(bytes, {1, 1000}, room).empty()) << room;
    EXPECT_TRUE(deflated(bytes, {1, 1000}, size - 1).empty());
    EXPECT_EQ(deflated(bytes, {1, 1000}, size), deflated(bytes, {1, 1000}));
}

TEST(DeflatedRows, AreTheSameWhereverTheirMemoryIs)
{
    const Bytes bytes = repetitiveBytes(20000);
    const Bytes stream = deflated(bytes, {1, 1000});
    for (std::size_t offset = 1; offset < 16; ++offset) {
        Bytes moved(offset + bytes.size());
        std::copy(bytes.begin(), bytes.end(), moved.begin() + static_cast<std::ptrdiff_t>(offset));
        Bytes other(stream.size());
        const std::size_t size = deflateRows({moved.data() + offset, bytes.size()}, {1, 1000},
                                             {other.data(), other.size()});
        EXPECT_EQ(size, stream.size());
        EXPECT_EQ(other, stream);
    }
}

} // namespace
} // namespace tovangl
