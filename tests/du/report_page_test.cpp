// SPDX-License-Identifier: MIT
#include "apps/support/CHtmlPage.h"
#include "tovangl-du/report_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

namespace tovangl::program {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Ge;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::IsSupersetOf;
using ::testing::Not;
using ::testing::SizeIs;
using ::testing::StartsWith;

constexpr MonthNumber kMay2024 = 2024 * 12 + 4;
constexpr const char* kHostileName = "\"><script>alert(1)</script>&amp;'";

class ReportPage : public ::testing::Test
{
protected:
    void add(const std::string& name, long bytes, FolderId id = 0)
    {
        m_folder.children.add({name, bytes, id});
        m_folder.largestFiles.add({id == 0 ? name : name + "/inside", bytes});
        m_folder.months.add(kMay2024, bytes);
        m_folder.bytes += bytes;
    }

    ReportFiles make()
    {
        return makePage({m_folder, m_path, "5-", m_unreadable, "2024-05-18", m_look},
                        [](FolderId id) { return id == 7 ? "9.html" : ""; });
    }
    CHtmlPage page() { return CHtmlPage(make()[0].bytes); }
    /// Where the regions of all pictures lead, in either kind of page.
    std::set<std::string> targets()
    {
        std::set<std::string> targets;
        const CHtmlPage written = page();
        for (const HtmlElement& element : written.elements()) {
            if (element.tag == "area" || element["class"] == "item")
                targets.insert(element["href"]);
        }
        return targets;
    }

