// SPDX-License-Identifier: MIT
// The elements of an SVG picture.
#include "svg/CSvgMarkup.h"

#include <QColor>

#include <gtest/gtest.h>

namespace tovangl {
namespace {

TEST(SvgMarkup, WritesElementsWithAndWithoutContent)
{
    CSvgMarkup markup;
    markup.begin("g").attribute("class", "axis").open();
    markup.begin("rect").attribute("x", 1.5).color("fill", Qt::white).end();
    markup.close("g");
    EXPECT_EQ(markup.text(), "<g class=\"axis\"><rect x=\"1.5\" fill=\"#fff\"/></g>");
}

TEST(SvgMarkup, EscapesTextsInElementsAndAttributes)
{
    CSvgMarkup markup;
    markup.begin("a").textAttribute("href", "?a=\"1\"&b").open();
    markup.textElement("title", "</title>");
    markup.close("a");
    EXPECT_EQ(markup.text(),
              "<a href=\"?a=&quot;1&quot;&amp;b\"><title>&lt;/title&gt;</title></a>");
}

TEST(SvgMarkup, HasNoStyleSheetWithoutRules)
{
    CSvgMarkup markup;
    markup.styleElement("");
    EXPECT_EQ(markup.text(), "");
    markup.styleElement(".a{fill:#fff}");
    EXPECT_EQ(markup.text(), "<style>.a{fill:#fff}</style>");
}

} // namespace
} // namespace tovangl
