// SPDX-License-Identifier: MIT
// Charts while memory runs out at every place in turn. This program replaces operator new, for Qt
// too: renderings, in which Qt would lose some memory of its own, are for the programs in memory/.
#include "api/conversions.h"
#include "chart/CBarBase.h"
#include "chart/CPieGraph.h"
#include "output/CDeflater.h"
#include "support/public_records.h"

#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <new>
#include <numeric>
#include <vector>

namespace {

constexpr int kNever = -1;

// Of the thread that tests. Qt 6 has a pool of others, which allocate and free when they like.
thread_local int allocationsLeft = kNever;
thread_local int liveAllocations = 0;

void* allocate(std::size_t size)
{
    if (allocationsLeft == 0)
        throw std::bad_alloc();
    if (allocationsLeft > 0)
        --allocationsLeft;
    void* memory = std::malloc(size ? size : 1);
    if (!memory)
        throw std::bad_alloc();
    ++liveAllocations;
    return memory;
}

void release(void* memory)
{
    if (!memory)
        return;
    --liveAllocations;
    std::free(memory);
}

} // namespace

void* operator new(std::size_t size)
{
    return allocate(size);
}

void operator delete(void* memory) noexcept
{
    release(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    release(memory);
}

namespace tovangl {
namespace {

// Whether the work succeeds with so many allocations and no more.
template <typename Work>
bool succeedsWith(int allocations, const Work& work)
{
    bool isDone = false;
    allocationsLeft = allocations;
    try {
        work();
        isDone = true;
    } catch (const std::bad_alloc&) {
    }
    allocationsLeft = kNever;
    return isDone;
}

// Runs the work once for every allocation that it makes, with that one failing, until it succeeds.
// Returns how often it failed; every time it leaves as many allocations as before.
template <typename Work>
int failEverywhere(const Work& work)
{
    work(); // whatever is made once for the process
    const int before = liveAllocations;
    for (int failures = 0;; ++failures) {
        const bool isDone = succeedsWith(failures, work);
        EXPECT_EQ(liveAllocations, before) << "allocation " << failures;
        if (isDone || ::testing::Test::HasFailure())
            return failures;
    }
}

constexpr int kItems = 5;

void addItem(CGraph1dBase& chart)
{
    chart.input().addItem(3, QString("caption"), QColor(), QColor());
}

template <typename Chart>
class OutOfMemory : public ::testing::Test
{};

struct CChartNames
{
    template <typename Chart>
    static std::string GetName(int)
    {
        return std::is_same_v<Chart, CPieGraph> ? "Pie" : "Bars";
    }
};

using Charts = ::testing::Types<CBarGraph, CPieGraph>;
TYPED_TEST_SUITE(OutOfMemory, Charts, CChartNames);

TYPED_TEST(OutOfMemory, AChartBeingBuiltLosesNothing)
{
    const int failures = failEverywhere([] {
        TypeParam chart(true);
        for (int i = 0; i < kItems; ++i)
            addItem(chart);
    });
    EXPECT_GE(failures, kItems);
}

TYPED_TEST(OutOfMemory, AnItemIsAddedWholeOrNotAtAllAndTheChartDrawnAsBefore)
{
    TypeParam chart(false);
    addItem(chart);
    const QImage before = chart.getImage(400, 300);
    int failures = 0;
    while (!succeedsWith(failures, [&chart] { addItem(chart); })) {
        EXPECT_EQ(chart.input().items.size(), 1U);
        EXPECT_EQ(chart.getImage(400, 300), before);
        ++failures;
    }
    EXPECT_GT(failures, 0);
    EXPECT_EQ(chart.input().items.size(), 2U);
}

TYPED_TEST(OutOfMemory, WhatAChartTellsLosesNothing)
{
    TypeParam chart(false);
    addItem(chart);
    (void)chart.getImage(400, 300);
    const int failures = failEverywhere([&chart] {
        (void)chart.itemRectangles();
        (void)chart.drawnItems();
        (void)chart.describe();
    });
    EXPECT_GT(failures, 2);
}

TEST(OutOfMemoryInRectangles, TheListKeepsTheOldOnes)
{
    const std::vector<QRect> rects(kItems, QRect(1, 2, 3, 4));
    std::list<Rectangle> list = {Rectangle{5, 6, 7, 8}};
    int failures = 0;
    while (!succeedsWith(failures, [&] { assignRectangles(list, rects); })) {
        EXPECT_THAT(list, ::testing::ElementsAre(Rectangle{5, 6, 7, 8}));
        ++failures;
    }
    EXPECT_EQ(failures, kItems);
    EXPECT_EQ(list.size(), rects.size());
}

// What finds the place for still rows in a stream takes its memory for zlib from this library.
TEST(OutOfMemoryInAFile, RowsInPiecesLoseNothing)
{
    constexpr std::size_t kStride = 1001; // bytes
    std::vector<unsigned char> rows(200 * kStride);
    for (std::size_t i = 0; i < rows.size(); i += kStride)
        rows[i] = 2;
    std::iota(rows.begin(), rows.begin() + 2 * kStride, static_cast<unsigned char>(0));
    std::vector<unsigned char> room(rows.size());
    std::size_t size = 0;
    const int failures = failEverywhere([&] {
        CDeflater deflater({rows.data(), rows.size()}, Compression::Balanced,
                           {kStride, {{2, 100}, {110, 90}}});
        size = deflater.deflate({room.data(), room.size()});
    });
    EXPECT_GT(failures, 2);
    EXPECT_GT(size, 0U);
}

TEST(OutOfMemoryInAFile, RowsInAShortTimeLoseNothing)
{
    constexpr std::size_t kStride = 1001; // bytes
    std::vector<unsigned char> rows(200 * kStride);
    std::iota(rows.begin(), rows.begin() + 2 * kStride, static_cast<unsigned char>(0));
    std::vector<unsigned char> room(rows.size());
    std::size_t size = 0;
    const int failures = failEverywhere([&] {
        CDeflater deflater({rows.data(), rows.size()}, Compression::Fast);
        size = deflater.deflate({room.data(), room.size()});
    });
    EXPECT_GT(failures, 5);
    EXPECT_GT(size, 0U);
}

} // namespace
} // namespace tovangl
