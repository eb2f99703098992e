// SPDX-License-Identifier: MIT
#include "base/CGlobal.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

int kiloSeenFirst = 0;

// The earliest priority that a program may use.
__attribute__((constructor(101))) void lookBeforeInitialisers()
{
    kiloSeenFirst = getGlobal()->oneKilo();
}

TEST(CGlobal, AKiloIs1024ByDefault)
{
    EXPECT_EQ(getGlobal()->oneKiloBase(), CGlobal::Base1024);
    EXPECT_EQ(getGlobal()->oneKilo(), 1024);
}

TEST(CGlobal, BaseZeroMakesAKilo1024)
{
    CGlobal global;
    global.initOneKilo(CGlobal::Base1000);
    global.initOneKilo(CGlobal::Base1024);
    EXPECT_EQ(global.oneKilo(), 1024);
}

TEST(CGlobal, BaseOneMakesAKilo1000)
{
    CGlobal global;
    global.initOneKilo(CGlobal::Base1000);
    EXPECT_EQ(global.oneKilo(), 1000);
    EXPECT_TRUE(global.kilo().isBase1000());
}

TEST(CGlobal, AnUnknownBaseIsKeptAndMakesAKilo1000)
{
    constexpr auto kUnknownBase = static_cast<CGlobal::OneKiloBase>(2);
    CGlobal global;
    global.initOneKilo(kUnknownBase);
    EXPECT_EQ(global.oneKilo(), 1000);
    EXPECT_EQ(global.oneKiloBase(), kUnknownBase);
    EXPECT_FALSE(global.kilo().isBase1000());
}

TEST(CGlobal, IsThereBeforeAnyInitialiserRuns)
{
    EXPECT_EQ(kiloSeenFirst, 1024);
}

} // namespace
} // namespace tovangl
