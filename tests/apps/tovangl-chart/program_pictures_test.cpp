// SPDX-License-Identifier: MIT
// The pictures and maps that the program writes.
#include "apps/support/CProgramTest.h"
#include "support/pixels.h"
#include "support/png_decoding.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace tovangl::program {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;
using Json = nlohmann::json;

constexpr const char* kItems =
    "4000 first\n3000 second with a long name\n2000 third\n1000 fourth\n";

class Pictures : public CProgramTest
{
protected:
    /// The picture that the program draws of some items.
    QImage draw(const std::string& arguments, const std::string& items = kItems) const
    {
        folder.write("items", items);
        runWell("tovangl-chart " + arguments + " items -o x.png");
        return decodePng(folder.read("x.png"));
    }
    /// The picture and the map of it.
    std::pair<QImage, Json> drawWithMap(const std::string& arguments,
                                        const std::string& items) const
    {
        folder.write("items", items);
        runWell("tovangl-chart " + arguments + " items -o x.png --map x.json");
        return {decodePng(folder.read("x.png")), Json::parse(folder.read("x.json"))};
    }
};

bool showsColor(const QImage& picture, QRgb color)
{
    return !extentOf(picture, color).isNull();
}

/// The colour so far from the left and the top of a rectangle, as a share of its sides.
QRgb colorIn(const QImage& picture, const Json& rectangle, double share)
{
    const auto at = [&](const char* start, const char* side) {
        return int(rectangle[start].get<double>() + share * rectangle[side].get<double>());
    };
    return picture.pixel(at("x", "width"), at("y", "height"));
}

QRgb middleOf(const QImage& picture, const Json& rectangle)
{
    constexpr double kHalf = 0.5;
    return colorIn(picture, rectangle, kHalf);
}

TEST_F(Pictures, ThePipelineOfTheManualWorks)
{
    runWell("mkdir -p usr/bin usr/lib; echo 1 >usr/bin/a; head -c 9999 /dev/zero >usr/lib/b\n"
            "du -b -d1 usr | tovangl-chart pie -o usr.png --map usr.json");
    EXPECT_FALSE(decodePng(folder.read("usr.png")).isNull());
    const Json map = Json::parse(folder.read("usr.json"));
    ASSERT_EQ(map["items"].size(), 3U);
    EXPECT_EQ(map["items"][2]["caption"], "usr");
}

TEST_F(Pictures, StandardOutputGetsWhatAFileGets)
{
    folder.write("items", kItems);
    runWell("tovangl-chart pie items -o a.png");
    runWell("tovangl-chart pie items >b.png");
    runWell("tovangl-chart pie <items | cat >c.png");
    runWell("tovangl-chart pie -o /dev/stdout - <items >d.png");
    runWell("tovangl-chart pie -o /dev/stdout items | cat >e.png");
    for (const char* name : {"b.png", "c.png", "d.png", "e.png"})
        EXPECT_EQ(folder.read(name), folder.read("a.png")) << name;
}

TEST_F(Pictures, AnOptionWithNothingBehindItsEqualsSignTakesNoOtherForItsValue)
{
    folder.write("items", kItems);
    runWell("tovangl-chart pie --title \"\" --threshold 20 items -o a.png");
    runWell("title=; tovangl-chart pie --title=$title --threshold 20 items -o b.png");
    runWell("tovangl-chart pie --threshold 20 items -o c.png --title=");
    EXPECT_EQ(folder.read("b.png"), folder.read("a.png"));
    EXPECT_EQ(folder.read("c.png"), folder.read("a.png"));
}

TEST_F(Pictures, AFileCanHaveTheNameOfAnOptionBehindTwoHyphens)
{
    folder.write("items", kItems);
    folder.write("--title=", kItems);
    runWell("tovangl-chart pie -o a.png items");
    runWell("tovangl-chart pie -o b.png -- --title=");
    EXPECT_EQ(folder.read("b.png"), folder.read("a.png"));
}

class EveryChart : public Pictures, public ::testing::WithParamInterface<const char*>
{
protected:
    [[nodiscard]] std::string chart() const { return GetParam(); }
};

INSTANTIATE_TEST_SUITE_P(Pictures, EveryChart, ::testing::Values("pie", "bars", "hbars"),
                         [](const auto& info) { return info.param; });

TEST_P(EveryChart, MeasuresWhatItIsAskedFor)
{
    EXPECT_EQ(draw(chart()).size(), QSize(800, 600));
    EXPECT_EQ(draw(chart() + " --size 320x200").size(), QSize(320, 200));
    EXPECT_EQ(draw(chart() + " --size 320x200 --print 3").size(), QSize(960, 600));
}

