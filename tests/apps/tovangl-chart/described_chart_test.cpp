// SPDX-License-Identifier: MIT
// Charts that are drawn from data.
#include "common/CFailure.h"
#include "tovangl-chart/described_chart.h"
#include <tovangl/PieGraph.h>

#include <gmock/gmock.h>

namespace tovangl::program {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;
using ::testing::StartsWith;
using ::testing::ThrowsMessage;

DrawnChart drawn(const std::string& json, PictureFormat format = PictureFormat::Png)
{
    return drawDescription(parseDescription(json), {format});
}

TEST(DescribedChart, IsThePictureOfTheLibrary)
{
    PieGraph chart(false);
    chart.setThreshold(5);
    chart.addItem(3, "three");
    chart.addItem(2, "two", {1, 2, 3});
    unsigned char* bytes = nullptr;
    int size = 0;
    chart.createPixmap(300, 200, &bytes, &size);
    const std::string expected(reinterpret_cast<const char*>(bytes),
                               static_cast<std::size_t>(size));
    EXPECT_EQ(drawn(R"({"chart": "pie", "width": 300, "height": 200, "threshold": 5, "items": [
                        {"value": 3, "caption": "three"},
                        {"value": 2, "caption": "two", "color": "#010203"}]})")
                  .picture,
              expected);
}

TEST(DescribedChart, TellsTheRegionsOfItsKind)
{
    const DrawnChart pie = drawn(R"({"chart": "pie", "items": [{"value": 1}]})");
    ASSERT_TRUE(pie.regions->slices && !pie.regions->bars);
    EXPECT_THAT(*pie.regions->slices, SizeIs(1));
    const DrawnChart bars = drawn(R"({"chart": "hbars", "items": [{"value": 1}, {"value": 2}]})");
    ASSERT_TRUE(bars.regions->bars && !bars.regions->slices);
    EXPECT_THAT(*bars.regions->bars, SizeIs(2));
    EXPECT_THAT(bars.regions->description, StartsWith("Horizontal bar chart, 2 of 2"));
}

TEST(DescribedChart, TellsRegionsWhereTheyAreWanted)
{
    const ChartDescription pie = parseDescription(R"({"chart": "pie", "items": [{"value": 1}]})");
    const DrawnChart bare = drawDescription(pie, {PictureFormat::Png, "", false});
    EXPECT_FALSE(bare.regions);
    EXPECT_EQ(bare.picture, drawDescription(pie, {}).picture);
}

TEST(DescribedChart, IsMeasuredInPixelsOfThePicture)
{
    const DrawnChart scaled =
        drawn(R"({"chart": "bars", "width": 300, "height": 200, "scale": 2, "items": []})");
    EXPECT_EQ(scaled.regions->size.width, 600);
    const DrawnChart printed = drawn(
        R"({"chart": "bars", "width": 300, "height": 200, "scale": 2, "print": 3, "items": []})");
    EXPECT_EQ(printed.regions->size.height, 600);
}

TEST(DescribedChart, IsMeasuredInPixelsOfItsFormat)
{
    constexpr const char* kChart = R"({"chart": "bars", "width": 300, "height": 200, "scale": 2,
                                       "print": 3, "items": []})";
    EXPECT_EQ(drawn(kChart, PictureFormat::Png).regions->size.width, 900);
    EXPECT_EQ(drawn(kChart, PictureFormat::Svg).regions->size.width, 600);
    EXPECT_EQ(drawn(kChart, PictureFormat::Pdf).regions->size.width, 1200);
}

TEST(DescribedChart, HasTheFormatThatIsAskedFor)
{
    constexpr const char* kChart = R"({"chart": "pie", "items": [{"value": 1, "caption": "x"}]})";
    EXPECT_THAT(drawn(kChart, PictureFormat::Png).picture, StartsWith("\x89PNG"));
    EXPECT_THAT(drawn(kChart, PictureFormat::Svg).picture, StartsWith("<svg "));
    EXPECT_THAT(drawn(kChart, PictureFormat::Pdf).picture, StartsWith("%PDF-"));
}

TEST(DescribedChart, LeadsFromItsItemsToTheirLinks)
{
    const std::string svg = drawn(R"({"chart": "pie", "items": [
        {"value": 1, "link": "https://example.org/?a=1&b=2"},
        {"value": 2, "link": ""},
        {"value": 3, "link": "#three"}]})",
                                  PictureFormat::Svg)
                                .picture;
    EXPECT_THAT(svg, HasSubstr("href=\"https://example.org/?a=1&amp;b=2\""));
    EXPECT_THAT(svg, HasSubstr("href=\"#three\""));
    EXPECT_THAT(svg, Not(HasSubstr("href=\"\"")));
}

