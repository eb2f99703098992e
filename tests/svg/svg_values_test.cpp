// SPDX-License-Identifier: MIT
// Numbers, colours and texts as SVG has them.
#include "svg/svg_values.h"

#include <QColor>
#include <QString>

#include <gtest/gtest.h>
#include <limits>
#include <utility>
#include <vector>

namespace tovangl {
namespace {

TEST(SvgNumber, HasAtMostTwoDecimals)
{
    const std::vector<std::pair<double, const char*>> cases = {
        {0, "0"},
        {7, "7"},
        {-7, "-7"},
        {0.5, ".5"},
        {-0.5, "-.5"},
        {1.25, "1.25"},
        {1.2, "1.2"},
        {1.204, "1.2"},
        {1.206, "1.21"},
        {0.05, ".05"},
        {-0.001, "0"},
        {0.999, "1"},
        {100, "100"},
        {-1.006, "-1.01"},
        {10.01, "10.01"},
        {12345, "12345"},
        {65536.75, "65536.75"},
    };
    for (const auto& [value, text] : cases)
        EXPECT_EQ(svgNumber(value), text) << value;
}

TEST(SvgNumber, StaysWithinABillion)
{
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(svgNumber(kInfinity), "1000000000");
    EXPECT_EQ(svgNumber(-kInfinity), "-1000000000");
    EXPECT_EQ(svgNumber(std::numeric_limits<double>::quiet_NaN()), "0");
}

TEST(SvgColor, HasOneDigitForEachChannelWhereThatIsEnough)
{
    EXPECT_EQ(svgColor(QColor(0x12, 0xab, 0x0f)), "#12ab0f");
    EXPECT_EQ(svgColor(QColor(0x11, 0xaa, 0x00)), "#1a0");
    EXPECT_EQ(svgColor(QColor(Qt::white)), "#fff");
    EXPECT_EQ(svgColor(QColor(0x11, 0xaa, 0x01)), "#11aa01");
}

TEST(SvgColor, IsBlackIfNotSet)
{
    EXPECT_EQ(svgColor(QColor()), "#000");
}

TEST(SvgText, HoldsNoMarkup)
{
    EXPECT_EQ(svgText("<b title=\"a\">&amp;</b>]]>"),
              "&lt;b title=&quot;a&quot;&gt;&amp;amp;&lt;/b&gt;]]&gt;");
}

TEST(SvgText, KeepsCharactersOfAllPlanes)
{
    const QString text = QString::fromUtf8("Größe \u0645 \U0001f600");
    EXPECT_EQ(svgText(text), text.toStdString());
}

TEST(SvgText, ReplacesWhatNoXmlCanHold)
{
    const std::vector<ushort> units = {0, 1, 8, 0x1b, 0xfffe, 0xffff, 0xd800, 0xdc00};
    for (const ushort unit : units)
        EXPECT_EQ(svgText('a' + QString(QChar(unit)) + 'b'), "a\ufffdb") << unit;
    EXPECT_EQ(svgText(QString(QChar(0xdc00)) + QChar(0xd800)), "\ufffd\ufffd");
}

TEST(SvgText, TurnsLineBreaksAndTabsIntoSpaces)
{
    EXPECT_EQ(svgText("a\tb\nc\rd"), "a b c d");
}

TEST(SvgFontFamily, QuotesAllButPlainWords)
{
    EXPECT_EQ(svgFontFamily("Tahoma"), "Tahoma,sans-serif");
    EXPECT_EQ(svgFontFamily("DejaVu Sans, serif"), "'DejaVu Sans',serif,sans-serif");
    EXPECT_EQ(svgFontFamily("a;b"), "'a;b',sans-serif");
    EXPECT_EQ(svgFontFamily("it's a \\"), "'it\\'s a \\\\',sans-serif");
    EXPECT_EQ(svgFontFamily(""), "'',sans-serif");
}

} // namespace
} // namespace tovangl