    FolderSummary m_folder{1, "", 0, kMay2024};
    std::vector<PathPart> m_path{{"root", "index.html"}, {"this", "5.html"}};
    std::vector<UnreadablePlace> m_unreadable;
    ReportLook m_look;
};

TEST_F(ReportPage, ComesWithItsPictures)
{
    add("folder", 500, 7);
    const ReportFiles files = make();
    std::vector<std::string> names;
    for (const ReportFile& file : files)
        names.push_back(file.name);
    EXPECT_THAT(names, ElementsAre("5.html", "5-children.png", "5-children-2x.png", "5-files.png",
                                   "5-files-2x.png", "5-months.png", "5-months-2x.png"));
    for (std::size_t i = 1; i < files.size(); ++i)
        EXPECT_THAT(files[i].bytes, StartsWith("\x89PNG"));
}

TEST_F(ReportPage, ShowsItsPicturesOnDenseDisplaysInTheSamePlace)
{
    add("folder", 500, 7);
    for (const HtmlElement& image : page().all("img")) {
        const std::string stem = image["src"].substr(0, image["src"].find('.'));
        EXPECT_EQ(image["srcset"], stem + "-2x.png 2x");
        EXPECT_EQ(image["width"], "800");
    }
}

TEST_F(ReportPage, HoldsItsPicturesAsSvgWhereAskedFor)
{
    add("folder", 500, 7);
    m_look.isSvg = true;
    EXPECT_THAT(make(), SizeIs(1));
    EXPECT_EQ(page().error(), "");
    EXPECT_THAT(page().all("svg"), SizeIs(3));
    EXPECT_THAT(page().all("img"), IsEmpty());
    EXPECT_THAT(page().all("area"), IsEmpty());
}

TEST_F(ReportPage, HasTheSameLinksAndTablesWithEitherKindOfPictures)
{
    add("folder", 500, 7);
    add("file", 300);
    const std::set<std::string> targets = this->targets();
    const std::vector<std::string> cells = page().texts("td");
    EXPECT_THAT(targets, IsSupersetOf({"9.html", "#child-2", "#file-1", "#file-2"}));
    m_look.isSvg = true;
    EXPECT_EQ(this->targets(), targets);
    EXPECT_EQ(page().texts("td"), cells);
}

TEST_F(ReportPage, TellsTheSameOfEachItemInEitherKindOfPictures)
{
    add("folder", 500, 7);
    add("a<b", 300);
    std::set<std::string> ofAreas;
    for (const HtmlElement& area : page().all("area"))
        ofAreas.insert(area["title"]);
    EXPECT_THAT(ofAreas, Contains("a<b: 300 bytes, 37.5 %"));
    m_look.isSvg = true;
    EXPECT_THAT(page().texts("title"), IsSupersetOf(ofAreas));
}

TEST_F(ReportPage, HasIdsOfItsOwnForEverySvgPicture)
{
    add("folder", 500, 7);
    m_look.isSvg = true;
    std::set<std::string> ids;
    const CHtmlPage written = page();
    for (const HtmlElement& element : written.elements()) {
        if (!element["id"].empty()) {
            EXPECT_TRUE(ids.insert(element["id"]).second) << element["id"];
        }
    }
    EXPECT_THAT(ids, SizeIs(Ge(2 * 3U))); // of items and of rows, and of what pictures define
}

TEST_F(ReportPage, IsSound)
{
    add("folder", 500, 7);
    add("file", 300);
    EXPECT_EQ(page().error(), "");
}

TEST_F(ReportPage, HasASentenceForEachPicture)
{
    add("folder", 500, 7);
    const auto images = page().all("img");
    ASSERT_THAT(images, SizeIs(3));
    EXPECT_THAT(images[0]["alt"], HasSubstr("Pie chart, 1 of 1 items drawn: “folder/” with 500."));
    EXPECT_THAT(images[1]["alt"], HasSubstr("Horizontal bar chart"));
    EXPECT_THAT(images[2]["alt"], HasSubstr("Vertical bar chart"));
}

TEST_F(ReportPage, HasRegionsForCaptionsSlicesAndBars)
{
    add("folder", 500, 7);
    add("file", 300);
    const auto areas = page().all("area");
    EXPECT_THAT(areas, SizeIs(2 * 2 + 2 * 2 + 2 * 1));
    for (const HtmlElement& area : areas) {
        EXPECT_NE(area["href"], "");
        EXPECT_THAT(area["title"], HasSubstr(" bytes, "));
        EXPECT_NE(area["alt"], "");
    }
    EXPECT_EQ(areas[0]["href"], "9.html");
    EXPECT_EQ(areas[0]["title"], "folder/: 500 bytes, 62.5 %");
}

TEST_F(ReportPage, LeadsNowhereThatIsNotThere)
{
    add("folder", 500, 7);
    add("file", 300);
    const CHtmlPage page = this->page();
    for (const HtmlElement& element : page.elements()) {
        const std::string target = element["href"];
        if (!target.empty() && target[0] == '#') {
            EXPECT_TRUE(page.hasId(target.substr(1))) << target;
        }
    }
}

TEST_F(ReportPage, EscapesHostileNames)
{
    m_path.back().name = kHostileName;
    add(kHostileName, 500, 7);
    add(std::string(kHostileName) + "2", 300);
    m_unreadable.push_back({kHostileName, kHostileName});
    m_folder.unreadable = 1;
    for (const bool isSvg : {false, true}) {
        m_look.isSvg = isSvg;
        const std::string html = make()[0].bytes;
        const CHtmlPage page(html);
        EXPECT_EQ(page.error(), "");
        EXPECT_THAT(page.all("script"), IsEmpty());
        EXPECT_THAT(html, Not(HasSubstr("<script")));
        EXPECT_EQ(page.texts("title").at(0), std::string(kHostileName) + ", 800 bytes");
    }
}

TEST_F(ReportPage, TakesNamesOfAnyBytes)
{
    m_path.back().name = "\xff\xfe";
    add("\xff\xfe\n\x1b[2J", 500, 7);
    add(std::string(255, '\xc3'), 300);
    for (const bool isSvg : {false, true}) {
        m_look.isSvg = isSvg;
        EXPECT_EQ(page().error(), "");
    }
}

TEST_F(ReportPage, RefersToNothingOutside)
{
    add("http://example.com/", 500, 7);
    const CHtmlPage page = this->page();
    for (const HtmlElement& element : page.elements()) {
        for (const char* name : {"href", "src"})
            EXPECT_THAT(element[name], Not(HasSubstr(":"))) << element.tag;
    }
}

TEST_F(ReportPage, SaysWhatWasNotReadOnTheFirstPage)
{
    m_unreadable.push_back({"/a/b", "Permission denied"});
    m_folder.unreadable = 3;
    const std::string html = make()[0].bytes;
    EXPECT_THAT(html, HasSubstr("3 places could not be read"));
    EXPECT_THAT(html, HasSubstr("<bdi>/a/b</bdi>: Permission denied"));
    EXPECT_THAT(html, HasSubstr("and 2 more"));
}

TEST_F(ReportPage, HasNoPicturesWithoutBytes)
{
    EXPECT_THAT(make(), SizeIs(1));
    EXPECT_EQ(page().error(), "");
    add("empty", 0);
    EXPECT_THAT(make(), SizeIs(1));
}

TEST_F(ReportPage, FoldsALongTableButNothingThatARegionLeadsTo)
{
    for (int i = 0; i < 150; ++i)
        add("file" + std::to_string(i), 1000);
    const std::string html = make()[0].bytes;
    const std::string unfolded = html.substr(0, html.find("<details>"));
    EXPECT_EQ(page().error(), "");
    EXPECT_NE(unfolded.size(), html.size());
    const auto areas = page().all("area");
    for (const HtmlElement& area : areas) {
        if (area["href"].rfind("#child", 0) == 0) {
            EXPECT_THAT(unfolded, HasSubstr("id=\"" + area["href"].substr(1) + '"'));
        }
    }
}

TEST_F(ReportPage, LeadsBackToTheFoldersAbove)
{
    const auto links = page().all("a");
    ASSERT_THAT(links, SizeIs(1));
    EXPECT_EQ(links[0]["href"], "index.html");
}

} // namespace
} // namespace tovangl::program
