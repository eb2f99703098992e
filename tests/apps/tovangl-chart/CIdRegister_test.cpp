// SPDX-License-Identifier: MIT
// Ids that are remembered in files.
#include "tovangl-chart/CIdRegister.h"

#include <gtest/gtest.h>

namespace tovangl::program {
namespace {

TEST(IdRegister, KnowsWhatWasAdded)
{
    CIdRegister ids;
    EXPECT_TRUE(ids.add("a"));
    EXPECT_TRUE(ids.add("b"));
    EXPECT_FALSE(ids.add("a"));
    EXPECT_FALSE(ids.add("b"));
}

TEST(IdRegister, TellsIdsFromTheirParts)
{
    CIdRegister ids;
    EXPECT_TRUE(ids.add("chart-12"));
    EXPECT_TRUE(ids.add("12"));
    EXPECT_TRUE(ids.add("chart-1"));
    EXPECT_TRUE(ids.add(""));
}

TEST(IdRegister, KnowsAllAfterItHasGrown)
{
    constexpr int kIds = 20000;
    CIdRegister ids;
    int added = 0;
    for (int i = 0; i < kIds; ++i)
        added += ids.add(std::to_string(i)) ? 1 : 0;
    EXPECT_EQ(added, kIds);
    for (int i = 0; i < kIds; ++i)
        added += ids.add(std::to_string(i)) ? 1 : 0;
    EXPECT_EQ(added, kIds);
}

} // namespace
} // namespace tovangl::program
