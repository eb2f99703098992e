// SPDX-License-Identifier: MIT
// Bar charts while memory runs out at every place in turn. This program replaces operator new.
#include "bar/bar_chart_support.h"

#include <QLocale>

#include <cstdlib>
#include <gtest/gtest.h>
#include <new>

namespace {

constexpr int kNever = -1;

int allocationsLeft = kNever;
int liveAllocations = 0;

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

class COutOfMemory : public ::testing::Test
{
protected:
    COutOfMemory()
        : image(400, 300, QImage::Format_ARGB32)
        , painter(&image)
    {}

    QImage image;
    QPainter painter;
};

TEST_F(COutOfMemory, AxisBeingFilledLosesNothing)
{
    const QLocale locale(QLocale::English, QLocale::UnitedStates);
    const int failures = failEverywhere([&locale] {
        CNumberAxis axis(CAxis::LeftToRight, CAxis::Top, CAxis::ShowLabels, &locale, "title");
        axis.setNumbers(-50, 80, false, 0);
    });
    EXPECT_GT(failures, 9);
}

TEST_F(COutOfMemory, CategoriesBeingAddedLoseNothing)
{
    const QLocale locale;
    CBarGraphItem item(1, "a", Qt::red);
    const int failures = failEverywhere([&] {
        CCategoryAxis axis(CAxis::LeftToRight, CAxis::Top, CAxis::ShowLabels, &locale, "title");
        for (int i = 0; i < 5; ++i)
            axis.addCategory(&item);
    });
    EXPECT_GT(failures, 5);
}

TEST_F(COutOfMemory, ChartBeingBuiltLosesNothing)
{
    const int failures = failEverywhere([] {
        CUprightBars chart(true);
        chart.addMany(5);
    });
    EXPECT_GT(failures, 10);
}

// Axes are made without measuring texts, in which Qt itself would lose some of its own memory.
TEST_F(COutOfMemory, AxesBeingMadeLoseNothing)
{
    const int failures = failEverywhere([this] {
        CUprightBars chart(true);
        chart.addMany(5);
        chart.selectItems();
        chart.createAxes(painter);
    });
    EXPECT_GT(failures, 20);
}

TEST_F(COutOfMemory, ChartCanBeUsedAfterwards)
{
    CUprightBars chart(true);
    chart.addMany(5);
    chart.setSize(400, 300);
    const QImage before = chart.getImage(400, 300);
    int allocations = 0;
    while (!succeedsWith(allocations, [&] { chart.createAxes(painter); }))
        ++allocations;
    EXPECT_GT(allocations, 5);
    EXPECT_EQ(chart.bars().size(), 5U);
    EXPECT_EQ(chart.getImage(400, 300), before);
}

} // namespace
} // namespace tovangl
