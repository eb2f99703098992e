// SPDX-License-Identifier: MIT
#include "apps/support/CHtmlPage.h"
#include "apps/support/CProgramTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tovangl::program {
namespace {

using ::testing::Contains;
using ::testing::Each;
using ::testing::HasSubstr;
using ::testing::IsSupersetOf;
using ::testing::MatchesRegex;
using ::testing::Not;

// Folders of any name, with a file of some bytes in each.
class DiskUsageReport : public CProgramTest
{
protected:
    void addFolder(const std::string& name, std::size_t bytes) const
    {
        std::filesystem::create_directories(folder.pathOf("tree/" + name));
        folder.write("tree/" + name + "/file", std::string(bytes, 'x'));
    }
    ShellResult run(const std::string& arguments) const { return shell("tovangl-du " + arguments); }
    Names reportNames() const { return folder.names("report"); }
    CHtmlPage page(const std::string& name) const
    {
        return CHtmlPage(folder.read("report/" + name));
    }
};

TEST_F(DiskUsageReport, IsAFolderOfPagesAndPictures)
{
    addFolder("a", 1000);
    addFolder("a/b", 500);
    const ShellResult result = run("tree -o report");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, "Wrote 3 pages; open report/index.html\n");
    EXPECT_THAT(reportNames(), IsSupersetOf({"index.html", "2.html", "3.html", "style.css",
                                             "1-children.png", "3-months.png", "3-months-2x.png"}));
    EXPECT_EQ(reportNames().size(), 3U * 7 + 1);
}

TEST_F(DiskUsageReport, LeadsFromEachPageToPagesThatAreThere)
{
    addFolder("a/b/c", 1000);
    addFolder("d", 700);
    ASSERT_EQ(run("tree -o report").status, 0);
    const Names names = reportNames();
    for (const std::string& name : names) {
        if (name.find(".html") == std::string::npos)
            continue;
        const CHtmlPage page = this->page(name);
        EXPECT_EQ(page.error(), "");
        for (const HtmlElement& element : page.elements()) {
            const std::string target = element["href"] + element["src"];
            if (!target.empty() && target[0] != '#') {
                EXPECT_THAT(names, Contains(target));
            }
            const std::string dense = element["srcset"];
            if (!dense.empty()) {
                EXPECT_THAT(names, Contains(dense.substr(0, dense.find(' '))));
            }
        }
    }
}

TEST_F(DiskUsageReport, NamesItsFilesByNumberWhateverTheFoldersAreCalled)
{
    addFolder("\"><script>alert(1)</script>"
              "x",
              1000);
    std::filesystem::create_directories(folder.pathOf("tree/\"><script>"));
    folder.write("tree/\"><script>/\"><img src=x onerror=alert(1)>", std::string(900, 'x'));
    addFolder("broken\xff", 800);
    addFolder("broken\xfe", 700);
    addFolder("line\nbreak", 600);
    addFolder("index.html", 500);
    ASSERT_EQ(run("tree -o report").status, 0);
    EXPECT_THAT(reportNames(),
                Each(MatchesRegex("index\\.html|style\\.css|[0-9]+(\\.html|-[a-z]+(-2x)?\\.png)")));
    for (const char* name : {"index.html", "2.html", "5.html"}) {
        EXPECT_EQ(page(name).error(), "");
        EXPECT_TRUE(page(name).all("script").empty());
        EXPECT_EQ(page(name).all("img").size(), 3U);
    }
}

TEST_F(DiskUsageReport, HasNoFilesOfPicturesThatArePartsOfItsPages)
{
    addFolder("\"><script>alert(1)<", 1000);
    ASSERT_EQ(run("tree -o report --svg").status, 0);
    EXPECT_EQ(reportNames(), (Names{"index.html", "2.html", "style.css"}));
    for (const char* name : {"index.html", "2.html"}) {
        EXPECT_EQ(page(name).error(), "");
        EXPECT_TRUE(page(name).all("script").empty());
        EXPECT_EQ(page(name).all("svg").size(), 3U);
    }
}

TEST_F(DiskUsageReport, TakesThePlaceOfOneWithPicturesOfAnotherKind)
{
    addFolder("a", 1000);
    for (const char* options : {"", "--svg", ""})
        EXPECT_EQ(run(std::string("tree -o report ") + options).status, 0) << options;
    EXPECT_THAT(reportNames(), Contains("1-children.png"));
}

TEST_F(DiskUsageReport, KeepsFoldersApartThatLookTheSame)
{
    addFolder("broken\xff", 800);
    addFolder("broken\xfe", 700);
    ASSERT_EQ(run("tree -o report").status, 0);
    const auto links = page("index.html").all("a");
    ASSERT_EQ(links.size(), 2U);
    EXPECT_EQ(links[0]["href"], "2.html");
    EXPECT_EQ(links[1]["href"], "3.html");
    EXPECT_THAT(folder.read("report/2.html"), HasSubstr("800 bytes"));
    EXPECT_THAT(folder.read("report/3.html"), HasSubstr("700 bytes"));
}

