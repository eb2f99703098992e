// SPDX-License-Identifier: MIT
#include "tovangl-du/CLargest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace tovangl::program {
namespace {

using ::testing::ElementsAre;

struct Entry
{
    std::string name;
    long bytes;
};

std::vector<std::string> namesOf(const std::vector<Entry>& entries)
{
    std::vector<std::string> names;
    for (const Entry& entry : entries)
        names.push_back(entry.name);
    return names;
}

CLargest<Entry> gather(std::size_t limit, const std::vector<Entry>& entries)
{
    CLargest<Entry> largest(limit);
    for (const Entry& entry : entries)
        largest.add(entry);
    return largest;
}

TEST(Largest, KeepsTheLargestAndCountsTheOthers)
{
    const auto largest = gather(2, {{"a", 5}, {"b", 9}, {"c", 1}, {"d", 7}});
    EXPECT_THAT(namesOf(largest.sorted()), ElementsAre("b", "d"));
    EXPECT_EQ(largest.otherCount(), 2U);
    EXPECT_EQ(largest.otherBytes(), 6);
}

TEST(Largest, TellsEntriesOfOneSizeApartByName)
{
    const auto largest = gather(2, {{"c", 5}, {"a", 5}, {"b", 5}});
    EXPECT_THAT(namesOf(largest.sorted()), ElementsAre("a", "b"));
}

TEST(Largest, TakesWhatMightBeKept)
{
    const auto largest = gather(2, {{"a", 5}, {"b", 9}});
    EXPECT_FALSE(largest.takes(4));
    EXPECT_TRUE(largest.takes(5));
    EXPECT_TRUE(gather(3, {{"a", 5}}).takes(0));
}

TEST(Largest, AddsOthersWithoutOverflow)
{
    constexpr long kMost = std::numeric_limits<long>::max();
    const auto largest = gather(1, {{"a", kMost}, {"b", kMost}, {"c", kMost}});
    EXPECT_EQ(largest.otherBytes(), kMost);
}

TEST(Largest, IsWhatSortingAllGivesWhateverTheOrder)
{
    std::mt19937 random(11);
    std::uniform_int_distribution<long> bytes(0, 30);
    for (int round = 0; round < 300; ++round) {
        std::vector<Entry> entries;
        for (int i = 0; i < 50; ++i)
            entries.push_back({"n" + std::to_string(i), bytes(random)});
        const auto all = gather(1000, entries).sorted();
        std::shuffle(entries.begin(), entries.end(), random);
        const auto some = gather(7, entries).sorted();
        EXPECT_EQ(namesOf(some), namesOf({all.begin(), all.begin() + 7}));
    }
}

} // namespace
} // namespace tovangl::program
