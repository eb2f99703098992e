// SPDX-License-Identifier: MIT
#include "common/text_checks.h"

#include <gtest/gtest.h>

namespace tovangl::program {
namespace {

constexpr std::size_t kSound = std::string_view::npos;

struct Utf8Case
{
    const char* name;
    std::string_view text;
    std::size_t broken;
};

void PrintTo(const Utf8Case& utf8, std::ostream* stream)
{
    *stream << utf8.name;
}

class Utf8 : public ::testing::TestWithParam<Utf8Case>
{};

TEST_P(Utf8, TheFirstBrokenByteIsFound)
{
    EXPECT_EQ(findBrokenUtf8(GetParam().text), GetParam().broken);
}

INSTANTIATE_TEST_SUITE_P(
    TextChecks, Utf8,
    ::testing::Values(
        Utf8Case{"Empty", "", kSound}, Utf8Case{"Ascii", "plain", kSound},
        Utf8Case{"Nul", std::string_view("a\0b", 3), kSound},
        Utf8Case{"TwoBytes", "\xc3\xa9", kSound}, Utf8Case{"ThreeBytes", "\xe6\xbc\xa2", kSound},
        Utf8Case{"FourBytes", "\xf0\x9f\x98\x80", kSound},
        Utf8Case{"LastCharacter", "\xf4\x8f\xbf\xbf", kSound},
        Utf8Case{"BeyondTheLast", "\xf4\x90\x80\x80", 0}, Utf8Case{"LoneContinuation", "ab\x80", 2},
        Utf8Case{"CutShort", "ab\xe6\xbc", 2}, Utf8Case{"BrokenInTheMiddle", "\xf0\x9f\x28\x80", 0},
        Utf8Case{"OverlongTwo", "\xc0\x80", 0}, Utf8Case{"OverlongThree", "\xe0\x80\x80", 0},
        Utf8Case{"OverlongFour", "\xf0\x80\x80\x80", 0}, Utf8Case{"Surrogate", "\xed\xa0\x80", 0},
        Utf8Case{"NoByte", "\xff", 0}, Utf8Case{"Latin1", "caf\xe9 x", 3}),
    [](const auto& info) { return info.param.name; });

TEST(TextChecks, ControlsAndBrokenBytesAreNotPrinted)
{
    EXPECT_EQ(makePrintable("a\x1b[2J\nb\x7f\xff\xc2\x9b"
                            "c"),
              "a?[2J?b???c");
}

TEST(TextChecks, OtherScriptsArePrinted)
{
    EXPECT_EQ(makePrintable("caf\xc3\xa9 \xe6\xbc\xa2"), "caf\xc3\xa9 \xe6\xbc\xa2");
}

TEST(TextChecks, AShortQuotationIsWhole)
{
    EXPECT_EQ(quote("abc"), "\"abc\"");
}

TEST(TextChecks, ALongQuotationIsCut)
{
    EXPECT_EQ(quote(std::string(100, 'x')), '"' + std::string(40, 'x') + "...\"");
}

TEST(TextChecks, AQuotationIsNotCutInsideACharacter)
{
    std::string text(39, 'x');
    text += "\xe6\xbc\xa2";
    EXPECT_EQ(quote(text + "more"), '"' + text + "...\"");
}

} // namespace
} // namespace tovangl::program
