// SPDX-License-Identifier: MIT
#include "common/html_text.h"
#include "common/text_checks.h"

#include <gtest/gtest.h>
#include <random>

namespace tovangl::program {
namespace {

TEST(EscapeHtml, ReplacesWhatMeansSomething)
{
    EXPECT_EQ(escapeHtml("\"><script>"), "&quot;&gt;&lt;script&gt;");
    EXPECT_EQ(escapeHtml("a & 'b'"), "a &amp; &#39;b&#39;");
    EXPECT_EQ(escapeHtml("&lt;"), "&amp;lt;");
}

TEST(EscapeHtml, LeavesOtherTextAlone)
{
    EXPECT_EQ(escapeHtml(""), "");
    EXPECT_EQ(escapeHtml("Größe/日本 100 %"), "Größe/日本 100 %");
}

TEST(HtmlAttribute, EscapesItsValue)
{
    EXPECT_EQ(htmlAttribute("alt", "a \"b\""), " alt=\"a &quot;b&quot;\"");
}

TEST(DisplayName, KeepsReadableNames)
{
    EXPECT_EQ(displayName("Größe <1> \\x \"日本\".txt"), "Größe <1> \\x \"日本\".txt");
}

TEST(DisplayName, ShowsControlCharactersAsPictures)
{
    EXPECT_EQ(displayName("a\nb\t\x1b\x7f"), "a␊b␉␛␡");
    EXPECT_EQ(displayName(std::string(1, '\0')), "␀");
    EXPECT_EQ(displayName("\xc2\x85"), "\uFFFD");
}

TEST(DisplayName, ReplacesBrokenBytes)
{
    EXPECT_EQ(displayName("a\xff"
                          "b\xc3"),
              "a\uFFFDb\uFFFD");
    EXPECT_EQ(displayName("\xed\xa0\x80"), "\uFFFD\uFFFD\uFFFD");
}

TEST(DisplayName, ReplacesMarksThatTurnTheDirection)
{
    EXPECT_EQ(displayName("a\u202Eb\u2066c\u2069"), "a\uFFFDb\uFFFDc\uFFFD");
    EXPECT_EQ(displayName("שלום"), "שלום");
}

TEST(DisplayName, IsSoundUtf8WithoutControlsWhateverTheBytes)
{
    std::mt19937 random(7);
    std::uniform_int_distribution<int> byte(0, 255);
    for (int i = 0; i < 2000; ++i) {
        std::string name(12, ' ');
        for (char& character : name)
            character = static_cast<char>(byte(random));
        const std::string shown = displayName(name);
        EXPECT_EQ(findBrokenUtf8(shown), std::string::npos);
        EXPECT_EQ(makePrintable(shown), shown);
    }
}

} // namespace
} // namespace tovangl::program
