// SPDX-License-Identifier: MIT
// The pages that the program writes.
#include "apps/support/CHtmlPage.h"
#include "apps/support/shell.h"

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

using Names = std::set<std::string>;

constexpr const char* kItems = "60 a\t#c81e1e\n40 \"><script>alert(1)</script>\t#1e1ec8\n";
constexpr const char* kAddress = "data:image/png;base64,";

class ProgramPage : public ::testing::TestWithParam<const char*>
{
protected:
    ProgramPage() { m_folder.write("items", kItems); }

    /// Runs a command that must succeed in silence.
    void run(const std::string& arguments) const
    {
        const ShellResult result =
            runShell(m_folder, std::string("tovangl-chart ") + GetParam() + ' ' + arguments);
        EXPECT_EQ(result.status, 0);
        EXPECT_THAT(result.output + result.errors, IsEmpty());
    }
    CHtmlPage page() const { return CHtmlPage(m_folder.read("x.html")); }
    QImage picture() const { return decode(page().all("img").at(0)["src"]); }
    std::string sourceSet() const { return page().all("img").at(0)["srcset"]; }
    static QImage decode(const std::string& source)
    {
        EXPECT_THAT(source, StartsWith(kAddress));
        const std::string text = source.substr(std::string(kAddress).size());
        return QImage::fromData(QByteArray::fromBase64(QByteArray::fromStdString(text)), "PNG");
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
    static std::vector<std::string> textsOf(const CHtmlPage& page, const char* tag)
    {
        std::vector<std::string> texts;
        for (const HtmlElement& element : page.all(tag))
            texts.push_back(element.text);
        return texts;
    }

    CTemporaryFolder m_folder;
};

INSTANTIATE_TEST_SUITE_P(Pages, ProgramPage, ::testing::Values("pie", "bars", "hbars"),
                         [](const auto& info) { return info.param; });

TEST_P(ProgramPage, NeedsNoOtherFile)
{
    run("items --map x.html");
    EXPECT_EQ(m_folder.names(), (Names{"items", "x.html"}));
    EXPECT_EQ(picture().size(), QSize(800, 600));
    EXPECT_EQ(page().error(), "");
}

TEST_P(ProgramPage, ShowsThePictureThatAFileGets)
{
    run("items --map x.html -o x.png");
    EXPECT_EQ(picture(), QImage::fromData(QByteArray::fromStdString(m_folder.read("x.png"))));
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
    EXPECT_EQ(densePicture("2x"),
              QImage::fromData(QByteArray::fromStdString(m_folder.read("x.png"))));
}

TEST_P(ProgramPage, ShowsAScaledChartInThePixelsOfItsSize)
{
    run("items --map x.html");
    const std::string coordinates = page().all("area").at(3)["coords"];
    run("items --map x.html --scale 3 -o x.png");
    EXPECT_EQ(picture().size(), QSize(800, 600));
    EXPECT_EQ(page().all("img").at(0)["width"], "800");
    EXPECT_EQ(page().all("area").at(3)["coords"], coordinates);
    EXPECT_EQ(densePicture("3x"),
              QImage::fromData(QByteArray::fromStdString(m_folder.read("x.png"))));
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
    EXPECT_EQ(page().all("bdi").at(2).text, "Rest");
}

TEST_P(ProgramPage, HasTheNameOfTheFileAsItsTitle)
{
    run("items --map '<b>&.html'");
    const CHtmlPage page(m_folder.read("<b>&.html"));
    EXPECT_EQ(page.error(), "");
    EXPECT_EQ(page.all("h1").at(0).text, "<b>&");
}

TEST_P(ProgramPage, HasTheTitleOfTheChartAsItsTitle)
{
    run("items --map x.html --title '<b>Sales & more'");
    EXPECT_EQ(page().error(), "");
    EXPECT_EQ(page().all("h1").at(0).text, "<b>Sales & more");
    EXPECT_EQ(page().all("title").at(0).text, "<b>Sales & more");
}

TEST_P(ProgramPage, HoldsThePictureAsSvgWhereAskedFor)
{
    run("items --map x.html --svg");
    EXPECT_EQ(m_folder.names(), (Names{"items", "x.html"}));
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
    EXPECT_THAT(textsOf(page(), "title"), Contains("a: 60"));
}

TEST_P(ProgramPage, LinksTheOthersOfAnSvgPictureToTheirRow)
{
    run("items --map x.html --svg --threshold 50 --others Rest");
    EXPECT_THAT(links(), ElementsAre("#item-1", "#item-3"));
    EXPECT_EQ(page().all("bdi").at(2).text, "Rest");
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
    const auto cells = textsOf(page(), "td");
    const auto names = textsOf(page(), "bdi");
    run("items --map x.html --svg");
    EXPECT_EQ(textsOf(page(), "td"), cells);
    EXPECT_EQ(textsOf(page(), "bdi"), names);
}

TEST_P(ProgramPage, HoldsThePictureOfAnSvgFileButItsLinks)
{
    run("items --map x.html --svg -o x.svg");
    EXPECT_THAT(m_folder.read("x.svg"), Not(HasSubstr("href")));
    const CHtmlPage picture("<!DOCTYPE html>\n" + m_folder.read("x.svg"));
    EXPECT_EQ(textsOf(picture, "text"), textsOf(page(), "text"));
    EXPECT_EQ(picture.all("desc").at(0).text, page().all("desc").at(0).text);
}

TEST_P(ProgramPage, ShowsAnSvgPictureInThePixelsOfItsSizeWhateverTheScaleOfItsFile)
{
    run("items --map x.html --svg --scale 2 -o x.svg");
    EXPECT_EQ(page().all("svg").at(0)["width"], "800");
    EXPECT_THAT(m_folder.read("x.svg"), HasSubstr(" width=\"1600\""));
}

TEST_P(ProgramPage, IsDarkOnDarkDisplaysWhereItsPictureIs)
{
    const auto styleOfPage = [this] { return page().all("style").at(0).text; };
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
    EXPECT_FALSE(QImage::fromData(QByteArray::fromStdString(m_folder.read("x.png"))).isNull());
    EXPECT_EQ(page().all("svg").size(), 1U);
    run("items --map x.html --svg -o x.pdf");
    EXPECT_THAT(m_folder.read("x.pdf"), StartsWith("%PDF-"));
}

TEST_P(ProgramPage, EscapesHostileTextsInAnSvgPicture)
{
    constexpr const char* kHostile = "</title></svg><script>alert(1)</script>&amp;\"'";
    m_folder.write("items", "60 " + std::string(kHostile) + "\n40 <img src=x onerror=alert(1)>\n");
    m_folder.write("title", kHostile);
    run("items --svg --map '\"><script>.html' --title \"$(cat title)\" --font \"$(cat title)\" "
        "2>/dev/null");
    const CHtmlPage page(m_folder.read("\"><script>.html"));
    EXPECT_EQ(page.error(), "");
    EXPECT_THAT(page.all("script"), IsEmpty());
    EXPECT_THAT(page.all("img"), IsEmpty());
    EXPECT_EQ(page.all("svg").size(), 1U);
    EXPECT_EQ(page.all("h1").at(0).text, kHostile);
}

} // namespace
} // namespace tovangl::program
