// SPDX-License-Identifier: MIT
#include "common/CFailure.h"
#include "tovangl-chart/option_values.h"

#include <gmock/gmock.h>

namespace tovangl::program {
namespace {

using ::testing::ThrowsMessage;

TEST(OptionValues, AColorHasSixDigits)
{
    const std::optional<Color> color = findColor("#0a10Ff");
    ASSERT_TRUE(color);
    EXPECT_EQ(color->red, 10);
    EXPECT_EQ(color->green, 16);
    EXPECT_EQ(color->blue, 255);
    for (const char* text : {"red", "#+1+2+3", "#12345", "#1234567", "123456#", ""})
        EXPECT_FALSE(findColor(text)) << text;
}

TEST(OptionValues, ASizeIsTwoNumbers)
{
    const PictureSize size = parseSize("640x480");
    EXPECT_EQ(size.width, 640);
    EXPECT_EQ(size.height, 480);
    for (const char* text : {"640", "640x", "x480", "640x480x2", "640 x 480", "axb", ""})
        EXPECT_THROW((void)parseSize(text), CFailure) << text;
}

TEST(OptionValues, ANumberBeyondAnIntIsRefused)
{
    EXPECT_EQ(parseWhole("-2147483648"), -2147483647 - 1);
    EXPECT_THAT([] { (void)parseWhole("2147483648"); },
                ThrowsMessage<CFailure>("\"2147483648\" does not fit into 32 bits"));
}

TEST(OptionValues, WholeNumbersAreDecimal)
{
    EXPECT_EQ(parseWhole("010"), 10);
    EXPECT_THROW((void)parseWhole("0x10"), CFailure);
}

TEST(OptionValues, AFileHasAName)
{
    EXPECT_EQ(parsePath(" "), " ");
    EXPECT_THAT([] { (void)parsePath(""); }, ThrowsMessage<CFailure>("the file has no name"));
}

TEST(OptionValues, TextsAreUtf8)
{
    EXPECT_EQ(parseText("\xc3\xa9"), "\xc3\xa9");
    EXPECT_THAT([] { (void)parseText("\xe9"); }, ThrowsMessage<CFailure>("\"?\" is not UTF-8"));
}

} // namespace
} // namespace tovangl::program
