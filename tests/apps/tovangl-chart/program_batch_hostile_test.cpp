// SPDX-License-Identifier: MIT
// Lines that mean harm: each costs itself and little time, and leads to one answer.
#include "apps/support/CProgramTest.h"
#include "apps/support/batch_lines.h"

#include <functional>
#include <gmock/gmock.h>

namespace tovangl::program {
namespace {

using ::testing::HasSubstr;

constexpr std::size_t kMillion = 1000000;
constexpr std::size_t kLongestRecord = 1000; // bytes

std::string repeat(const std::string& piece, std::size_t count)
{
    std::string text;
    text.reserve(piece.size() * count);
    for (std::size_t i = 0; i < count; ++i)
        text += piece;
    return text;
}

/// A pie with the id "x", without items, and with more keys.
std::string pieWith(const std::string& fields)
{
    return R"({"chart": "pie", "id": "x", "width": 60, "height": 40, "items": [], )" + fields + '}';
}

std::string pieOf(const std::string& items)
{
    return R"({"chart": "pie", "id": "x", "width": 60, "height": 40, "items": [)" + items + "]}";
}

struct HostileLine
{
    const char* name;
    std::function<std::string()> line; ///< made where it is needed: some are long
    const char* answer;                ///< how the reason starts; empty where there is a picture
};

void PrintTo(const HostileLine& line, std::ostream* out)
{
    *out << line.name;
}

class HostileBatch : public CProgramTest, public ::testing::WithParamInterface<HostileLine>
{};

TEST_P(HostileBatch, AnswersTheLineInTimeAndGoesOn)
{
    folder.write("lines", GetParam().line() + '\n' + chartLine("last"));
    const ShellResult result = shell("timeout 60 tovangl-chart batch lines -o p");
    EXPECT_LE(result.errors.size(), kLongestRecord);
    if (*GetParam().answer) {
        EXPECT_EQ(result.status, 1);
        EXPECT_THAT(result.errors, HasSubstr(std::string("\"reason\":\"") + GetParam().answer));
        EXPECT_EQ(folder.names("p"), Names{"last.png"});
    } else {
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(folder.names("p"), (Names{"last.png", "x.png"}));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Structure, HostileBatch,
    ::testing::Values(
        HostileLine{"Brackets", [] { return repeat("[", 10 * kMillion); }, "a chart is a JSON "},
        HostileLine{"Braces", [] { return repeat("{\"chart\":", kMillion); }, "/chart: an object "},
        HostileLine{"NestedItems", [] { return pieOf(repeat("[", kMillion)); },
                    "/items/0: is not an object"},
        HostileLine{"Keys", [] { return '{' + repeat("\"title\":\"\",", kMillion); },
                    "/title: stands there twice"},
        HostileLine{"LongKey", [] { return pieWith("\"" + repeat("k", 10 * kMillion) + "\": 1"); },
                    "/kkkk"},
        HostileLine{"LongItemKey",
                    [] { return pieOf("{\"" + repeat("k", 10 * kMillion) + "\": 1}"); },
                    "/items/0/kkkk"},
        HostileLine{"Spaces", [] { return repeat(" ", 10 * kMillion) + pieOf(""); }, ""},
        HostileLine{"LongRest", [] { return pieOf("") + repeat(" {}", kMillion); }, "not JSON: "},
        HostileLine{"ByteOrderMark", [] { return "\xef\xbb\xbf" + pieOf(""); }, ""},
        HostileLine{"TwoByteLetters", [] { return std::string("\xff\xfe{\0}\0", 6); },
                    "byte 4 is zero"},
        HostileLine{"Comment", [] { return pieOf("/* none */"); }, "not JSON: "}),
    [](const auto& info) { return info.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Values, HostileBatch,
    ::testing::Values(
        HostileLine{"LongNumber",
                    [] { return pieOf("{\"value\": " + repeat("9", 5 * kMillion) + "}"); },
                    "/items/0/value: 9999"},
        HostileLine{"ManyDecimals",
                    [] { return pieOf("{\"value\": 0." + repeat("9", 5 * kMillion) + "}"); },
                    "/items/0/value: 0.9999"},
        HostileLine{"LongText",
                    [] { return pieWith("\"title\": \"" + repeat("t", kMillion) + '"'); }, ""},
        HostileLine{"LongColor",
                    [] { return pieWith("\"text_color\": \"" + repeat("#", kMillion) + '"'); },
                    "/text_color: \\\"####"},
        HostileLine{"LongPalette",
                    [] { return pieWith("\"palette\": \"" + repeat("#102030,", kMillion) + '"'); },
                    "/palette: "},
        HostileLine{"ZeroInACaption",
                    [] { return pieOf(R"({"value": 1, "caption": "a\u0000b\u001b[2J"})"); }, ""},
        HostileLine{
            "LongLink",
            [] { return pieOf("{\"value\": 1, \"link\": \"" + repeat("x", kMillion) + "\"}"); },
            "/items/0/link: \\\"xxxx"},
        HostileLine{"LinkOfAScript",
                    [] { return pieOf(R"({"value": 1, "link": " \njavascript:x"})"); },
                    "/items/0/link: "},
        HostileLine{"ManyLinks",
                    [] {
                        const std::string item = R"({"value":1,"link":"#x"})";
                        return pieOf(repeat(item + ',', kMillion / 10) + item);
                    },
                    ""},
        HostileLine{"ManyItems",
                    [] { return pieOf(repeat("{\"value\":1},", kMillion / 10) + "{\"value\":1}"); },
                    ""},
        HostileLine{"GreatestValues",
                    [] {
                        const std::string item = "{\"value\": 9223372036854775807}";
                        return pieOf(item + ',' + item + ",{\"value\": -9223372036854775808}");
                    },
                    ""},
        HostileLine{"Size",
                    [] {
                        return R"({"chart": "pie", "items": [], "id": "x", "width": 1000000,)"
                               R"( "height": 1000000})";
                    },
                    "no picture: "},
        HostileLine{"Print", [] { return pieWith("\"print\": 1000000"); }, "no picture: "}),
    [](const auto& info) { return info.param.name; });

} // namespace
} // namespace tovangl::program
