// SPDX-License-Identifier: MIT
// The pages that the program writes.
#include "apps/support/CHtmlPage.h"
#include "apps/support/CProgramTest.h"
#include "support/png_decoding.h"

#include <QByteArray>
#include <QImage>

#include <gmock/gmock.h>

namespace tovangl::program {
namespace {

using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

constexpr const char* kItems = "60 a\t#c81e1e\n40 \"><script>alert(1)</script>\t#1e1ec8\n";
constexpr const char* kAddress = "data:image/png;base64,";

class ProgramPage : public CProgramTest, public ::testing::WithParamInterface<const char*>
{
protected:
    ProgramPage() { folder.write("items", kItems); }

    /// Runs the command of the chart, which must succeed in silence.
    void run(const std::string& arguments) const
    {
        runWell(std::string("tovangl-chart ") + GetParam() + ' ' + arguments);
    }
    CHtmlPage page() const { return CHtmlPage(folder.read("x.html")); }
    QImage picture() const { return decode(page().all("img").at(0)["src"]); }
    std::string sourceSet() const { return page().all("img").at(0)["srcset"]; }
    static QImage decode(const std::string& source)
    {
        EXPECT_THAT(source, StartsWith(kAddress));
        const std::string text = source.substr(std::string(kAddress).size());
        return decodePng(QByteArray::fromBase64(QByteArray::fromStdString(text)).toStdString());
    }
    /// The picture for dense displays, which the set of sources ends with.
    QImage densePicture(const std::string& density) const
    {
        EXPECT_THAT(sourceSet(), EndsWith(' ' + density));
        return decode(sourceSet().substr(0, sourceSet().find(' ')));
    }