struct FormatCase
{
    const char* options;
    const char* file;
    const char* beginning; // of what is written
};

constexpr const char* kPng = "\x89PNG\r\n";
constexpr const char* kSvg = "<svg xmlns=";
constexpr const char* kPdf = "%PDF-";

// An option counts more than the name, whose ending counts in upper and lower case.
constexpr FormatCase kFormatCases[] = {{"", "x.png", kPng},
                                       {"", "x.svg", kSvg},
                                       {"", "x.pdf", kPdf},
                                       {"", "x.SVG", kSvg},
                                       {"", "x.PDF", kPdf},
                                       {"", ".svg", kSvg},
                                       {"", "svg", kPng},
                                       {"", "x.gif", kPng},
                                       {"", "x.svg.gz", kPng},
                                       {"--format png", "x", kPng},
                                       {"--format svg", "x", kSvg},
                                       {"--format pdf", "x", kPdf},
                                       {"--format png", "x.svg", kPng},
                                       {"--format svg", "x.pdf", kSvg},
                                       {"--format pdf", "x.png", kPdf},
                                       {"--format pdf --format svg", "x", kSvg}};

TEST_F(Pictures, HaveTheFormatOfTheOptionOrElseOfTheName)
{
    for (const FormatCase& format : kFormatCases) {
        folder.write("items", kItems);
        runWell(std::string("tovangl-chart pie items ") + format.options + " -o " + format.file);
        EXPECT_THAT(folder.read(format.file), StartsWith(format.beginning))
            << format.options << ' ' << format.file;
    }
}

TEST_P(EveryChart, HasTheSameBytesInAFileAndOnStandardOutput)
{
    folder.write("items", kItems);
    for (const char* format : {"png", "svg", "pdf"}) {
        const std::string command = "tovangl-chart " + chart() + " items";
        runWell(command + " -o x." + format);
        EXPECT_EQ(shell(command + " --format " + format).output,
                  folder.read(std::string("x.") + format))
            << format;
    }
}

TEST_P(EveryChart, MapsFourPixelsForEachPointOfPaper)
{
    folder.write("items", kItems);
    const std::string chart = std::string("tovangl-chart ") + GetParam() + " --size 300x200 items ";
    runWell(chart + "-o x.pdf --map paper.json");
    runWell(chart + "-o x.png --map print.json --print 4");
    EXPECT_EQ(folder.read("paper.json"), folder.read("print.json"));
}

TEST_P(EveryChart, MapsTheSameRegionsInShapesAsInPixels)
{
    folder.write("items", kItems);
    for (const char* scale : {"", " --scale 2"}) {
        const std::string command = "tovangl-chart " + chart() + scale + " items -o x";
        runWell(command + ".svg --map shapes.json");
        runWell(command + ".png --map pixels.json");
        EXPECT_EQ(folder.read("shapes.json"), folder.read("pixels.json")) << scale;
    }
}

TEST_P(EveryChart, StandsAsPixelsInThePageBesideItsPaper)
{
    folder.write("items", kItems);
    runWell(std::string("tovangl-chart ") + GetParam() + " items -o x.pdf --map x.html");
    EXPECT_THAT(folder.read("x.pdf"), StartsWith("%PDF-"));
    EXPECT_THAT(folder.read("x.html"), HasSubstr("data:image/png"));
}

// Qt's tables have an order of their own in each process.
TEST_P(EveryChart, HasTheSameBytesFromEveryProcess)
{
    folder.write("items", kItems);
    for (const std::string format : {"png", "svg", "pdf"}) {
        const std::string command = "tovangl-chart " + chart() + " items -o ";
        runWell(command + "a." + format);
        runWell("QT_HASH_SEED=0 " + command + "b." + format);
        EXPECT_EQ(folder.read("a." + format), folder.read("b." + format)) << format;
    }
}

TEST_P(EveryChart, IsDrawnWithoutItems)
{
    EXPECT_EQ(draw(chart(), "").size(), QSize(800, 600));
}

TEST_P(EveryChart, ShowsTheColorsOfTheLines)
{
    const QImage picture = draw(chart(), "5 a\t#12ab34\n4 b\t#fedcba\n");
    EXPECT_TRUE(showsColor(picture, qRgb(0x12, 0xab, 0x34)));
    EXPECT_TRUE(showsColor(picture, qRgb(0xfe, 0xdc, 0xba)));
}

