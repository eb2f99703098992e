// SPDX-License-Identifier: MIT
#include "apps/support/CTemporaryFolder.h"
#include "common/CFailure.h"
#include "common/CStagedFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tovangl::program {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

bool never(const std::filesystem::path&)
{
    return false;
}

bool always(const std::filesystem::path&)
{
    return true;
}

TEST(StagedFolder, AppearsWithAllItsFiles)
{
    const CTemporaryFolder temporary;
    CStagedFolder folder(temporary.pathOf("new"), never);
    folder.write("a", "first");
    folder.write("b", "second");
    EXPECT_FALSE(std::filesystem::exists(temporary.pathOf("new")));
    folder.publish();
    EXPECT_THAT(temporary.names(), ElementsAre("new"));
    EXPECT_EQ(temporary.read("new/b"), "second");
}

TEST(StagedFolder, CanBeNamedWithASlashAtTheEnd)
{
    const CTemporaryFolder temporary;
    CStagedFolder folder(temporary.pathOf("new/"), never);
    folder.write("a", "first");
    folder.publish();
    EXPECT_THAT(temporary.names(), ElementsAre("new"));
    EXPECT_EQ(temporary.read("new/a"), "first");
}

TEST(StagedFolder, HasThePermissionsOfAnyNewFolder)
{
    const CTemporaryFolder temporary;
    std::filesystem::create_directory(temporary.pathOf("other"));
    CStagedFolder folder(temporary.pathOf("new"), never);
    folder.write("a", "first");
    folder.publish();
    EXPECT_EQ(std::filesystem::status(temporary.pathOf("new")).permissions(),
              std::filesystem::status(temporary.pathOf("other")).permissions());
}

TEST(StagedFolder, LeavesNothingWhereItIsNotPublished)
{
    const CTemporaryFolder temporary;
    {
        CStagedFolder folder(temporary.pathOf("new"), never);
        folder.write("a", "first");
    }
    EXPECT_THAT(temporary.names(), IsEmpty());
}

TEST(StagedFolder, MakesNothingBeforeTheFirstFile)
{
    const CTemporaryFolder temporary;
    const CStagedFolder folder(temporary.pathOf("new"), never);
    EXPECT_THAT(temporary.names(), IsEmpty());
}

TEST(StagedFolder, TakesThePlaceOfWhatMayBeReplaced)
{
    const CTemporaryFolder temporary;
    std::filesystem::create_directory(temporary.pathOf("old"));
    temporary.write("old/left", "x");
    CStagedFolder folder(temporary.pathOf("old/"), always);
    folder.write("a", "first");
    {
        CStagedFolder unpublished(temporary.pathOf("old"), always);
        unpublished.write("b", "second");
    }
    EXPECT_EQ(temporary.read("old/left"), "x") << "stays until then";
    folder.publish();
    EXPECT_FALSE(std::filesystem::exists(temporary.pathOf("old/left")));
    EXPECT_EQ(temporary.read("old/a"), "first");
}

TEST(StagedFolder, LeavesNoOtherNameBehindWhenItReplaces)
{
    const CTemporaryFolder temporary;
    std::filesystem::create_directory(temporary.pathOf("old"));
    {
        CStagedFolder folder(temporary.pathOf("old"), never);
        folder.write("a", "first");
        folder.publish();
    }
    EXPECT_THAT(temporary.names(), ElementsAre("old"));
}

TEST(StagedFolder, RefusesAFolderWithOtherFiles)
{
    const CTemporaryFolder temporary;
    std::filesystem::create_directory(temporary.pathOf("mine"));
    temporary.write("mine/precious", "x");
    EXPECT_THROW(CStagedFolder(temporary.pathOf("mine"), never), CFailure);
    EXPECT_EQ(temporary.read("mine/precious"), "x");
}

TEST(StagedFolder, RefusesAFile)
{
    const CTemporaryFolder temporary;
    temporary.write("file", "x");
    EXPECT_THROW(CStagedFolder(temporary.pathOf("file"), always), CFailure);
}

TEST(StagedFolder, RefusesAPlaceThatIsNotThere)
{
    const CTemporaryFolder temporary;
    EXPECT_THROW(CStagedFolder(temporary.pathOf("none/new"), always), CFailure);
}

TEST(StagedFolder, FollowsALinkToAFolder)
{
    const CTemporaryFolder temporary;
    std::filesystem::create_directory(temporary.pathOf("real"));
    std::filesystem::create_directory_symlink("real", temporary.pathOf("link"));
    CStagedFolder folder(temporary.pathOf("link"), never);
    folder.write("a", "first");
    folder.publish();
    EXPECT_TRUE(std::filesystem::is_symlink(temporary.pathOf("link")));
    EXPECT_EQ(temporary.read("real/a"), "first");
}

} // namespace
} // namespace tovangl::program
