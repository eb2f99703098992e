// SPDX-License-Identifier: MIT
// Files that are there as a whole or not at all.
#include "apps/support/CTemporaryFolder.h"
#include "common/CFailure.h"
#include "common/CWholeFile.h"

#include <gmock/gmock.h>
#include <unistd.h>

namespace tovangl::program {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::ThrowsMessage;

void writeWhole(const std::string& path, const std::string& bytes)
{
    CWholeFile file(path);
    file.write(bytes);
    file.publish();
}

TEST(WholeFile, HasNoNameUntilItIsPublished)
{
    const CTemporaryFolder folder;
    CWholeFile file(folder.pathOf("a"));
    file.write("text");
    EXPECT_THAT(folder.names(), IsEmpty());
    file.publish();
    EXPECT_THAT(folder.names(), ElementsAre("a"));
    EXPECT_EQ(folder.read("a"), "text");
}

TEST(WholeFile, LeavesNothingIfItIsNotPublished)
{
    const CTemporaryFolder folder;
    folder.write("a", "old");
    CWholeFile(folder.pathOf("a")).write("new");
    EXPECT_THAT(folder.names(), ElementsAre("a"));
    EXPECT_EQ(folder.read("a"), "old");
}

TEST(WholeFile, LeavesNothingWhereAFolderHasItsName)
{
    const CTemporaryFolder folder;
    std::filesystem::create_directory(folder.pathOf("a"));
    EXPECT_THROW(writeWhole(folder.pathOf("a"), "text"), CFailure);
    EXPECT_THAT(folder.names(), ElementsAre("a"));
}

TEST(WholeFile, ReplacesWhatWasThere)
{
    const CTemporaryFolder folder;
    folder.write("a", "old and long");
    writeWhole(folder.pathOf("a"), "new");
    EXPECT_EQ(folder.read("a"), "new");
    EXPECT_THAT(folder.names(), ElementsAre("a"));
}

TEST(WholeFile, OfTwoWritersTheLaterOneStays)
{
    const CTemporaryFolder folder;
    CWholeFile first(folder.pathOf("a"));
    CWholeFile second(folder.pathOf("a"));
    first.write("first");
    second.write("second");
    second.publish();
    first.publish();
    EXPECT_EQ(folder.read("a"), "first");
}

// A process of the same number has left them: in containers, many have it.
TEST(WholeFile, ReplacesAFileBesideThoseOfAKilledProcess)
{
    constexpr int kDescriptors = 100;
    const CTemporaryFolder folder;
    folder.write("a", "old");
    for (int i = 0; i < kDescriptors; ++i)
        folder.write(".tovangl-" + std::to_string(::getpid()) + '-' + std::to_string(i), "");
    writeWhole(folder.pathOf("a"), "new");
    EXPECT_EQ(folder.read("a"), "new");
}

TEST(WholeFile, HasTheUsualPermissions)
{
    const CTemporaryFolder folder;
    folder.write("usual", "");
    writeWhole(folder.pathOf("a"), "");
    namespace fs = std::filesystem;
    EXPECT_EQ(fs::status(folder.pathOf("a")).permissions(),
              fs::status(folder.pathOf("usual")).permissions());
}

TEST(WholeFile, NamesAFolderThatIsNotThere)
{
    EXPECT_THAT([] { writeWhole("/nowhere/a", ""); },
                ThrowsMessage<CFailure>(HasSubstr("/nowhere/a: No such file")));
}

} // namespace
} // namespace tovangl::program