TEST_F(DiskUsageReport, IsTheSameTwice)
{
    for (int i = 0; i < 30; ++i)
        addFolder("folder" + std::to_string(i), 100);
    ASSERT_EQ(run("tree -o report --pages 7").status, 0);
    ASSERT_EQ(run("tree -o again --pages 7").status, 0);
    EXPECT_EQ(shell("diff -r -I 'Read on' report again").status, 0);
}

TEST_F(DiskUsageReport, TakesThePlaceOfAnOldOne)
{
    addFolder("a", 1000);
    addFolder("a/b", 500);
    ASSERT_EQ(run("tree -o report").status, 0);
    ASSERT_EQ(run("tree -o report --depth 0").status, 0);
    EXPECT_THAT(reportNames(), Not(Contains("2.html")));
    EXPECT_EQ(folder.names(), (Names{"report", "tree"}));
}

TEST_F(DiskUsageReport, HasNoMorePagesThanItIsAllowed)
{
    for (int i = 0; i < 10; ++i)
        addFolder("folder" + std::to_string(i), 100);
    EXPECT_THAT(run("tree -o report --pages 4").output, HasSubstr("4 pages"));
    EXPECT_THAT(run("tree -o report --pages 1").output, HasSubstr("1 page;"));
}

TEST_F(DiskUsageReport, LeavesOutOtherFileSystemsWhereItIsTold)
{
    if (shell("test $(stat -c %d /dev) -ne $(stat -c %d /dev/shm)").status != 0)
        GTEST_SKIP() << "/dev/shm is no file system of its own here";
    const ShellResult file =
        shell("file=$(mktemp /dev/shm/tovangl-test-XXXXXX) && echo bytes >$file && echo $file");
    ASSERT_EQ(file.status, 0);
    EXPECT_EQ(run("/dev -o all").status, 0);
    EXPECT_EQ(run("/dev -x -o one").status, 0);
    shell("rm " + file.output);
    EXPECT_THAT(folder.read("all/index.html"), HasSubstr("shm/"));
    EXPECT_THAT(folder.read("one/index.html"), Not(HasSubstr("shm/")));
}

TEST_F(DiskUsageReport, TakesAnEmptyFolder)
{
    std::filesystem::create_directories(folder.pathOf("tree"));
    EXPECT_EQ(run("tree -o report").status, 0);
    EXPECT_EQ(page("index.html").error(), "");
}

TEST_F(DiskUsageReport, IsWrittenIntoTheFolderAtHandByDefault)
{
    addFolder("a", 1000);
    const ShellResult result = shell("cd tree && tovangl-du");
    EXPECT_EQ(result.output, "Wrote 2 pages; open tovangl-report/index.html\n");
    EXPECT_THAT(folder.read("tree/tovangl-report/index.html"), HasSubstr("1 file and 1 folder."))
        << "the report does not see itself";
}

TEST_F(DiskUsageReport, ShowsProgressOnATerminalOnly)
{
    addFolder("a", 1000);
    EXPECT_EQ(run("tree -o report").errors, "");
    if (!hasTerminals())
        GTEST_SKIP() << "no terminal can be opened here";
    const ShellResult result = shell("script -qec 'tovangl-du /usr -o report --pages 1' /dev/null");
    if (result.status == 127)
        GTEST_SKIP() << "there is no script(1) to play the terminal";
    EXPECT_THAT(result.output, HasSubstr(" files, "));
    EXPECT_THAT(result.output, HasSubstr("\r\x1b[K"));
}

TEST_F(DiskUsageReport, HelpTeaches)
{
    const ShellResult result = run("--help");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, HasSubstr("tovangl-du /usr/share -o report"));
    EXPECT_THAT(run("--version").output, MatchesRegex("tovangl-du [0-9.]+\n"));
}

class DiskUsageHelp : public CProgramTest, public ::testing::WithParamInterface<const char*>
{};

TEST_P(DiskUsageHelp, NamesTheOptionsOfTheProgram)
{
    const std::string text =
        shell(std::string("sed 's/\\\\-/-/g' '" TOVANGL_APPS_FOLDER "'/") + GetParam()).output;
    for (const char* option :
         {"output", "pages", "depth", "svg", "font-file", "one-file-system", "help", "version"})
        EXPECT_THAT(text, HasSubstr(option));
}

INSTANTIATE_TEST_SUITE_P(Files, DiskUsageHelp,
                         ::testing::Values("man/tovangl-du.1", "completions/tovangl-du.bash",
                                           "completions/_tovangl-du",
                                           "completions/tovangl-du.fish"));

} // namespace
} // namespace tovangl::program