TEST_P(EveryChart, MapsEveryCaption)
{
    const auto [picture, map] = drawWithMap(chart() + " --size 700x500", kItems);
    EXPECT_EQ(map["chart"], chart());
    EXPECT_EQ(map["width"], picture.width());
    EXPECT_EQ(map["height"], picture.height());
    ASSERT_EQ(map["items"].size(), 4U);
    EXPECT_EQ(map["items"][1]["value"], 3000);
    EXPECT_EQ(map["items"][1]["caption"], "second with a long name");
    EXPECT_GT(map["items"][1]["captionRectangle"]["width"], 0);
}

TEST_P(EveryChart, IsDescribedInItsMap)
{
    const Json map = drawWithMap(chart(), kItems).second;
    EXPECT_THAT(map["description"].get<std::string>(), HasSubstr("first"));
}

TEST_P(EveryChart, MapsThePixelsOfTheScaledPicture)
{
    const auto [picture, map] = drawWithMap(chart() + " --scale 2", "5 a\t#ff0000\n");
    EXPECT_EQ(picture.size(), QSize(1600, 1200));
    EXPECT_EQ(map["width"], 1600);
    EXPECT_EQ(map["height"], 1200);
    const Json& shape = map["items"][0][chart() == "pie" ? "slice" : "barRectangle"];
    EXPECT_EQ(colorIn(picture, shape, 0.3),
              qRgb(255, 0, 0)); // beside what a pie draws in its middle
}

TEST_P(EveryChart, MapsItsTitle)
{
    const Json map = drawWithMap(chart() + " --title 'Sales & more'", kItems).second;
    EXPECT_EQ(map["title"], "Sales & more");
    EXPECT_GT(map["titleRectangle"]["width"], 0);
}

TEST_P(EveryChart, MapsTheOthers)
{
    const Json map = drawWithMap(chart() + " --threshold 25 --others Rest", kItems).second;
    ASSERT_EQ(map["items"].size(), 4U);
    EXPECT_EQ(map["others"]["caption"], "Rest");
    EXPECT_EQ(map["others"]["count"], 2);
    EXPECT_EQ(map["others"]["value"], 3000);
    EXPECT_GT(map["others"]["captionRectangle"]["width"], 0);
}

TEST_P(EveryChart, MapsThePixelsOfThePrint)
{
    const auto [picture, map] = drawWithMap(chart() + " --print 2", kItems);
    EXPECT_EQ(map["width"], 1600);
    EXPECT_EQ(map["height"], 1200);
}

class BarCharts : public EveryChart
{};

INSTANTIATE_TEST_SUITE_P(Pictures, BarCharts, ::testing::Values("bars", "hbars"),
                         [](const auto& info) { return info.param; });

TEST_P(BarCharts, MapEveryBarToItsItem)
{
    const auto [picture, map] =
        drawWithMap(chart() + " --threshold 10",
                    "50 a\t#ff0000\t#000000\n1 b\t#00ff00\t#000000\n40 c\t#0000ff\t#000000\n");
    EXPECT_EQ(middleOf(picture, map["items"][0]["barRectangle"]), qRgb(255, 0, 0));
    EXPECT_TRUE(map["items"][1]["barRectangle"].is_null());
    EXPECT_EQ(middleOf(picture, map["items"][2]["barRectangle"]), qRgb(0, 0, 255));
}

TEST_P(BarCharts, OutlineTheirBars)
{
    EXPECT_TRUE(showsColor(draw(chart(), "5 a\t#ffff00\t#123456\n"), qRgb(0x12, 0x34, 0x56)));
}

TEST_F(Pictures, MapsTheSlices)
{
    const auto [picture, map] = drawWithMap("pie", "3 a\t#ff0000\n1 b\t#0000ff\n0 none\n");
    const Json& slice = map["items"][0]["slice"];
    EXPECT_DOUBLE_EQ(slice["span"], 270.0);
    const double centre = slice["x"].get<double>() + slice["width"].get<double>() / 2;
    EXPECT_EQ(picture.pixel(int(centre), slice["y"].get<int>() + 20), qRgb(255, 0, 0));
    EXPECT_TRUE(map["items"][2]["slice"].is_null());
}

struct OptionCase
{
    const char* name;
    const char* chart; // with what the option needs to show
    const char* option;
};

// Names a case where a test is listed.
void PrintTo(const OptionCase& optionCase, std::ostream* stream)
{
    *stream << optionCase.chart << ' ' << optionCase.option;
}

