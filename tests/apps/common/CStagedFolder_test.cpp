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

class StagedFolder : public ::testing::Test
{
protected:
    void makeFolder(const char* name) const
    {
        std::filesystem::create_directory(temporary.pathOf(name));
    }

    CTemporaryFolder temporary;
};

TEST_F(StagedFolder, AppearsWithAllItsFiles)
{
    CStagedFolder folder(temporary.pathOf("new"), never);
    folder.write("a", "first");
    folder.write("b", "second");
    EXPECT_FALSE(std::filesystem::exists(temporary.pathOf("new")));
    folder.publish();
    EXPECT_THAT(temporary.names(), ElementsAre("new"));
    EXPECT_EQ(temporary.read("new/b"), "second");
}

TEST_F(StagedFolder, CanBeNamedWithASlashAtTheEnd)
{
    CStagedFolder folder(temporary.pathOf("new/"), never);
    folder.write("a", "first");
    folder.publish();
    EXPECT_THAT(temporary.names(), ElementsAre("new"));
    EXPECT_EQ(temporary.read("new/a"), "first");
}

TEST_F(StagedFolder, HasThePermissionsOfAnyNewFolder)
{
    makeFolder("other");
    CStagedFolder folder(temporary.pathOf("new"), never);
    folder.write("a", "first");
    folder.publish();
    EXPECT_EQ(std::filesystem::status(temporary.pathOf("new")).permissions(),
              std::filesystem::status(temporary.pathOf("other")).permissions());
}

TEST_F(StagedFolder, LeavesNothingWhereItIsNotPublished)
{
    {
        CStagedFolder folder(temporary.pathOf("new"), never);
        folder.write("a", "first");
    }
    EXPECT_THAT(temporary.names(), IsEmpty());
}

TEST_F(StagedFolder, MakesNothingBeforeTheFirstFile)
{
    const CStagedFolder folder(temporary.pathOf("new"), never);
    EXPECT_THAT(temporary.names(), IsEmpty());
}

TEST_F(StagedFolder, TakesThePlaceOfWhatMayBeReplaced)
{
    makeFolder("old");
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

TEST_F(StagedFolder, LeavesNoOtherNameBehindWhenItReplaces)
{
    makeFolder("old");
    {
        CStagedFolder folder(temporary.pathOf("old"), never);
        folder.write("a", "first");
        folder.publish();
    }
    EXPECT_THAT(temporary.names(), ElementsAre("old"));
}

TEST_F(StagedFolder, RefusesAFolderWithOtherFiles)
{
    makeFolder("mine");
    temporary.write("mine/precious", "x");
    EXPECT_THROW(CStagedFolder(temporary.pathOf("mine"), never), CFailure);
    EXPECT_EQ(temporary.read("mine/precious"), "x");
}

TEST_F(StagedFolder, RefusesAFile)
{
    temporary.write("file", "x");
    EXPECT_THROW(CStagedFolder(temporary.pathOf("file"), always), CFailure);
}

TEST_F(StagedFolder, RefusesAPlaceThatIsNotThere)
{
    EXPECT_THROW(CStagedFolder(temporary.pathOf("none/new"), always), CFailure);
}

TEST_F(StagedFolder, FollowsALinkToAFolder)
{
    makeFolder("real");
    std::filesystem::create_directory_symlink("real", temporary.pathOf("link"));
    CStagedFolder folder(temporary.pathOf("link"), never);
    folder.write("a", "first");
    folder.publish();
    EXPECT_TRUE(std::filesystem::is_symlink(temporary.pathOf("link")));
    EXPECT_EQ(temporary.read("real/a"), "first");
}

} // namespace
} // namespace tovangl::program