TEST(DescribedChart, LeadsFromItsOthersToTheirLink)
{
    const DrawnChart pie = drawn(R"({"chart": "pie", "threshold": 50, "others": "rest",
        "others_link": "rest.html?a&b", "items": [{"value": 3}, {"value": 1}]})",
                                 PictureFormat::Svg);
    EXPECT_THAT(pie.picture, HasSubstr("href=\"rest.html?a&amp;b\""));
    EXPECT_EQ(pie.regions->others->link, "rest.html?a&b");
}

TEST(DescribedChart, NamesTheItemWhoseLinkIsRefused)
{
    for (const char* link : {"javascript:alert(1)", "//example.org", "a b", "a\\u0000b"}) {
        const std::string chart =
            R"({"chart": "bars", "items": [{"value": 1}, {"value": 1, "link": ")" +
            std::string(link) + "\"}]}";
        EXPECT_THAT([&] { drawn(chart); }, ThrowsMessage<CFailure>(StartsWith("/items/1/link: \"")))
            << link;
    }
}

TEST(DescribedChart, AppliesAThemeBeforeTheColorsBesideIt)
{
    constexpr const char* kItems = R"("chart": "pie", "items": [{"value": 1, "caption": "x"}])";
    const auto chart = [&](const char* fields) {
        return drawn(std::string("{") + kItems + ", " + fields + "}").picture;
    };
    EXPECT_EQ(chart(R"("text_color": "#ff0000", "theme": "dark")"),
              chart(R"("theme": "dark", "text_color": "#ff0000")"));
    EXPECT_NE(chart(R"("theme": "dark")"), chart(R"("theme": "dark", "text_color": "#ff0000")"));
}

TEST(DescribedChart, IsInTheFamilyGivenUnlessItNamesOne)
{
    constexpr const char* kUnnamed = R"({"chart": "pie", "items": [{"value": 1, "caption": "x"}]})";
    constexpr const char* kNamed = R"({"chart": "pie", "font": "DejaVu Serif",
                                       "items": [{"value": 1, "caption": "x"}]})";
    const auto inFamily = [](const char* json, const char* family) {
        return drawDescription(parseDescription(json), {PictureFormat::Png, family}).picture;
    };
    EXPECT_EQ(inFamily(kUnnamed, "DejaVu Serif"), drawn(kNamed).picture);
    EXPECT_EQ(inFamily(kNamed, "DejaVu Sans Mono"), drawn(kNamed).picture);
}

TEST(DescribedChart, NamesTheSettingWhoseValueIsRefused)
{
    EXPECT_THAT(
        [] { drawn(R"({"chart": "pie", "items": [], "text_color": "red"})"); },
        ThrowsMessage<CFailure>(StartsWith("/text_color: \"red\" is not a colour such as")));
    EXPECT_THAT([] { drawn(R"({"chart": "pie", "items": [], "scale": 0})"); },
                ThrowsMessage<CFailure>(StartsWith("/scale: \"0\" is not a whole number from 1")));
}

TEST(DescribedChart, RefusesAScriptAsTheLinkOfTheOthers)
{
    EXPECT_THAT([] { drawn(R"({"chart": "pie", "items": [], "others_link": "javascript:x"})"); },
                ThrowsMessage<CFailure>(
                    StartsWith("/others_link: \"javascript:x\" is not an address of http:")));
}

TEST(DescribedChart, ThatIsTooLargeIsAFailure)
{
    EXPECT_THAT(
        [] { drawn(R"({"chart": "pie", "items": [], "width": 1000000, "height": 1000000})"); },
        ThrowsMessage<CFailure>(HasSubstr("no picture: ")));
}

TEST(DescribedChart, TellsAPictureWithoutRoom)
{
    EXPECT_THAT(
        drawn(R"({"chart": "pie", "items": [{"value": 1}], "width": 5, "height": 5})").problem,
        HasSubstr("no room"));
    EXPECT_THAT(drawn(R"({"chart": "pie", "items": [{"value": 1}]})").problem, IsEmpty());
}

} // namespace
} // namespace tovangl::program
