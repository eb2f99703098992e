// SPDX-License-Identifier: MIT
#include "tovangl-du/CKeptFolders.h"

#include <gtest/gtest.h>

namespace tovangl::program {
namespace {

constexpr FolderId kRoot = 1;

std::unique_ptr<FolderSummary> makeFolder(FolderId id, int depth, long bytes,
                                          const std::string& path = "x")
{
    auto folder = std::make_unique<FolderSummary>(id, path, depth, 0);
    folder->bytes = bytes;
    return folder;
}

TEST(KeptFolders, KeepsTheLargest)
{
    CKeptFolders kept(PageLimits{3, 10});
    kept.add(makeFolder(4, 2, 10));
    kept.add(makeFolder(3, 2, 50));
    kept.add(makeFolder(2, 1, 60));
    kept.add(makeFolder(kRoot, 0, 100));
    kept.sortById();
    EXPECT_EQ(kept.size(), 3U);
    EXPECT_EQ(kept.find(2)->bytes, 60);
    EXPECT_NE(kept.find(3), nullptr);
    EXPECT_EQ(kept.find(4), nullptr);
}

TEST(KeptFolders, KeepsTheOuterOneOfTwoOfOneSize)
{
    CKeptFolders kept(PageLimits{2, 10});
    kept.add(makeFolder(3, 2, 50, "a/b"));
    kept.add(makeFolder(2, 1, 50, "a"));
    kept.add(makeFolder(kRoot, 0, 50, ""));
    kept.sortById();
    EXPECT_NE(kept.find(2), nullptr);
    EXPECT_EQ(kept.find(3), nullptr);
}

TEST(KeptFolders, KeepsTheRootWhateverItsSize)
{
    CKeptFolders kept(PageLimits{1, 0});
    kept.add(makeFolder(2, 1, 50));
    kept.add(makeFolder(kRoot, 0, 0));
    kept.sortById();
    EXPECT_EQ(kept.size(), 1U);
    EXPECT_NE(kept.find(kRoot), nullptr);
}

TEST(KeptFolders, LeavesOutWhatIsTooDeepOrEmpty)
{
    CKeptFolders kept(PageLimits{10, 1});
    kept.add(makeFolder(2, 1, 5));
    kept.add(makeFolder(3, 2, 5));
    kept.add(makeFolder(4, 1, 0));
    kept.sortById();
    EXPECT_EQ(kept.size(), 1U);
    EXPECT_EQ(kept.find(0), nullptr);
}

} // namespace
} // namespace tovangl::program
