// SPDX-License-Identifier: MIT
#include "input/setting_values.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace tovangl {
namespace {

using ::testing::ElementsAre;

constexpr long kLeast = std::numeric_limits<long>::min();
constexpr long kGreatest = std::numeric_limits<long>::max();

TEST(BooleanValue, IsTrueOrFalseAndNothingElse)
{
    EXPECT_EQ(parseBoolean("true"), true);
    EXPECT_EQ(parseBoolean("false"), false);
    for (const char* text : {"", "1", "yes", "True", " true", "true "})
        EXPECT_FALSE(parseBoolean(text)) << text;
}

TEST(WholeValue, HasASignAndDigitsAlone)
{
    EXPECT_EQ(parseWhole("42", kLeast, kGreatest), 42);
    EXPECT_EQ(parseWhole("+42", kLeast, kGreatest), 42);
    EXPECT_EQ(parseWhole("-42", kLeast, kGreatest), -42);
    for (const char* text : {"", "-", "+", "+-4", "--4", "4.0", "4e2", "0x10", " 4", "4 ", "four"})
        EXPECT_FALSE(parseWhole(text, kLeast, kGreatest)) << text;
}

TEST(WholeValue, ReachesBothEndsOfItsRange)
{
    EXPECT_EQ(parseWhole("1", 1, 1000), 1);
    EXPECT_EQ(parseWhole("1000", 1, 1000), 1000);
    EXPECT_FALSE(parseWhole("0", 1, 1000));
    EXPECT_FALSE(parseWhole("1001", 1, 1000));
}

TEST(WholeValue, IsNoNumberThatALongCannotHold)
{
    EXPECT_EQ(parseWhole("9223372036854775807", kLeast, kGreatest), kGreatest);
    EXPECT_FALSE(parseWhole("9223372036854775808", kLeast, kGreatest));
    EXPECT_FALSE(parseWhole(std::string(400, '9'), kLeast, kGreatest));
}

TEST(RealValue, HasADecimalPointWhateverTheLocale)
{
    EXPECT_EQ(parseReal("2"), 2.0);
    EXPECT_EQ(parseReal("+2.5"), 2.5);
    EXPECT_EQ(parseReal("-1e3"), -1000.0);
    for (const char* text : {"", ".", "2,5", " 2", "2 ", "2%", "two", "1e999"})
        EXPECT_FALSE(parseReal(text)) << text;
}

TEST(RealValue, CanBeNoNumber)
{
    const std::optional<double> value = parseReal("nan");
    ASSERT_TRUE(value);
    EXPECT_TRUE(std::isnan(*value));
}

TEST(TextValue, IsAnyUtf8)
{
    EXPECT_EQ(parseText(""), QString());
    EXPECT_EQ(parseText("Größe\n€ 😀"), QString::fromUtf8("Größe\n€ 😀"));
    EXPECT_EQ(parseText(std::string("a\0b", 3)), QString(QStringLiteral("a\0b")));
}

// Spreadsheets write it before the first text of a file.
TEST(TextValue, LosesAByteOrderMarkAtItsBeginning)
{
    EXPECT_EQ(parseText("\xef\xbb\xbf"), QString());
    EXPECT_EQ(parseText("\xef\xbb\xbfGr\xc3\xb6\xc3\x9f\x65"), QString::fromUtf8("Größe"));
    EXPECT_FALSE(parseText("\xef\xbb\xbf\xff"));
}

TEST(TextValue, IsNotWhatIsNoUtf8)
{
    for (const char* text : {"\xff", "broken \xc3", "\xc0\xaf", "\xed\xa0\x80"})
        EXPECT_FALSE(parseText(text)) << text;
}

TEST(ColorValue, HasSixHexadecimalDigits)
{
    EXPECT_EQ(parseColor("#4070c0"), QColor(0x40, 0x70, 0xc0));
    EXPECT_EQ(parseColor("#ABCDEF"), QColor(0xab, 0xcd, 0xef));
    for (const char* text : {"", "#", "4070c0", "#4070c", "#4070c00", "#4070cg", "#-070c0", "red",
                             "#fff", " #4070c0", "transparent", "#80ff0000"})
        EXPECT_FALSE(parseColor(text)) << text;
}

TEST(ColorValue, IsNotSetByDefault)
{
    const std::optional<QColor> color = parseColor("default");
    ASSERT_TRUE(color);
    EXPECT_FALSE(color->isValid());
}

TEST(PictureColorValue, CanBeTransparentAndIsWhiteByDefault)
{
    EXPECT_EQ(parsePictureColor("#102030"), QColor(0x10, 0x20, 0x30));
    EXPECT_EQ(parsePictureColor("transparent"), QColor(Qt::transparent));
    EXPECT_EQ(parsePictureColor("default"), QColor(Qt::white));
    EXPECT_FALSE(parsePictureColor("none"));
}

TEST(PaletteValue, IsAListOfColours)
{
    const auto colors = parseColors("#000001,#000002,#000003");
    ASSERT_TRUE(colors);
    EXPECT_THAT(*colors, ElementsAre(QColor(0, 0, 1), QColor(0, 0, 2), QColor(0, 0, 3)));
    EXPECT_EQ(parseColors("default"), std::vector<QColor>());
}

TEST(PaletteValue, IsNoListWithAGap)
{
    for (const char* text : {"", ",", "#000001,", ",#000001", "#000001,,#000002",
                             "#000001, #000002", "#000001,default", "#000001;#000002"})
        EXPECT_FALSE(parseColors(text)) << text;
}

TEST(PositionValue, IsTwoWholeNumbers)
{
    EXPECT_EQ(parsePosition("60,200"), QPoint(60, 200));
    EXPECT_EQ(parsePosition("-1,-1"), QPoint(-1, -1));
    for (const char* text : {"", "60", "60,", ",200", "60,200,5", "60, 200", "60;200", "a,b",
                             "60.5,200", "2147483648,0"})
        EXPECT_FALSE(parsePosition(text)) << text;
}

TEST(AxisPropertiesValue, NamesWhatAnAxisShows)
{
    EXPECT_EQ(parseAxisProperties("none"), CAxisSettings::Properties());
    EXPECT_EQ(parseAxisProperties("line"), CAxisSettings::ShowLine);
    EXPECT_EQ(parseAxisProperties("labels,line"),
              CAxisSettings::ShowLine | CAxisSettings::ShowLabels);
    for (const char* text :
         {"", "lines", "Line", "line,", "line,none", "line, labels", "line labels"})
        EXPECT_FALSE(parseAxisProperties(text)) << text;
}

TEST(AxisPropertiesValue, HasEveryNameThatIsTold)
{
    CAxisSettings::Properties all;
    for (const std::string_view name : splitText(kAxisPropertyNames, ',')) {
        const auto property = parseAxisProperties(name);
        ASSERT_TRUE(property) << name;
        EXPECT_FALSE(all & *property) << name << " is a second name";
        all |= *property;
    }
    constexpr int kAllProperties = 1 + 2 + 4 + 8 + 16 + 32 + 128 + 4096;
    EXPECT_EQ(static_cast<int>(all), kAllProperties);
}

TEST(LocaleValue, HasALanguageAndACountry)
{
    for (const char* text : {"de_AT", "de-AT"}) {
        const std::optional<CLocaleName> name = parseLocale(text);
        ASSERT_TRUE(name) << text;
        EXPECT_EQ(name->language, QString("de"));
        EXPECT_EQ(name->country, QString("AT"));
    }
    for (const char* text : {"", "de", "_AT", "de_", "\xff_AT", "de_\xff"})
        EXPECT_FALSE(parseLocale(text)) << text;
}

TEST(LocaleValue, CanBeTheOneWithoutALanguage)
{
    ASSERT_TRUE(parseLocale("C"));
    EXPECT_EQ(parseLocale("C")->language, QString("C"));
}

TEST(SplitText, KeepsEveryPartEmptyOnesToo)
{
    EXPECT_THAT(splitText("a,b", ','), ElementsAre("a", "b"));
    EXPECT_THAT(splitText("", ','), ElementsAre(""));
    EXPECT_THAT(splitText(",a,", ','), ElementsAre("", "a", ""));
}

} // namespace
} // namespace tovangl
