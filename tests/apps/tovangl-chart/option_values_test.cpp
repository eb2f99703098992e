// SPDX-License-Identifier: MIT
#include "common/CFailure.h"
#include "tovangl-chart/option_values.h"
#include <tovangl/AxisProperty.h>

#include <cmath>
#include <gmock/gmock.h>

namespace tovangl::program {
namespace {

using ::testing::HasSubstr;
using ::testing::ThrowsMessage;

TEST(OptionValues, AColorHasSixDigits)
{
    const Color color = parseColor("#0a10Ff");
    EXPECT_EQ(color.red, 10);
    EXPECT_EQ(color.green, 16);
    EXPECT_EQ(color.blue, 255);
    EXPECT_THAT([] { (void)parseColor("red"); },
                ThrowsMessage<CFailure>("\"red\" is not a colour such as #4070c0"));
    EXPECT_THROW((void)parseColor("#+1+2+3"), CFailure);
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

TEST(OptionValues, RealNumbersHavePoints)
{
    EXPECT_DOUBLE_EQ(parseReal("1.5"), 1.5);
    EXPECT_DOUBLE_EQ(parseReal("-2"), -2.0);
    EXPECT_TRUE(std::isnan(parseReal("nan")));
    EXPECT_THROW((void)parseReal("1,5"), CFailure);
    EXPECT_THROW((void)parseReal("5%"), CFailure);
    EXPECT_THROW((void)parseReal(""), CFailure);
}

TEST(OptionValues, APositionMayBeNegative)
{
    const AxisPosition position = parsePosition("-1,200");
    EXPECT_EQ(position.x, -1);
    EXPECT_EQ(position.y, 200);
    EXPECT_THROW((void)parsePosition("60x200"), CFailure);
}

TEST(OptionValues, ALocaleIsLanguageAndCountry)
{
    EXPECT_EQ(parseLocale("de_AT").language, "de");
    EXPECT_EQ(parseLocale("de_AT").country, "AT");
    EXPECT_EQ(parseLocale("en-us").country, "us");
    EXPECT_EQ(parseLocale("C").language, "C");
    for (const char* text : {"de", "_AT", "de_", ""})
        EXPECT_THROW((void)parseLocale(text), CFailure) << text;
}

TEST(OptionValues, TextsAreUtf8)
{
    EXPECT_EQ(parseText("\xc3\xa9"), "\xc3\xa9");
    EXPECT_THAT([] { (void)parseText("\xe9"); }, ThrowsMessage<CFailure>("\"?\" is not UTF-8"));
}

struct PropertyCase
{
    const char* text;
    int properties;
};

void PrintTo(const PropertyCase& property, std::ostream* stream)
{
    *stream << property.text;
}

class AxisPropertyNames : public ::testing::TestWithParam<PropertyCase>
{};

TEST_P(AxisPropertyNames, StandForTheirBits)
{
    EXPECT_EQ(parseAxisProperties(GetParam().text), GetParam().properties);
}

INSTANTIATE_TEST_SUITE_P(
    OptionValues, AxisPropertyNames,
    ::testing::Values(PropertyCase{"none", 0}, PropertyCase{"line", AxisProperty::ShowLine},
                      PropertyCase{"labels", AxisProperty::ShowLabels},
                      PropertyCase{"title", AxisProperty::ShowTitle},
                      PropertyCase{"bold-labels", AxisProperty::BoldLabels},
                      PropertyCase{"bold-title", AxisProperty::BoldTitle},
                      PropertyCase{"prefixes", AxisProperty::UnitPrefixes},
                      PropertyCase{"hide-overlapped", AxisProperty::HideOverlapped},
                      PropertyCase{"shift-last", AxisProperty::ShiftLastLabel},
                      PropertyCase{"line,labels,line", 3}));

TEST(OptionValues, UnknownAxisPropertiesAreRefusedWithTheKnownOnes)
{
    EXPECT_THAT([] { (void)parseAxisProperties("line,colour"); },
                ThrowsMessage<CFailure>(HasSubstr("\"colour\" is not an axis property (line, ")));
    for (const char* text : {"", ",", "line,", "none,line", "Line"})
        EXPECT_THROW((void)parseAxisProperties(text), CFailure) << text;
}

} // namespace
} // namespace tovangl::program
