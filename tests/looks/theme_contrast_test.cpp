// SPDX-License-Identifier: MIT
// What the themes promise to readers, measured on the layouts that are painted.
#include "input/default_palette.h"
#include "input/setting_rules.h"
#include "input/themes.h"
#include "support/CBarChart.h"
#include "support/CTestPie.h"
#include "support/color_contrast.h"
#include "support/color_distance.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tuple>

namespace tovangl {
namespace {

using ::testing::ElementsAre;

constexpr const char* kCaption = "caption";
constexpr std::size_t kPaletteSize = 6;
constexpr double kClearlyDifferent = 11; // CIEDE2000
constexpr CRequest kPicture{500, 400};

// A colour, and one on which it stands.
struct CPlacedColor
{
    const char* what;
    QColor color;
    QColor ground;
};

using Placed = std::vector<CPlacedColor>;

void apply(const CSettingTarget& target, const char* name, const char* value)
{
    EXPECT_EQ(applySetting(target, name, value), "") << name;
}

void place(Placed& placed, const char* what, const QColor& color,
           const std::optional<CVerticalFade>& background, const QColor& picture)
{
    if (background) {
        placed.push_back({what, color, background->top});
        placed.push_back({what, color, background->bottom});
    } else {
        placed.push_back({what, color, picture});
    }
}

void placeAxis(Placed& placed, const CAxisLayout& axis,
               const std::optional<CVerticalFade>& background, const QColor& picture)
{
    // The line has the picture on one side and the plot on the other.
    placed.push_back({"axis line", axis.line->color, picture});
    place(placed, "axis line", axis.line->color, background, picture);
    for (const CPlacedText& text : axis.texts)
        placed.push_back({"text of an axis", text.color, picture});
}

Placed placedColors(BarKind kind, const char* theme, bool hasBackground)
{
    CBarChart chart(kind, hasBackground);
    chart.addMany(kPaletteSize, kCaption);
    const CSettingTarget target(chart.input);
    apply(target, "theme", theme);
    apply(target, "category_title", "Categories");
    const CBarLayout layout = chart.layout(kPicture);
    const QColor picture = chart.input.settings.colors.picture;
    EXPECT_GT(layout.categoryAxis->texts.size(), kPaletteSize) << "captions and a title";
    Placed placed;
    placeAxis(placed, *layout.categoryAxis, layout.background, picture);
    placeAxis(placed, *layout.numberAxis, layout.background, picture);
    for (const CBar& bar : layout.bars) {
        if (bar.labelRect.isValid())
            place(placed, "value of a bar", bar.label.color, layout.background, picture);
    }
    return placed;
}

CTestPie themedPie(const char* theme, bool hasBackground)
{
    CTestPie pie(hasBackground);
    pie.addEqual(kPaletteSize, kCaption);
    apply(CSettingTarget(pie), "theme", theme);
    return pie;
}

Placed placedPieColors(const char* theme, bool hasBackground)
{
    const CTestPie pie = themedPie(theme, hasBackground);
    const CPieLayout layout = pie.layOut(kPicture);
    std::optional<CVerticalFade> fill;
    if (layout.background)
        fill = layout.background->fill;
    Placed placed;
    const QColor picture = pie.settings.colors.picture;
    place(placed, "line to a caption", layout.labelLineColor, fill, picture);
    for (const CPlacedPieLabel& label : layout.labels)
        place(placed, "caption of a slice", label.texts.front().color, fill, picture);
    return placed;
}

void expectReadable(const Placed& placed)
{
    for (const CPlacedColor& it : placed)
        EXPECT_GE(contrastRatio(it.color, it.ground), kTextContrast)
            << it.what << ' ' << it.color.name().toStdString() << " on "
            << it.ground.name().toStdString();
}

class ThemeContrast : public ::testing::TestWithParam<std::tuple<const char*, bool>>
{
protected:
    [[nodiscard]] static const char* theme() { return std::get<0>(GetParam()); }
    [[nodiscard]] static bool hasBackground() { return std::get<1>(GetParam()); }
};

std::string nameOfTheme(std::string name)
{
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

std::string nameOf(const ::testing::TestParamInfo<std::tuple<const char*, bool>>& info)
{
    return nameOfTheme(std::get<0>(info.param)) +
           (std::get<1>(info.param) ? "_with_background" : "");
}

TEST_P(ThemeContrast, OfTextsAndAxisLinesOfStandingBarsSuffices)
{
    expectReadable(placedColors(BarKind::Standing, theme(), hasBackground()));
}

TEST_P(ThemeContrast, OfTextsAndAxisLinesOfLyingBarsSuffices)
{
    expectReadable(placedColors(BarKind::Lying, theme(), hasBackground()));
}

TEST_P(ThemeContrast, OfTextsAndLinesOfPiesSuffices)
{
    expectReadable(placedPieColors(theme(), hasBackground()));
}

INSTANTIATE_TEST_SUITE_P(Looks, ThemeContrast,
                         ::testing::Combine(::testing::Values("light", "dark", "high-contrast",
                                                              "colour-blind"),
                                            ::testing::Bool()),
                         nameOf);

// The six fillings of a theme, and the outline between two of them.
struct CFillings
{
    std::vector<QColor> colors;
    std::vector<QColor> outlines;
};

CBarChart themedBars(const char* theme)
{
    CBarChart chart(BarKind::Standing, true);
    chart.addMany(kPaletteSize);
    apply(CSettingTarget(chart.input), "theme", theme);
    return chart;
}

CFillings barFillings(const char* theme)
{
    CFillings fillings;
    for (const CBar& bar : themedBars(theme).layout(kPicture).bars) {
        fillings.colors.push_back(bar.color);
        fillings.outlines.push_back(bar.outlineColor);
    }
    return fillings;
}

CFillings sliceFillings(const char* theme)
{
    const CPieLayout layout = themedPie(theme, true).layOut(kPicture);
    CFillings fillings;
    for (const CPieSlice& slice : layout.slices) {
        fillings.colors.push_back(slice.color);
        fillings.outlines.push_back(layout.outlineColor);
    }
    return fillings;
}

bool isSeen(const QColor& a, const QColor& b)
{
    return contrastRatio(a, b) >= kShapeContrast;
}

// Two neighbours are seen as two: by their fillings, or by an outline that differs from both.
bool areApart(const CFillings& of, std::size_t a, std::size_t b)
{
    const auto parts = [&](const QColor& line) {
        return isSeen(line, of.colors[a]) && isSeen(line, of.colors[b]);
    };
    return isSeen(of.colors[a], of.colors[b]) || parts(of.outlines[a]) || parts(of.outlines[b]);
}

// A threshold can leave out any item, so any two can become neighbours.
void expectAllApart(const CFillings& fillings)
{
    for (std::size_t a = 0; a < kPaletteSize; ++a) {
        for (std::size_t b = a + 1; b < kPaletteSize; ++b)
            EXPECT_TRUE(areApart(fillings, a, b)) << a << " and " << b;
    }
}

class ThemePalette : public ::testing::TestWithParam<const char*>
{};

TEST_P(ThemePalette, HasBarsOfWhichAnyTwoAreSeenApart)
{
    expectAllApart(barFillings(GetParam()));
}

TEST_P(ThemePalette, HasSlicesOfWhichAnyTwoAreSeenApart)
{
    expectAllApart(sliceFillings(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Looks, ThemePalette,
                         ::testing::Values("dark", "high-contrast", "colour-blind"),
                         [](const ::testing::TestParamInfo<const char*>& info) {
                             return nameOfTheme(info.param);
                         });

std::vector<bool> neighboursApart(const CFillings& fillings)
{
    std::vector<bool> apart;
    for (std::size_t i = 0; i < kPaletteSize; ++i)
        apart.push_back(areApart(fillings, i, (i + 1) % kPaletteSize));
    return apart;
}

// Deliberate: the default look is older than the rule and stays as it is. These are the neighbours
// that it does and does not part; readers who need all of them choose another theme.
TEST(LightPalette, PartsOnlySomeNeighbours)
{
    EXPECT_THAT(neighboursApart(sliceFillings("light")),
                ElementsAre(true, false, false, false, false, true));
    EXPECT_THAT(neighboursApart(barFillings("light")),
                ElementsAre(false, false, false, false, false, true));
}

TEST(HighContrastPalette, PartsNeighboursByTheirFillingsAlone)
{
    const std::vector<QColor> colors = barFillings("high-contrast").colors;
    for (std::size_t i = 0; i < colors.size(); ++i)
        EXPECT_TRUE(isSeen(colors[i], colors[(i + 1) % colors.size()])) << i;
}

TEST(DarkTheme, HasBarsAndSlicesThatStandOutFromTheirGround)
{
    const CFillings bars = barFillings("dark");
    for (const QColor& ground : {QColor("#1b1f27"), QColor("#232936")}) {
        for (const QColor& color : bars.colors)
            EXPECT_TRUE(isSeen(color, ground)) << color.name().toStdString();
    }
}

TEST_P(ThemePalette, IsSeenApartFromTheOthers)
{
    for (CFillings fillings : {barFillings(GetParam()), sliceFillings(GetParam())}) {
        fillings.colors.push_back(othersColor());
        fillings.outlines.push_back(fillings.outlines.front());
        for (std::size_t i = 0; i < kPaletteSize; ++i)
            EXPECT_TRUE(areApart(fillings, i, kPaletteSize)) << i;
    }
}

// Lines a pixel thin that readers are to see, but not before the bars.
TEST_P(ThemePalette, HasAGridAndABorderThatAreSeenOnThePlot)
{
    constexpr double kSeen = 5; // CIEDE2000
    const CBarLayout layout = themedBars(GetParam()).layout(kPicture);
    const QColor plot = layout.background->top;
    ASSERT_FALSE(layout.gridLines.empty());
    for (const CStraightLine& line : layout.gridLines)
        EXPECT_GE(colorDistance(line.color, plot, Sight::Full), kSeen);
    EXPECT_GE(colorDistance(layout.border->right.top, plot, Sight::Full), kSeen);
    EXPECT_GE(colorDistance(layout.border->right.bottom, plot, Sight::Full), kSeen);
}

class Others : public ::testing::TestWithParam<const char*>
{};

TEST_P(Others, LookLikeNoItemOfATheme)
{
    for (const Sight sight : kSights) {
        for (const QColor& color : sliceFillings(GetParam()).colors)
            EXPECT_GE(colorDistance(othersColor(), color, sight), kClearlyDifferent)
                << color.name().toStdString();
    }
}

TEST_P(Others, StandOutFromTheGroundOfATheme)
{
    const CChartColors colors = themedPie(GetParam(), true).settings.colors;
    EXPECT_TRUE(isSeen(othersColor(), colors.picture));
    EXPECT_TRUE(!colors.plot.isValid() || isSeen(othersColor(), colors.plot));
}

INSTANTIATE_TEST_SUITE_P(Looks, Others,
                         ::testing::Values("light", "dark", "high-contrast", "colour-blind"),
                         [](const ::testing::TestParamInfo<const char*>& info) {
                             return nameOfTheme(info.param);
                         });

void expectNoneAlike(const std::vector<QColor>& colors, Sight sight)
{
    ASSERT_EQ(colors.size(), kPaletteSize);
    for (std::size_t a = 0; a < kPaletteSize; ++a) {
        for (std::size_t b = a + 1; b < kPaletteSize; ++b)
            EXPECT_GE(colorDistance(colors[a], colors[b], sight), kClearlyDifferent)
                << a << " and " << b;
    }
}

TEST_P(ThemePalette, HasNoTwoColoursThatLookAlikeInFullSight)
{
    expectNoneAlike(sliceFillings(GetParam()).colors, Sight::Full);
}

class ColorBlindPalette : public ::testing::TestWithParam<Sight>
{};

TEST_P(ColorBlindPalette, HasNoTwoColoursThatLookAlike)
{
    expectNoneAlike(sliceFillings("colour-blind").colors, GetParam());
}

const char* nameOfSight(const ::testing::TestParamInfo<Sight>& info)
{
    constexpr std::array<const char*, 4> kNames = {"Full", "Protanopia", "Deuteranopia",
                                                   "Tritanopia"};
    return kNames[static_cast<std::size_t>(info.param)];
}

INSTANTIATE_TEST_SUITE_P(Sights, ColorBlindPalette, ::testing::ValuesIn(kSights), nameOfSight);

} // namespace
} // namespace tovangl
