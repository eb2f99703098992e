// SPDX-License-Identifier: MIT
#include "apps/support/CHtmlPage.h"
#include "tovangl-chart/chart_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tovangl::program {
namespace {

using ::testing::SizeIs;

constexpr const char* kHostile = "\"><script>alert(1)</script>&amp;'";
constexpr Rectangle kCaption = {10, 20, 30, 10};
constexpr Rectangle kBar = {10, 40, 30, 50};
constexpr Rectangle kNone = {0, 0, 0, 0};
constexpr Slice kQuarter = {0, 0, 100, 100, 90, 90};
constexpr Slice kNoSlice = {0, 0, 0, 0, 0, 0};

TEST(PageName, EndsInHtml)
{
    for (const char* name : {"x.html", "a/b.htm", "X.HTML", "x.json.html", ".html"})
        EXPECT_TRUE(isPageName(name)) << name;
    for (const char* name : {"", "-", "html", "x.json", "x.html.json", "x.xhtml", "xhtml"})
        EXPECT_FALSE(isPageName(name)) << name;
}

class ChartPage : public ::testing::Test
{
protected:
    ChartPage()
    {
        m_regions.size = {400, 300};
        m_regions.description = "Two items.";
        add(7, "first");
        add(-5, "second");
        m_regions.captions = {kCaption, kNone};
    }
    void add(long value, const std::string& caption)
    {
        m_items.push_back({value, caption, std::nullopt, std::nullopt});
    }
    CHtmlPage page() const
    {
        return CHtmlPage(chartPageHtml(m_title, m_pictures, m_items, m_regions));
    }

    std::string m_title = "sales";
    ChartPictures m_pictures{"PNG", std::nullopt};
    ChartItems m_items;
    ChartRegions m_regions;
};

TEST_F(ChartPage, HoldsThePicture)
{
    const auto images = page().all("img");
    ASSERT_THAT(images, SizeIs(1));
    EXPECT_EQ(images[0]["src"], "data:image/png;base64,UE5H");
    EXPECT_EQ(images[0]["width"], "400");
    EXPECT_EQ(images[0]["height"], "300");
    EXPECT_EQ(images[0]["alt"], "Two items.");
    EXPECT_EQ(images[0]["usemap"], '#' + page().all("map").at(0)["name"]);
}

TEST_F(ChartPage, HasOnePictureIfNoneIsDense)
{
    EXPECT_EQ(page().all("img").at(0)["srcset"], "");
}

TEST_F(ChartPage, HoldsAPictureForDenseDisplaysInTheSamePlace)
{
    m_pictures.dense = DensePicture{"GNP", 3};
    const HtmlElement image = page().all("img").at(0);
    EXPECT_EQ(image["srcset"], "data:image/png;base64,R05Q 3x");
    EXPECT_EQ(image["src"], "data:image/png;base64,UE5H");
    EXPECT_EQ(image["width"], "400");
    EXPECT_EQ(image["height"], "300");
}

TEST_F(ChartPage, HoldsAnSvgPictureAsAPartOfItself)
{
    m_pictures.shown = "<svg viewBox=\"0 0 1 1\"><rect width=\"1\"/></svg>";
    m_pictures.shownFormat = PictureFormat::Svg;
    EXPECT_EQ(page().error(), "");
    EXPECT_EQ(page().all("svg").at(0)["viewBox"], "0 0 1 1");
    EXPECT_THAT(page().all("img"), SizeIs(0));
    EXPECT_THAT(page().all("area"), SizeIs(0));
}

TEST_F(ChartPage, HasARowForTheOthers)
{
    m_regions.others = OthersItem{"<rest>", 3, 12};
    m_regions.captions = {kNone, kNone, kCaption};
    const auto areas = page().all("area");
    ASSERT_THAT(areas, SizeIs(1));
    EXPECT_EQ(areas[0]["title"], "<rest>: 12");
    EXPECT_TRUE(page().hasId(areas[0]["href"].substr(1)));
    EXPECT_EQ(page().texts("bdi").at(2), "<rest>");
    EXPECT_EQ(page().texts("td").at(5), "12");
}

TEST_F(ChartPage, LeadsFromTheOthersToTheAddressThatTheyHave)
{
    m_regions.others = OthersItem{"rest", 3, 12, "rest.html?a&b"};
    m_regions.captions = {kCaption, kNone, kCaption};
    const auto areas = page().all("area");
    ASSERT_THAT(areas, SizeIs(2));
    EXPECT_EQ(areas[0]["href"], "#item-1");
    EXPECT_EQ(areas[1]["href"], "rest.html?a&b");
}

TEST_F(ChartPage, HasNoRowForOthersThatGatherNothing)
{
    m_regions.others = OthersItem{"rest", 0, 0};
    m_regions.captions = {kNone, kNone, kNone};
    EXPECT_EQ(page().all("tr").size(), m_items.size() + 1);
}

TEST_F(ChartPage, HasTheRegionsOfBarsBehindThoseOfCaptions)
{
    m_regions.bars = std::list<Rectangle>{kBar, kBar};
    const auto areas = page().all("area");
    ASSERT_THAT(areas, SizeIs(3));
    EXPECT_EQ(areas[0]["coords"], "10,20,40,30");
    EXPECT_EQ(areas[1]["coords"], "10,40,40,90");
    EXPECT_EQ(areas[2]["title"], "second: -5");
    EXPECT_EQ(areas[2]["alt"], "second: -5");
}

TEST_F(ChartPage, HasTheOutlinesOfSlices)
{
    m_regions.slices = {kQuarter, kNoSlice};
    const auto areas = page().all("area");
    ASSERT_THAT(areas, SizeIs(2));
    EXPECT_EQ(areas[1]["shape"], "poly");
    EXPECT_EQ(areas[1]["title"], "first: 7");
}

TEST_F(ChartPage, LeadsFromEveryRegionToARowOfTheTable)
{
    m_regions.captions = {kCaption, kCaption};
    for (const HtmlElement& area : page().all("area"))
        EXPECT_TRUE(page().hasId(area["href"].substr(1))) << area["href"];
    EXPECT_EQ(page().all("tr").size(), m_items.size() + 1);
}

TEST_F(ChartPage, EscapesEveryText)
{
    m_title = m_regions.description = kHostile;
    add(3, kHostile);
    m_regions.captions = {kNone, kNone, kCaption};
    EXPECT_EQ(page().error(), "");
    EXPECT_THAT(page().all("script"), SizeIs(0));
    EXPECT_EQ(page().texts("title").at(0), kHostile);
    EXPECT_EQ(page().all("img").at(0)["alt"], kHostile);
    EXPECT_EQ(page().all("area").at(0)["title"], std::string(kHostile) + ": 3");
    EXPECT_EQ(page().texts("bdi").at(2), kHostile);
}

TEST_F(ChartPage, HoldsEverythingItself)
{
    const CHtmlPage page = this->page();
    for (const HtmlElement& element : page.elements()) {
        EXPECT_NE(element.tag, "link");
        EXPECT_THAT(element["href"].substr(0, 1), ::testing::AnyOf("", "#"));
    }
}

TEST_F(ChartPage, IsSoundWithoutItems)
{
    m_items.clear();
    m_regions.captions.clear();
    EXPECT_EQ(page().error(), "");
}

} // namespace
} // namespace tovangl::program