    /// What the links of an SVG picture's items lead to.
    std::vector<std::string> links() const
    {
        std::vector<std::string> links;
        for (const HtmlElement& link : page().all("a"))
            links.push_back(link["href"]);
        return links;
    }
};

INSTANTIATE_TEST_SUITE_P(Pages, ProgramPage, ::testing::Values("pie", "bars", "hbars"),
                         [](const auto& info) { return info.param; });

TEST_P(ProgramPage, NeedsNoOtherFile)
{
    run("items --map x.html");
    EXPECT_EQ(folder.names(), (Names{"items", "x.html"}));
    EXPECT_EQ(picture().size(), QSize(800, 600));
    EXPECT_EQ(page().error(), "");
}

TEST_P(ProgramPage, ShowsThePictureThatAFileGets)
{
    run("items --map x.html -o x.png");
    EXPECT_EQ(picture(), decodePng(folder.read("x.png")));
}

TEST_P(ProgramPage, MapsACaptionAndAShapeOfEveryItem)
{
    run("items --map x.html");
    const auto areas = page().all("area");
    ASSERT_EQ(areas.size(), 4U);
    EXPECT_EQ(areas[0]["title"], "a: 60");
    EXPECT_EQ(areas[1]["title"], "\"><script>alert(1)</script>: 40");
    EXPECT_EQ(areas[3]["href"], "#item-2");
    EXPECT_THAT(page().all("script"), IsEmpty());
}

TEST_P(ProgramPage, IsCrispOnDenseDisplays)
{
    run("items --map x.html --size 400x300");
    EXPECT_EQ(densePicture("2x").size(), QSize(800, 600));
    run("items -o x.png --size 400x300 --scale 2");
    EXPECT_EQ(densePicture("2x"), decodePng(folder.read("x.png")));
}

TEST_P(ProgramPage, ShowsAScaledChartInThePixelsOfItsSize)
{
    run("items --map x.html");
    const std::string coordinates = page().all("area").at(3)["coords"];
    run("items --map x.html --scale 3 -o x.png");
    EXPECT_EQ(picture().size(), QSize(800, 600));
    EXPECT_EQ(page().all("img").at(0)["width"], "800");
    EXPECT_EQ(page().all("area").at(3)["coords"], coordinates);
    EXPECT_EQ(densePicture("3x"), decodePng(folder.read("x.png")));
}

TEST_P(ProgramPage, HasOnePictureAtScaleOneAndInPrint)
{
    for (const char* option : {"--scale 1", "--print 2", "--print 2 --scale 2"}) {
        run(std::string("items --map x.html ") + option);
        EXPECT_THAT(sourceSet(), IsEmpty()) << option;
    }
}

TEST_P(ProgramPage, ShowsAPrintInItsOwnPixels)
{
    run("items --map x.html --print 2");
    EXPECT_EQ(page().all("img").at(0)["width"], "1600");
    EXPECT_EQ(picture().width(), 1600);
}

TEST_P(ProgramPage, LeadsFromTheOthersToTheirRow)
{
    run("items --map x.html --threshold 50 --others Rest");
    const auto areas = page().all("area");
    ASSERT_EQ(areas.size(), 4U);
    EXPECT_EQ(areas[3]["title"], "Rest: 40");
    EXPECT_EQ(areas[3]["href"], "#item-3");
    EXPECT_EQ(page().texts("bdi").at(2), "Rest");
}

TEST_P(ProgramPage, HasTheNameOfTheFileAsItsTitle)
{
    run("items --map '<b>&.html'");
    const CHtmlPage page(folder.read("<b>&.html"));
    EXPECT_EQ(page.error(), "");
    EXPECT_EQ(page.texts("h1").at(0), "<b>&");
}

TEST_P(ProgramPage, HasTheTitleOfTheChartAsItsTitle)
{
    run("items --map x.html --title '<b>Sales & more'");
    EXPECT_EQ(page().error(), "");
    EXPECT_EQ(page().texts("h1").at(0), "<b>Sales & more");
    EXPECT_EQ(page().texts("title").at(0), "<b>Sales & more");
}

TEST_P(ProgramPage, HoldsThePictureAsSvgWhereAskedFor)
{
    run("items --map x.html --svg");
    EXPECT_EQ(folder.names(), (Names{"items", "x.html"}));
    EXPECT_EQ(page().error(), "");
    EXPECT_EQ(page().all("svg").at(0)["width"], "800");
    EXPECT_THAT(page().all("img"), IsEmpty());
    EXPECT_THAT(page().all("area"), IsEmpty());
}

TEST_P(ProgramPage, LinksTheItemsOfAnSvgPictureToTheirRows)
{
    run("items --map x.html --svg");
    EXPECT_THAT(links(), ElementsAre("#item-1", "#item-2"));
    EXPECT_TRUE(page().hasId("item-1"));
    EXPECT_TRUE(page().hasId("item-2"));
    EXPECT_THAT(page().texts("title"), Contains("a: 60"));
}

TEST_P(ProgramPage, LinksTheOthersOfAnSvgPictureToTheirRow)
{
    run("items --map x.html --svg --threshold 50 --others Rest");
    EXPECT_THAT(links(), ElementsAre("#item-1", "#item-3"));
    EXPECT_EQ(page().texts("bdi").at(2), "Rest");
}

TEST_P(ProgramPage, LeadsFromTheOthersToTheAddressThatTheyAreGiven)
{
    const std::string others = " --threshold 50 --others Rest --others-link 'rest.html?a&b'";
    run("items --map x.html" + others);
    EXPECT_EQ(page().all("area").back()["href"], "rest.html?a&b");
    run("items --map x.html --svg" + others);
    EXPECT_THAT(links(), ElementsAre("#item-1", "rest.html?a&b"));
}

TEST_P(ProgramPage, HasTheSameTableWithEitherPicture)
{
    run("items --map x.html");
    const auto cells = page().texts("td");
    const auto names = page().texts("bdi");
    run("items --map x.html --svg");
    EXPECT_EQ(page().texts("td"), cells);
    EXPECT_EQ(page().texts("bdi"), names);
}

TEST_P(ProgramPage, HoldsThePictureOfAnSvgFileButItsLinks)
{
    run("items --map x.html --svg -o x.svg");
    EXPECT_THAT(folder.read("x.svg"), Not(HasSubstr("href")));
    const CHtmlPage picture("<!DOCTYPE html>\n" + folder.read("x.svg"));
    EXPECT_EQ(picture.texts("text"), page().texts("text"));
    EXPECT_EQ(picture.texts("desc").at(0), page().texts("desc").at(0));
}

TEST_P(ProgramPage, ShowsAnSvgPictureInThePixelsOfItsSizeWhateverTheScaleOfItsFile)
{
    run("items --map x.html --svg --scale 2 -o x.svg");
    EXPECT_EQ(page().all("svg").at(0)["width"], "800");
    EXPECT_THAT(folder.read("x.svg"), HasSubstr(" width=\"1600\""));
}

TEST_P(ProgramPage, IsDarkOnDarkDisplaysWhereItsPictureIs)
{
    const auto styleOfPage = [this] { return page().texts("style").at(0); };
    run("items --map x.html --svg --follow-display");
    EXPECT_THAT(styleOfPage(), HasSubstr("prefers-color-scheme: dark"));
    for (const char* options : {"--svg", "--follow-display"}) {
        run(std::string("items --map x.html ") + options);
        EXPECT_THAT(styleOfPage(), Not(HasSubstr("prefers-color-scheme"))) << options;
    }
}

TEST_P(ProgramPage, StandsBesideAPictureOfAnyFormat)
{
    run("items --map x.html --svg -o x.png");
    EXPECT_FALSE(decodePng(folder.read("x.png")).isNull());
    EXPECT_EQ(page().all("svg").size(), 1U);
    run("items --map x.html --svg -o x.pdf");
    EXPECT_THAT(folder.read("x.pdf"), StartsWith("%PDF-"));
}

TEST_P(ProgramPage, EscapesHostileTextsInAnSvgPicture)
{
    constexpr const char* kHostile = "</title></svg><script>alert(1)</script>&amp;\"'";
    folder.write("items", "60 " + std::string(kHostile) + "\n40 <img src=x onerror=alert(1)>\n");
    folder.write("title", kHostile);
    run("items --svg --map '\"><script>.html' --title \"$(cat title)\" --font \"$(cat title)\" "
        "2>/dev/null");
    const CHtmlPage page(folder.read("\"><script>.html"));
    EXPECT_EQ(page.error(), "");
    EXPECT_THAT(page.all("script"), IsEmpty());
    EXPECT_THAT(page.all("img"), IsEmpty());
    EXPECT_EQ(page.all("svg").size(), 1U);
    EXPECT_EQ(page.texts("h1").at(0), kHostile);
}

} // namespace
} // namespace tovangl::program
