// SPDX-License-Identifier: MIT
// Ids that are remembered in files.
#include "apps/support/CTemporaryFolder.h"
#include "common/CFailure.h"
#include "tovangl-chart/CIdRegister.h"

#include <cstdlib>
#include <gmock/gmock.h>

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

/// Sets the folder for temporary files, and restores it.
class CTemporaryPlace
{
public:
    explicit CTemporaryPlace(const std::string& path)
    {
        if (const char* before = std::getenv(kName))
            m_before = before;
        ::setenv(kName, path.c_str(), 1);
    }
    ~CTemporaryPlace()
    {
        if (m_before)
            ::setenv(kName, m_before->c_str(), 1);
        else
            ::unsetenv(kName);
    }

    CTemporaryPlace(const CTemporaryPlace&) = delete;
    CTemporaryPlace& operator=(const CTemporaryPlace&) = delete;

private:
    static constexpr const char* kName = "TMPDIR";

    std::optional<std::string> m_before;
};

TEST(IdRegister, LeavesNothingToBeSeenInTheFolderForTemporaryFiles)
{
    const CTemporaryFolder folder;
    const CTemporaryPlace place(folder.path());
    CIdRegister ids;
    EXPECT_TRUE(ids.add("a"));
    EXPECT_THAT(folder.names(), ::testing::IsEmpty());
}

TEST(IdRegister, SaysThatThereIsNoFolderForTemporaryFiles)
{
    const CTemporaryFolder folder;
    const CTemporaryPlace place(folder.pathOf("nowhere"));
    EXPECT_THAT([] { CIdRegister(); }, ::testing::ThrowsMessage<CFailure>(
                                           ::testing::StartsWith("folder for temporary files: ")));
}

} // namespace
} // namespace tovangl::program
