// SPDX-License-Identifier: MIT
// Charts as data, and what is said about data that is no chart.
#include "common/CFailure.h"
#include "tovangl-chart/chart_description.h"

#include <gmock/gmock.h>
#include <limits>

namespace tovangl::program {
namespace {

using ::testing::Eq;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;
using ::testing::ThrowsMessage;

/// A pie whose items are these.
std::string pieOf(const std::string& items)
{
    return R"({"chart": "pie", "items": [)" + items + "]}";
}

/// A pie without items, with more keys.
std::string pieWith(const std::string& fields)
{
    return R"({"chart": "pie", "items": [], )" + fields + "}";
}

ChartItem onlyItem(const std::string& item)
{
    return parseDescription(pieOf(item)).items.at(0);
}

TEST(ChartDescription, HasTheKindThatItNames)
{
    for (const ChartKind& kind : kChartKinds) {
        const std::string json = R"({"items": [], "chart": ")" + std::string(kind.name) + "\"}";
        EXPECT_EQ(parseDescription(json).kind.bit, kind.bit);
    }
}

TEST(ChartDescription, IsAsLargeAsOtherChartsWhereItSaysNothing)
{
    const ChartDescription chart = parseDescription(pieOf(""));
    EXPECT_EQ(chart.size.width, 800);
    EXPECT_EQ(chart.size.height, 600);
    EXPECT_FALSE(chart.printFactor);
    EXPECT_THAT(chart.id, IsEmpty());
    EXPECT_THAT(chart.settings, IsEmpty());
}

TEST(ChartDescription, HasItsSizeNameAndFactor)
{
    const ChartDescription chart =
        parseDescription(pieWith(R"("width": 1, "height": 1000000, "print": 4, "id": "a-1.b")"));
    EXPECT_EQ(chart.size.width, 1);
    EXPECT_EQ(chart.size.height, 1000000);
    EXPECT_EQ(chart.printFactor, 4);
    EXPECT_EQ(chart.id, "a-1.b");
}

TEST(ChartDescription, CanHaveAnIdOfTheGreatestLength)
{
    const std::string id(kLongestId, 'a');
    EXPECT_EQ(parseDescription(pieWith("\"id\": \"" + id + '"')).id, id);
}

TEST(ChartDescription, HasItsItemsInOrder)
{
    const ChartDescription chart = parseDescription(
        pieOf(R"({"value": 1, "caption": "one"}, {"caption": "tw\u00f6", "value": -2})"));
    ASSERT_THAT(chart.items, SizeIs(2));
    EXPECT_EQ(chart.items[0].caption, "one");
    EXPECT_EQ(chart.items[1].caption, "tw\xc3\xb6");
    EXPECT_EQ(chart.items[1].value, -2);
}

TEST(ChartDescription, TakesEveryWholeNumberOfSixtyFourBits)
{
    EXPECT_EQ(onlyItem(R"({"value": 9223372036854775807})").value,
              std::numeric_limits<long>::max());
    EXPECT_EQ(onlyItem(R"({"value": -9223372036854775808})").value,
              std::numeric_limits<long>::min());
    EXPECT_EQ(onlyItem(R"({"value": 9007199254740993})").value, 9007199254740993);
}

TEST(ChartDescription, HasColorsOfItems)
{
    const ChartDescription chart = parseDescription(
        R"({"chart": "bars", "items": [{"value": 1, "color": "#0aB0ff", "outline": "#010203"}]})");
    ASSERT_TRUE(chart.items.at(0).fill && chart.items[0].outline);
    EXPECT_EQ(chart.items[0].fill->green, 0xb0);
    EXPECT_EQ(chart.items[0].outline->blue, 3);
}

TEST(ChartDescription, HasLinksOfItems)
{
    EXPECT_EQ(onlyItem(R"({"value": 1, "link": "a.html"})").link, "a.html");
    EXPECT_THAT(onlyItem(R"({"value": 1})").link, IsEmpty());
}

TEST(ChartDescription, KeepsSettingsAsTheLibraryReadsThem)
{
    const ChartDescription chart = parseDescription(pieWith(
        R"("bold": true, "threshold": 2.50, "font_size": -3, "title": "A \"b\"", "fast": false)"));
    EXPECT_EQ(givenValue(chart.settings, "bold"), "true");
    EXPECT_EQ(givenValue(chart.settings, "fast"), "false");
    EXPECT_EQ(givenValue(chart.settings, "threshold"), "2.50");
    EXPECT_EQ(givenValue(chart.settings, "font_size"), "-3");
    EXPECT_EQ(givenValue(chart.settings, "title"), "A \"b\"");
}

struct BadDescription
{
    const char* name;
    std::string json;
    std::string message; ///< how it starts
};

void PrintTo(const BadDescription& bad, std::ostream* out)
{
    *out << bad.json.substr(0, 100);
}

class RefusedDescription : public ::testing::TestWithParam<BadDescription>
{};

TEST_P(RefusedDescription, NamesThePlaceAndTheReason)
{
    EXPECT_THAT([] { static_cast<void>(parseDescription(GetParam().json)); },
                ThrowsMessage<CFailure>(StartsWith(GetParam().message)));
}

std::string badName(const ::testing::TestParamInfo<BadDescription>& info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(
    Structure, RefusedDescription,
    ::testing::Values(
        BadDescription{"Nothing", "", "not JSON: wrong at byte "},
        BadDescription{"Word", "pie", "not JSON: wrong at byte 1"},
        BadDescription{"Unfinished", R"({"chart": "pie")", "not JSON: wrong at byte "},
        BadDescription{"Rest", pieOf("") + "x", "not JSON: wrong at byte "},
        BadDescription{"Zero", pieOf("") + std::string(1, '\0'), "byte 30 is zero"},
        BadDescription{"BrokenUtf8", "{\"\xff\": 1}", "byte 3 is not UTF-8"},
        BadDescription{"HalfCharacter", pieWith(R"("title": "\ud800")"), "not JSON: wrong at byte"},
        BadDescription{"Number", "7", "a chart is a JSON object"},
        BadDescription{"List", "[{}]", "a chart is a JSON object"},
        BadDescription{"Deep", std::string(100000, '['), "a chart is a JSON object"},
        BadDescription{"NoChart", R"({"items": []})", "/chart: is missing"},
        BadDescription{"NoItems", R"({"chart": "pie"})", "/items: is missing"},
        BadDescription{"UnknownKey", pieWith(R"("colour": 1)"), "/colour: no chart has such a "},
        BadDescription{"KeyOfPointers", pieWith(R"("a/b~": 1)"), "/a~1b~0: no chart has "},
        BadDescription{"KeyThatControls", pieWith(R"("\u001b[2J": 1)"), "/?[2J: no chart has "},
        BadDescription{"KeyShownWhole", pieWith("\"" + std::string(100, 'k') + "\": 1"),
                       "/" + std::string(100, 'k') + ": no chart has such a setting"},
        BadDescription{"LongKey", pieWith("\"" + std::string(1000000, 'k') + "\": 1"),
                       "/" + std::string(100, 'k') + "...: no chart has such a setting"},
        BadDescription{"TwoKeys", pieWith(R"("width": 1, "width": 1)"),
                       "/width: stands there twic"},
        BadDescription{"TwoLists", pieWith(R"("items": [])"), "/items: stands there twice"},
        BadDescription{"TwoSettings", pieWith(R"("bold": true, "bold": true)"),
                       "/bold: stands there twice"},
        BadDescription{"SettingOfOthers", pieWith(R"("bar_width": 1)"),
                       "/bar_width: pie has no such setting"}),
    badName);

INSTANTIATE_TEST_SUITE_P(
    Values, RefusedDescription,
    ::testing::Values(
        BadDescription{"Kind", R"({"chart": "line"})", "/chart: \"line\" is not pie, bars or hba"},
        BadDescription{"KindType", R"({"chart": 1})", "/chart: 1 is not pie"},
        BadDescription{"NoWidth", pieWith(R"("width": 0)"), "/width: 0 is not a whole number from"},
        BadDescription{"WidthText", pieWith(R"("width": "9")"), "/width: \"9\" is not a whole num"},
        BadDescription{"Height", pieWith(R"("height": 1000001)"), "/height: 1000001 is not a who"},
        BadDescription{"Print", pieWith(R"("print": 1.0)"), "/print: 1.0 is not a whole number fr"},
        BadDescription{"EmptyId", pieWith(R"("id": "")"), "/id: \"\" is not an id"},
        BadDescription{"Parent", pieWith(R"("id": "..")"), "/id: \"..\" is not an id"},
        BadDescription{"Folder", pieWith(R"("id": "a/b")"), "/id: \"a/b\" is not an id"},
        BadDescription{"Hidden", pieWith(R"("id": ".a")"), "/id: \".a\" is not an id"},
        BadDescription{"Option", pieWith(R"("id": "-a")"), "/id: \"-a\" is not an id"},
        BadDescription{"ZeroId", pieWith(R"("id": "a\u0000b")"), "/id: \"a?b\" is not an id"},
        BadDescription{"LongId", pieWith("\"id\": \"" + std::string(201, 'a') + '"'), "/id: \"aa"},
        BadDescription{"IdType", pieWith(R"("id": 7)"), "/id: 7 is not an id"},
        BadDescription{"ItemsType", R"({"chart": "pie", "items": {}})",
                       "/items: an object is not an array of items"},
        BadDescription{"Flag", pieWith(R"("bold": 1)"), "/bold: 1 is not true or false"},
        BadDescription{"Text", pieWith(R"("title": ["a"])"), "/title: an array is not a text"},
        BadDescription{"NullText", pieWith(R"("title": null)"), "/title: null is not a text"},
        BadDescription{"Whole", pieWith(R"("font_size": 11.5)"), "/font_size: 11.5 is not a whole"},
        BadDescription{"RealBeyondAll", pieWith(R"("threshold": 1e999)"),
                       "/threshold: 1e999 is not a number of 64 bits"},
        BadDescription{"Real", pieWith(R"("threshold": "5")"),
                       "/threshold: \"5\" is not a number"}),
    badName);

INSTANTIATE_TEST_SUITE_P(
    Items, RefusedDescription,
    ::testing::Values(
        BadDescription{"Number", pieOf("7"), "/items/0: is not an object"},
        BadDescription{"Pair", pieOf(R"({"value": 1}, [1, "a"])"), "/items/1: is not an object"},
        BadDescription{"NoValue", pieOf(R"({"value": 1}, {"caption": "a"})"),
                       "/items/1: has no value"},
        BadDescription{"Decimals", pieOf(R"({"value": 1.5})"),
                       "/items/0/value: 1.5 is not a whole number of 64 bits"},
        BadDescription{"Exponent", pieOf(R"({"value": 1e3})"),
                       "/items/0/value: 1e3 is not a whole"},
        BadDescription{"BeyondAll", pieOf(R"({"value": -1e999})"),
                       "/items/0/value: -1e999 is not a whole number of 64 bits"},
        BadDescription{"TooGreat", pieOf(R"({"value": 9223372036854775808})"),
                       "/items/0/value: 9223372036854775808 is not a whole number of 64 bits"},
        BadDescription{"TooSmall", pieOf(R"({"value": -9223372036854775809})"),
                       "/items/0/value: -9223372036854775809 is not a whole number of 64 bits"},
        BadDescription{"ValueText", pieOf(R"({"value": "1"})"), "/items/0/value: \"1\" is not a w"},
        BadDescription{"Deep", pieOf("{\"value\": " + std::string(100000, '[')),
                       "/items/0/value: an array is not a whole number"},
        BadDescription{"Caption", pieOf(R"({"value": 1, "caption": 1})"),
                       "/items/0/caption: 1 is not a text"},
        BadDescription{"Link", pieOf(R"({"value": 1, "link": null})"),
                       "/items/0/link: null is not a text"},
        BadDescription{"Color", pieOf(R"({"value": 1, "color": "red"})"),
                       "/items/0/color: \"red\" is not a colour"},
        BadDescription{"UnknownKey", pieOf(R"({"value": 1, "name": "x"})"),
                       "/items/0/name: an item has "},
        BadDescription{"TwoKeys", pieOf(R"({"value": 1, "value": 1})"),
                       "/items/0/value: stands there twice"},
        BadDescription{"OutlineOfNothing",
                       R"({"chart": "bars", "items": [{"value": 1, "outline": "#000000"}]})",
                       "/items/0: has an outline, but no color"},
        BadDescription{"OutlineOfSlice",
                       pieOf(R"({"value": 1, "color": "#000000", "outline": "#000000"})"),
                       "/items/0/outline: slices share"}),
    badName);

} // namespace
} // namespace tovangl::program
