// SPDX-License-Identifier: MIT
#include "apps/support/CTemporaryFolder.h"
#include "common/CFailure.h"
#include "tovangl-du/folder_walk.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tovangl::program {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr std::int64_t kNow = 1716000000; // May 2024

class FolderWalk : public ::testing::Test
{
protected:
    void makeFolder(const std::string& name) const
    {
        std::filesystem::create_directories(m_tree.pathOf(name));
    }
    void makeFile(const std::string& name, std::size_t bytes) const
    {
        m_tree.write(name, std::string(bytes, 'x'));
    }

    void walk(const PageLimits& limits = PageLimits())
    {
        WalkOptions options;
        options.root = m_tree.path();
        options.limits = limits;
        options.now = kNow;
        m_result = std::make_unique<WalkResult>(
            walkFolder(options, [this](const WalkProgress& progress) { m_seen = progress.files; }));
    }
    const FolderSummary& root() { return *m_result->folders.find(m_result->root); }
    std::vector<std::string> childrenOfRoot()
    {
        std::vector<std::string> names;
        for (const ListedChild& child : root().children.sorted())
            names.push_back(child.name + ' ' + std::to_string(child.bytes));
        return names;
    }
    std::vector<std::string> largestFiles()
    {
        std::vector<std::string> names;
        for (const ListedFile& file : root().largestFiles.sorted())
            names.push_back(file.name);
        return names;
    }

    CTemporaryFolder m_tree;
    std::unique_ptr<WalkResult> m_result;
    std::uint64_t m_seen = 0;
};

TEST_F(FolderWalk, SumsUpEverythingBelow)
{
    makeFolder("a/b");
    makeFile("top", 10);
    makeFile("a/one", 100);
    makeFile("a/b/two", 1000);
    walk();
    EXPECT_EQ(root().bytes, 1110);
    EXPECT_EQ(root().files, 3U);
    EXPECT_EQ(root().folders, 2U);
    EXPECT_EQ(root().unreadable, 0U);
    EXPECT_THAT(childrenOfRoot(), ElementsAre("a 1100", "top 10"));
    EXPECT_THAT(largestFiles(), ElementsAre("a/b/two", "a/one", "top"));
    EXPECT_EQ(m_seen, 3U);
}

TEST_F(FolderWalk, TakesAnEmptyFolder)
{
    walk();
    EXPECT_EQ(root().bytes, 0);
    EXPECT_THAT(childrenOfRoot(), IsEmpty());
}

TEST_F(FolderWalk, KeepsASummaryOfEachFolder)
{
    makeFolder("a/b");
    makeFile("a/b/two", 1000);
    walk();
    const FolderId a = root().children.sorted()[0].folder;
    EXPECT_EQ(m_result->folders.find(a)->path, "a");
    const FolderId b = m_result->folders.find(a)->children.sorted()[0].folder;
    EXPECT_EQ(m_result->folders.find(b)->path, "a/b");
    EXPECT_EQ(m_result->folders.find(b)->depth, 2);
}

TEST_F(FolderWalk, DoesNotFollowLinks)
{
    makeFolder("a");
    makeFile("a/file", 100);
    std::filesystem::create_directory_symlink("a", m_tree.pathOf("folder-link"));
    std::filesystem::create_directory_symlink("..", m_tree.pathOf("a/circle"));
    std::filesystem::create_symlink("a/file", m_tree.pathOf("file-link"));
    std::filesystem::create_symlink("nowhere", m_tree.pathOf("broken"));
    walk();
    EXPECT_EQ(root().bytes, 100);
    EXPECT_EQ(root().files, 1U);
    EXPECT_EQ(root().unreadable, 0U);
}

TEST_F(FolderWalk, FollowsTheRootItself)
{
    makeFolder("a");
    makeFile("a/file", 100);
    std::filesystem::create_directory_symlink("a", m_tree.pathOf("link"));
    WalkOptions options;
    options.root = m_tree.pathOf("link");
    const WalkResult result = walkFolder(options, [](const WalkProgress&) {});
    EXPECT_EQ(result.folders.find(result.root)->bytes, 100);
}

TEST_F(FolderWalk, LeavesAloneWhatIsNoFile)
{
    ASSERT_EQ(::mkfifo(m_tree.pathOf("pipe").c_str(), 0600), 0);
    walk();
    EXPECT_EQ(root().files, 0U);
    EXPECT_EQ(root().unreadable, 0U);
}

TEST_F(FolderWalk, CountsTheClaimedSizeOfAFileWithHoles)
{
    makeFile("holes", 1);
    ASSERT_EQ(::truncate(m_tree.pathOf("holes").c_str(), 1L << 33), 0);
    walk();
    EXPECT_EQ(root().bytes, 1L << 33);
}

TEST_F(FolderWalk, SortsBytesByMonthOfLastChange)
{
    makeFile("old", 5);
    makeFile("new", 7);
    const timespec midnight[] = {{0, 0}, {1709251200, 0}}; // 1 March 2024
    const timespec before[] = {{0, 0}, {1709251199, 999999999}};
    ASSERT_EQ(::utimensat(AT_FDCWD, m_tree.pathOf("new").c_str(), midnight, 0), 0);
    ASSERT_EQ(::utimensat(AT_FDCWD, m_tree.pathOf("old").c_str(), before, 0), 0);
    walk();
    const auto rows = root().months.rows();
    ASSERT_THAT(rows, SizeIs(2));
    EXPECT_EQ(rows[0].name, "2024-02");
    EXPECT_EQ(rows[0].bytes, 5);
    EXPECT_EQ(rows[1].name, "2024-03");
}

