// SPDX-License-Identifier: MIT
// The colours that are set appear where they should, and nowhere where they are not set.
#include "support/host_pictures.h"
#include <tovangl/tovangl.h>

#include <gtest/gtest.h>
#include <string>
#include <type_traits>

namespace tovangl {
namespace {

constexpr Color kTeal = {18, 120, 134};
constexpr const char* kTealText = "#127886";

template <typename Chart>
std::string pictureOf(Chart& chart)
{
    const CHostPicture picture = exported(chart, 320, 200);
    return std::string(reinterpret_cast<const char*>(picture.data),
                       static_cast<std::size_t>(picture.size));
}

// A chart in which every colour is seen.
template <typename Chart>
struct CFullChart
{
    CFullChart()
    {
        chart.setLocale("en", "us");
        for (const char* caption : {"one", "two", "three"})
            chart.addItem(700, caption);
        if constexpr (!std::is_same_v<Chart, PieGraph>)
            static_cast<void>(chart.setByName("category_title", "Title"));
    }

    Chart chart{true};
};

// The setter and the name do the same, and so do both ways of not setting it.
template <typename Chart, typename Setter>
void expectAgreement(const char* name, Setter set)
{
    CFullChart<Chart> plain;
    CFullChart<Chart> bySetter;
    CFullChart<Chart> byName;
    (bySetter.chart.*set)(kTeal);
    EXPECT_EQ(byName.chart.setByName(name, kTealText), "");
    EXPECT_NE(pictureOf(byName.chart), pictureOf(plain.chart)) << name << " changes nothing";
    EXPECT_EQ(pictureOf(bySetter.chart), pictureOf(byName.chart)) << name;

    (bySetter.chart.*set)(Color::notSet());
    EXPECT_EQ(byName.chart.setByName(name, "default"), "");
    EXPECT_EQ(pictureOf(bySetter.chart), pictureOf(plain.chart)) << name;
    EXPECT_EQ(pictureOf(byName.chart), pictureOf(plain.chart)) << name;
}

template <typename Chart>
void expectAgreementOfCommonColors()
{
    expectAgreement<Chart>("picture_color", &Chart::setPictureColor);
    expectAgreement<Chart>("text_color", &Chart::setTextColor);
    expectAgreement<Chart>("plot_color", &Chart::setPlotColor);
    expectAgreement<Chart>("border_color", &Chart::setBorderColor);
    expectAgreement<Chart>("outline_color", &Chart::setOutlineColor);
}

TEST(ColorSetters, OfStandingBarsAgreeWithTheirNames)
{
    expectAgreementOfCommonColors<VerticalBarGraph>();
    expectAgreement<VerticalBarGraph>("axis_color", &VerticalBarGraph::setAxisColor);
    expectAgreement<VerticalBarGraph>("axis_title_color", &VerticalBarGraph::setAxisTitleColor);
    expectAgreement<VerticalBarGraph>("grid_color", &VerticalBarGraph::setGridColor);
}

TEST(ColorSetters, OfLyingBarsAgreeWithTheirNames)
{
    expectAgreementOfCommonColors<HorizontalBarGraph>();
    expectAgreement<HorizontalBarGraph>("axis_color", &HorizontalBarGraph::setAxisColor);
    expectAgreement<HorizontalBarGraph>("axis_title_color", &HorizontalBarGraph::setAxisTitleColor);
    expectAgreement<HorizontalBarGraph>("value_color", &HorizontalBarGraph::setValueColor);
}

TEST(ColorSetters, OfPiesAgreeWithTheirNames)
{
    expectAgreementOfCommonColors<PieGraph>();
}

TEST(ColorSetters, OfLinesToCaptionsAgreeWithTheirNameAndGoBackToBlack)
{
    CFullChart<PieGraph> plain;
    CFullChart<PieGraph> bySetter;
    CFullChart<PieGraph> byName;
    bySetter.chart.setLineColor(kTeal);
    EXPECT_EQ(byName.chart.setByName("line_color", kTealText), "");
    EXPECT_NE(pictureOf(byName.chart), pictureOf(plain.chart));
    EXPECT_EQ(pictureOf(bySetter.chart), pictureOf(byName.chart));
    EXPECT_EQ(byName.chart.setByName("line_color", "default"), "");
    EXPECT_EQ(pictureOf(byName.chart), pictureOf(plain.chart));
}

// Deliberate: a line that is not set follows the outlines, as setColors() has it, while the default
// is black.
TEST(ColorSetters, OfLinesToCaptionsFollowTheOutlinesWhereNoColourIsSet)
{
    CFullChart<PieGraph> notSet;
    CFullChart<PieGraph> likeOutlines;
    notSet.chart.setOutlineColor(kTeal);
    notSet.chart.setLineColor(Color::notSet());
    likeOutlines.chart.setOutlineColor(kTeal);
    likeOutlines.chart.setLineColor(kTeal);
    EXPECT_EQ(pictureOf(notSet.chart), pictureOf(likeOutlines.chart));
}

template <typename Chart>
void addTealItem(Chart& chart)
{
    if constexpr (std::is_same_v<Chart, PieGraph>)
        chart.addItem(700, "four", kTeal);
    else
        chart.addItem(700, "four", kTeal, kTeal);
}

int countTeal(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += colorAt(image, x, y) == kTeal ? 1 : 0;
    }
    return count;
}

template <typename Chart>
class AnyChartColors : public ::testing::Test
{
protected:
    CFullChart<Chart> m_plain;
    CFullChart<Chart> m_changed;
};

struct CChartNames
{
    template <typename Chart>
    static std::string GetName(int)
    {
        if (std::is_same_v<Chart, PieGraph>)
            return "Pie";
        return std::is_same_v<Chart, VerticalBarGraph> ? "StandingBars" : "LyingBars";
    }
};

using AllCharts = ::testing::Types<VerticalBarGraph, HorizontalBarGraph, PieGraph>;
TYPED_TEST_SUITE(AnyChartColors, AllCharts, CChartNames);

TYPED_TEST(AnyChartColors, OfThePaletteAgreeWithTheirName)
{
    this->m_plain.chart.setPalette({kTeal, {200, 30, 30}});
    EXPECT_EQ(this->m_changed.chart.setByName("palette", "#127886,#c81e1e"), "");
    EXPECT_EQ(pictureOf(this->m_changed.chart), pictureOf(this->m_plain.chart));
}

TYPED_TEST(AnyChartColors, OfAnEmptyPaletteAreTheDefault)
{
    this->m_changed.chart.setPalette({kTeal});
    EXPECT_NE(pictureOf(this->m_changed.chart), pictureOf(this->m_plain.chart));
    this->m_changed.chart.setPalette({});
    EXPECT_EQ(pictureOf(this->m_changed.chart), pictureOf(this->m_plain.chart));
}

TYPED_TEST(AnyChartColors, OfAPaletteGapAreTheDefault)
{
    this->m_changed.chart.setPalette({Color::notSet()});
    EXPECT_EQ(pictureOf(this->m_changed.chart), pictureOf(this->m_plain.chart));
}

TYPED_TEST(AnyChartColors, OfAThemeAgreeWithItsNameAndGoBackWithLight)
{
    CFullChart<TypeParam> byName;
    this->m_changed.chart.setTheme(Theme::Dark);
    EXPECT_EQ(byName.chart.setByName("theme", "dark"), "");
    EXPECT_EQ(pictureOf(this->m_changed.chart), pictureOf(byName.chart));
    EXPECT_NE(pictureOf(this->m_changed.chart), pictureOf(this->m_plain.chart));
    this->m_changed.chart.setTheme(Theme::Light);
    EXPECT_EQ(pictureOf(this->m_changed.chart), pictureOf(this->m_plain.chart));
}

TYPED_TEST(AnyChartColors, OfItemsWinOverThoseOfTheTheme)
{
    addTealItem(this->m_changed.chart);
    this->m_changed.chart.setTheme(Theme::Dark);
    EXPECT_GT(countTeal(render(this->m_changed.chart)), 500);
}

TYPED_TEST(AnyChartColors, OfATransparentPictureAgreeWithTheirName)
{
    this->m_plain.chart.setPictureTransparent();
    EXPECT_EQ(this->m_changed.chart.setByName("picture_color", "transparent"), "");
    EXPECT_EQ(pictureOf(this->m_changed.chart), pictureOf(this->m_plain.chart));
}

} // namespace
} // namespace tovangl