constexpr OptionCase kOptionCases[] = {
    {"Font", "pie", "--font 'DejaVu Sans'"},
    {"FontSize", "pie", "--font-size 16"},
    {"Locale", "hbars", "--locale de_DE"},
    {"Threshold", "pie", "--threshold 15"},
    {"PieBackground", "pie", "--background"},
    {"Bold", "pie", "--bold"},
    {"ShortenLeft", "pie", "--shorten-left"},
    {"WithoutSizes", "pie", "--without-sizes"},
    {"OutlineColor", "pie", "--outline-color '#ff0000'"},
    {"PieTextColor", "pie", "--text-color '#ff0000'"},
    {"LineColor", "pie", "--line-color '#ff0000'"},
    {"BarsBackground", "bars", "--background"},
    {"HbarsBackground", "hbars", "--background"},
    {"CategoryTitle", "bars", "--category-title Words"},
    {"ValueTitle", "bars", "--value-title Words"},
    {"HbarsCategoryTitle", "hbars", "--category-title Words"},
    {"CategoryAxis", "bars", "--category-axis line"},
    {"ValueAxis", "bars", "--value-axis line,labels"},
    {"HbarsCategoryAxis", "hbars", "--category-axis none"},
    {"BarWidth", "bars", "--bar-width 5"},
    {"HbarsBarWidth", "hbars", "--bar-width 5"},
    {"Position", "bars", "--position 80,100"},
    {"HbarsPosition", "hbars", "--position 130,-1"},
    {"BarsTextColor", "bars", "--text-color '#ff0000'"},
    {"HbarsTextColor", "hbars", "--text-color '#ff0000'"},
    {"Theme", "pie", "--theme dark"},
    {"Palette", "bars", "--palette '#ff0000,#00ff00'"},
    {"PaletteOfTheme", "hbars", "--palette dark"},
    {"PictureColor", "hbars", "--picture-color '#ff0000'"},
    {"PlotColor", "bars --background", "--plot-color '#ff0000'"},
    {"BorderColor", "bars --background", "--border-color '#ff0000'"},
    {"BarsOutlineColor", "bars", "--outline-color '#ff0000'"},
    {"AxisColor", "hbars", "--axis-color '#ff0000'"},
    {"AxisTitleColor", "bars --value-title Words", "--axis-title-color '#ff0000'"},
    {"GridColor", "bars", "--grid-color '#ff0000'"},
    {"ValueColor", "hbars", "--value-color '#ff0000'"},
    {"Kilo", "bars", "--kilo 1000"},
    {"Unit", "pie", "--unit bit"},
    {"Title", "pie", "--title Words"},
    {"Others", "bars --threshold 25", "--others Rest"}};

class EveryOption : public Pictures, public ::testing::WithParamInterface<OptionCase>
{};

TEST_P(EveryOption, ShowsInThePicture)
{
    const std::string chart = std::string(GetParam().chart) + " --size 640x480";
    EXPECT_FALSE(draw(chart) == draw(chart + ' ' + GetParam().option));
}

INSTANTIATE_TEST_SUITE_P(Pictures, EveryOption, ::testing::ValuesIn(kOptionCases),
                         [](const auto& info) { return info.param.name; });

TEST_F(Pictures, AreTheSameWhenSavedFastInOtherFiles)
{
    folder.write("items", kItems);
    runWell("tovangl-chart bars items -o small.png");
    runWell("tovangl-chart bars --fast items -o fast.png");
    EXPECT_EQ(decodePng(folder.read("fast.png")), decodePng(folder.read("small.png")));
    EXPECT_NE(folder.read("fast.png"), folder.read("small.png"));
}

TEST_F(Pictures, APieWithoutColourOptionsHasTheDefaultColours)
{
    EXPECT_EQ(draw("pie"), draw("pie --outline-color '#ffffff' --text-color '#000000' "
                                "--line-color '#000000'"));
}

TEST_F(Pictures, AThemeIsAppliedBeforeTheColoursWhateverTheirOrder)
{
    EXPECT_EQ(draw("pie --picture-color '#ff0000' --theme dark"),
              draw("pie --theme dark --picture-color '#ff0000'"));
    EXPECT_EQ(draw("pie --picture-color '#ff0000' --theme dark").pixel(0, 0), qRgb(255, 0, 0));
}

TEST_F(Pictures, OverlapsAreKeptOnRequest)
{
    std::string items;
    for (int i = 0; i < 40; ++i)
        items += "1 slice " + std::to_string(i) + '\n';
    EXPECT_FALSE(draw("pie --size 300x200", items) ==
                 draw("pie --size 300x200 --keep-overlaps", items));
}

TEST_F(Pictures, TheLastOfTwoOptionsCounts)
{
    EXPECT_EQ(draw("pie --size 100x100 --size 200x150").size(), QSize(200, 150));
}

} // namespace
} // namespace tovangl::program
