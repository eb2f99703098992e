// SPDX-License-Identifier: MIT
// Texts of every kind in SVG pictures.
#include "support/CAnyChart.h"
#include "svg/parsed_svg.h"

#include <gmock/gmock.h>
#include <vector>

namespace tovangl {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

class EverySvg : public ::testing::TestWithParam<ChartKind>
{
protected:
    CParsedSvg draw(int width = 400, int height = 300)
    {
        const CParsedSvg svg(chart.createSvg(width, height).bytes());
        EXPECT_EQ(svg.error(), QString());
        return svg;
    }

    CAnyChart chart{GetParam(), true};
};

INSTANTIATE_TEST_SUITE_P(Kinds, EverySvg, ::testing::ValuesIn(kChartKinds), [](const auto& kind) {
    return ::testing::PrintToString(static_cast<int>(kind.param));
});

TEST_P(EverySvg, IsWellFormedWhateverTheTextsHold)
{
    const std::vector<std::string> texts = {"<script>alert(1)</script>",
                                            "]]>",
                                            "<!--",
                                            "-->",
                                            "&amp;&#0;&nope;",
                                            "\"'`",
                                            std::string("a\0b", 3),
                                            "\x01\x02\x1b\x7f",
                                            "\xff\xfe broken \xc3",
                                            "\xed\xa0\x80",
                                            "\xef\xbf\xbe\xef\xbf\xbf",
                                            "a\nb\r\nc\td",
                                            "\xe2\x80\xae\xd8\xa7\xd9\x84",
                                            "\xc2\x9c",
                                            "\xf0\x9f\x98\x80",
                                            std::string(5000, '<'),
                                            " ",
                                            "<?xml?>",
                                            "</svg><svg onload='x()'>"};
    for (const std::string& text : texts) {
        chart.graph().clear();
        chart.graph().setTitle(text);
        chart.graph().setFont(text, 11);
        chart.setProperties(0x1ff, text);
        chart.addItem(3, text);
        chart.addItem(2, text + text);
        const CParsedSvg svg = draw();
        EXPECT_TRUE(svg.all("script").empty()) << text;
        EXPECT_EQ(svg.all("svg").front()["role"], "img") << text;
    }
}

TEST_P(EverySvg, WritesEveryCaptionThatThePngShows)
{
    chart.addItem(3, "first & foremost");
    chart.addItem(2, "second");
    const std::vector<std::string> texts = draw().texts();
    EXPECT_THAT(texts, Contains("first & foremost"));
    EXPECT_THAT(texts, Contains("second"));
}

TEST_P(EverySvg, ShortensCaptionsAsThePngDoes)
{
    chart.addItem(3, std::string(200, 'w'));
    chart.addItem(2, "b");
    const std::vector<std::string> texts = draw().texts();
    EXPECT_THAT(texts, Not(Contains(std::string(200, 'w'))));
    EXPECT_THAT(texts, Contains(HasSubstr("w...")));
}

TEST_P(EverySvg, KeepsTheWidthThatATextWasMeasuredWith)
{
    chart.addItem(3, "some caption");
    for (const CSvgElement& text : draw().all("text")) {
        EXPECT_GT(text.number("textLength"), 0) << text.text.toStdString();
        EXPECT_EQ(text["lengthAdjust"], "spacingAndGlyphs") << text.text.toStdString();
    }
}

TEST_P(EverySvg, WritesTheTitleInBoldAndNothingElse)
{
    chart.graph().setTitle("A title");
    chart.addItem(3, "some caption");
    for (const CSvgElement& text : draw().all("text"))
        EXPECT_EQ(text["font-weight"], text.text == "A title" ? "bold" : "")
            << text.text.toStdString();
}

TEST(SvgTexts, KeepTheSpacesThatTheyAreMeasuredWith)
{
    CAnyChart chart(ChartKind::HorizontalBars);
    chart.addItem(3, "one space");
    chart.addItem(2, " a first one");
    chart.addItem(1, "two  of them");
    const CParsedSvg svg(chart.createSvg(400, 300).bytes());
    std::vector<QString> kept;
    for (const CSvgElement& text : svg.all("text")) {
        if (text["xml:space"] == QLatin1String("preserve"))
            kept.push_back(text.text);
    }
    EXPECT_THAT(kept, ElementsAre(QStringLiteral(" a first one"), QStringLiteral("two  of them")));
}

TEST(SvgTexts, ReadFromTheirRightEndWhereTheirScriptDoes)
{
    CAnyChart chart(ChartKind::HorizontalBars);
    chart.addItem(3, "\xd8\xa7\xd9\x84\xd8\xb9");
    const CParsedSvg svg(chart.createSvg(400, 300).bytes());
    const CSvgElement caption = svg.children(svg.items().at(0), "text").at(1);
    const Rectangle box = chart.itemRectangles().front();
    EXPECT_EQ(caption["direction"], "rtl");
    EXPECT_GT(caption.number("x"), box.x + caption.number("textLength") / 2);
    EXPECT_LE(caption.number("x"), box.x + box.width + 1);
}

TEST(SvgTexts, KeepTheirSpaces)
{
    CAnyChart chart(ChartKind::HorizontalBars);
    chart.addItem(3, "  a  b");
    const CParsedSvg svg(chart.createSvg(400, 300).bytes());
    EXPECT_EQ(svg.children(svg.items().at(0), "text").at(1).text, "  a  b");
}

TEST(SvgTexts, AreTurnedWhereThePngTurnsThem)
{
    CAnyChart chart(ChartKind::VerticalBars);
    chart.setProperties(0x1ff, "value title");
    chart.addItem(3, "a");
    int turned = 0;
    for (const CSvgElement& text : CParsedSvg(chart.createSvg(400, 300).bytes()).all("text"))
        turned += text["transform"].startsWith("rotate(-90 ") ? 1 : 0;
    EXPECT_EQ(turned, 1);
}

} // namespace
} // namespace tovangl
