// SPDX-License-Identifier: MIT
// The pages that the program writes.
#include "apps/support/CHtmlPage.h"
#include "apps/support/shell.h"

#include <QByteArray>
#include <QImage>

#include <gmock/gmock.h>

namespace tovangl::program {
namespace {

using ::testing::EndsWith;
using ::testing::IsEmpty;
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

} // namespace
} // namespace tovangl::program
