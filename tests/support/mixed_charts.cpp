// SPDX-License-Identifier: MIT
// Charts of every kind and many settings, each told by a number.
#include "support/mixed_charts.h"

#include "support/CDice.h"

#include <array>

namespace tovangl {

namespace {

constexpr std::array<const char*, 8> kCaptions = {"",
                                                  "usr",
                                                  "/var/lib/a rather long folder name",
                                                  "Größe",
                                                  "Αθήνα",
                                                  "two\nlines",
                                                  "\xff broken \xc3",
                                                  "العربية"};
constexpr std::array<const char*, 4> kFamilies = {"Tahoma", "DejaVu Sans", "no such family", ""};
constexpr std::array<const char*, 5> kLanguages = {"de", "en", "fr", "hi", "zz"};
constexpr std::array<const char*, 5> kCountries = {"at", "us", "fr", "in", "ZZ"};

void applySettings(CAnyChart& chart, CDice& dice)
{
    if (dice.oneIn(2))
        chart.graph().setFont(dice.pick(kFamilies), dice.roll(8, 20));
    if (dice.oneIn(2))
        chart.graph().setLocale(dice.pick(kLanguages), dice.pick(kCountries));
    if (dice.oneIn(4))
        chart.graph().setThreshold(dice.roll(0, 20));
    if (dice.oneIn(2))
        chart.setProperties(dice.roll(0, 8191), dice.pick(kCaptions));
    if (dice.oneIn(4))
        chart.setColors(dice.rollColor(), dice.rollColor(), dice.rollColor());
    if (dice.oneIn(8))
        chart.setPosition(dice.roll(-1, 400), dice.roll(-1, 300));
    if (dice.oneIn(8))
        chart.setBarWidth(dice.roll(0, 40));
}

void addItems(CAnyChart& chart, CDice& dice)
{
    const int count = dice.roll(0, 24);
    for (int i = 0; i < count; ++i) {
        if (dice.oneIn(3))
            chart.addItem(dice.rollValue(), dice.pick(kCaptions), dice.rollColor(),
                          dice.rollColor());
        else
            chart.addItem(dice.rollValue(), dice.pick(kCaptions));
    }
}

CExport renderOnce(CAnyChart& chart, CDice& dice)
{
    const int width = dice.roll(1, 400);
    const int height = dice.roll(1, 300);
    return dice.oneIn(8) ? chart.createPixmapForPrinter(width, height, dice.roll(1, 3))
                         : chart.createPixmap(width, height);
}

CAnyChart makeChart(unsigned number, CDice& dice)
{
    const ChartKind kind = kChartKinds[number % kChartKinds.size()];
    CAnyChart chart(kind, dice.oneIn(2));
    applySettings(chart, dice);
    addItems(chart, dice);
    return chart;
}

} // namespace

CAnyChart makeMixedChart(unsigned number)
{
    CDice dice(number);
    return makeChart(number, dice);
}

CRenderedChart renderMixedChart(unsigned number)
{
    CDice dice(number);
    CAnyChart chart = makeChart(number, dice);
    return copyRendering(chart, renderOnce(chart, dice));
}

} // namespace tovangl