// Such times come from clocks that were wrong and from damaged archives.
TEST_F(FolderWalk, CountsFilesWhoseTimeNoClockCouldTell)
{
    constexpr std::int64_t kYear2400 = 13569465600;
    makeFile("far", 5);
    const timespec times[] = {{0, 0}, {kYear2400, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, m_tree.pathOf("far").c_str(), times, 0), 0);
    walk();
    EXPECT_EQ(root().bytes, 5);
    EXPECT_EQ(root().unreadable, 0U);
    ASSERT_THAT(root().months.rows(), SizeIs(1));
    EXPECT_EQ(root().months.rows()[0].name, "later");
}

TEST_F(FolderWalk, TakesNamesOfAnyBytes)
{
    makeFile("\xff\xfe\n\x1b\"><script>", 5);
    walk();
    EXPECT_EQ(root().children.sorted()[0].name, "\xff\xfe\n\x1b\"><script>");
}

TEST_F(FolderWalk, TellsWhatItMayNotRead)
{
    if (::geteuid() == 0)
        GTEST_SKIP() << "root may read everything";
    makeFolder("closed/inside");
    makeFile("open", 5);
    std::filesystem::permissions(m_tree.pathOf("closed"), std::filesystem::perms::none);
    walk();
    std::filesystem::permissions(m_tree.pathOf("closed"), std::filesystem::perms::owner_all);
    EXPECT_EQ(root().bytes, 5);
    EXPECT_EQ(root().unreadable, 1U);
    ASSERT_THAT(m_result->unreadable, SizeIs(1));
    EXPECT_EQ(m_result->unreadable[0].path, m_tree.pathOf("closed"));
    EXPECT_THAT(m_result->unreadable[0].reason, HasSubstr("denied"));
}

// A tree that is deeper than a path can be long: made and removed from inside.
class CDeepTree
{
public:
    CDeepTree(const std::string& root, int levels)
        : m_folder(::open(root.c_str(), O_RDONLY | O_DIRECTORY))
        , m_levels(levels)
    {
        for (int i = 0; i < levels; ++i) {
            ::mkdirat(m_folder, kName, 0700);
            enter(kName);
        }
    }
    ~CDeepTree()
    {
        for (int i = 0; i < m_levels; ++i) {
            enter("..");
            ::unlinkat(m_folder, kName, AT_REMOVEDIR);
        }
        ::close(m_folder);
    }
    CDeepTree(const CDeepTree&) = delete;
    CDeepTree& operator=(const CDeepTree&) = delete;

private:
    static constexpr const char* kName = "d";

    void enter(const char* name)
    {
        const int next = ::openat(m_folder, name, O_RDONLY | O_DIRECTORY);
        ::close(m_folder);
        m_folder = next;
    }

    int m_folder;
    int m_levels;
};

TEST_F(FolderWalk, GoesAsDeepAsPathsCanBeLongAndTellsWhereItStops)
{
    makeFile("file", 5);
    const CDeepTree deep(m_tree.path(), 3000);
    walk();
    EXPECT_EQ(root().bytes, 5);
    EXPECT_GT(root().folders, 1900U);
    EXPECT_LT(root().folders, 2100U);
    EXPECT_EQ(root().unreadable, 1U);
    EXPECT_THAT(m_result->unreadable[0].reason, HasSubstr("too long"));
}

TEST_F(FolderWalk, KeepsNoMorePagesThanItIsAllowed)
{
    for (int i = 0; i < 30; ++i) {
        const std::string name = "folder" + std::to_string(i);
        makeFolder(name);
        makeFile(name + "/file", 10 + static_cast<std::size_t>(i));
    }
    walk(PageLimits{4, 10});
    EXPECT_EQ(m_result->folders.size(), 4U);
    const auto children = root().children.sorted();
    EXPECT_EQ(children[0].name, "folder29");
    EXPECT_NE(m_result->folders.find(children[2].folder), nullptr);
    EXPECT_EQ(m_result->folders.find(children[3].folder), nullptr);
}

TEST_F(FolderWalk, ListsNoMoreThanAPageShows)
{
    for (int i = 0; i < 150; ++i)
        makeFile("file" + std::to_string(i), 10);
    walk();
    EXPECT_THAT(root().children.entries(), SizeIs(kListedChildren));
    EXPECT_EQ(root().children.otherCount(), 50U);
    EXPECT_EQ(root().children.otherBytes(), 500);
    EXPECT_THAT(root().largestFiles.entries(), SizeIs(kListedFiles));
}

TEST_F(FolderWalk, FailsWhereTheRootCannotBeRead)
{
    makeFile("file", 5);
    WalkOptions options;
    for (const char* name : {"none", "file"}) {
        options.root = m_tree.pathOf(name);
        EXPECT_THROW(static_cast<void>(walkFolder(options, [](const WalkProgress&) {})), CFailure);
    }
}

TEST_F(FolderWalk, StopsWhereTheReportStopsIt)
{
    makeFile("file", 5);
    WalkOptions options;
    options.root = m_tree.path();
    const auto stop = [](const WalkProgress&) { throw CFailure("enough"); };
    EXPECT_THROW(static_cast<void>(walkFolder(options, stop)), CFailure);
}

} // namespace
} // namespace tovangl::program
