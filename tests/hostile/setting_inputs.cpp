// SPDX-License-Identifier: MIT
// Fonts, locales, thresholds, positions, widths, properties, colours.
#include "hostile/hostile_input.h"

#include <limits>

namespace tovangl {

namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr std::size_t kMillion = 1000000;

using Setting = std::function<void(CAnyChart&)>;

// Adds one input that draws every kind of chart with the setting.
void addSetting(HostileTable& table, const std::string& name, const Setting& apply)
{
    const auto run = [apply] {
        for (ChartKind kind : kChartKinds) {
            CAnyChart chart(kind, true);
            addOrdinaryItems(chart);
            apply(chart);
            drawEverything(chart);
        }
    };
    table.push_back({name, run});
}

void addFontSizes(HostileTable& table)
{
    for (int size : {kMin, kMin + 1, -1, 0, 1, 2, 3, 100, 1000, 10000, 29999, 30000, 30001, 1 << 20,
                     kMax - 1, kMax}) {
        addSetting(table, "font size " + std::to_string(size),
                   [=](CAnyChart& chart) { chart.graph().setFont("Tahoma", size); });
        addSetting(table, "outline font of size " + std::to_string(size), [=](CAnyChart& chart) {
            chart.graph().setFont("DejaVu Sans", size);
            chart.setProperties(0x1cf, "title");
        });
    }
}

void addFamilies(HostileTable& table)
{
    const auto add = [&table](const char* name, const std::string& family) {
        addSetting(table, std::string("font family ") + name,
                   [=](CAnyChart& chart) { chart.graph().setFont(family, 11); });
    };
    add("empty", "");
    add("unknown", "no such family");
    add("of a million letters", std::string(kMillion, 'f'));
    add("of broken UTF-8", "\xff\xfe\xed\xa0\x80");
    add("with NULs", std::string("Tahoma\0Sans", 11));
    add("that is a list", "Tahoma,DejaVu Sans,,");
    add("with a foundry", "Tahoma [none]");
    add("with unclosed brackets", "Tahoma [[[[");
    add("with fontconfig syntax", "Tahoma:bold-12:lang=xx,*?");
    add("of quotes and line breaks", "\"'\n\r\t\\");
    add("in another script", "\xd8\xaa\xd8\xa7\xd9\x87\xd9\x88\xd9\x85\xd8\xa7");
}

void addLocales(HostileTable& table)
{
    const auto add = [&table](const char* name, const std::string& language,
                              const std::string& country) {
        addSetting(table, std::string("locale ") + name, [=](CAnyChart& chart) {
            chart.graph().setLocale(language, country);
            chart.setProperties(0x1ff, "title");
        });
    };
    add("empty", "", "");
    add("without a country", "de", "");
    add("without a language", "", "at");
    add("unknown", "zz", "ZZ");
    add("of one letter each", "d", "a");
    add("C", "C", "");
    add("of a million letters each", std::string(kMillion, 'd'), std::string(kMillion, 'a'));
    add("of NULs", std::string(2, '\0'), std::string(2, '\0'));
    add("of broken UTF-8", "\xff\xfe", "\xed\xa0\x80");
    add("whose two characters are one pair of surrogates", "\xf0\x9f\x98\x80", "\xf0\x9f\x98\x80");
    add("cut inside a pair of surrogates", "a\xf0\x9f\x98\x80", "b\xf0\x9f\x98\x80");
    add("with separators", "_-", ".@");
    add("that is a path", "..", "//");
    add("whose upper case is longer", "\xc3\x9f\xc3\x9f", "\xc3\x9f\xc3\x9f");
    add("with digits of its own", "ar", "eg");
    add("with lakh grouping", "hi", "in");
    add("with spaces as separators", "fr", "fr");
}

void addThresholds(HostileTable& table)
{
    const auto add = [&table](const std::string& name, double percent) {
        addSetting(table, "threshold " + name,
                   [=](CAnyChart& chart) { chart.graph().setThreshold(percent); });
    };
    add("NaN", kNotANumber);
    add("minus NaN", -kNotANumber);
    add("infinite", kInfinity);
    add("minus infinite", -kInfinity);
    add("minus zero", -0.0);
    add("denormal", std::numeric_limits<double>::denorm_min());
    add("greatest", std::numeric_limits<double>::max());
    add("least", std::numeric_limits<double>::lowest());
    add("one hundred", 100);
    add("just above one hundred", 100.00000000000001);
}

void addPositions(HostileTable& table)
{
    const std::vector<int> ends = {kMin, kMin + 1, -2, -1, 0, 1, 399, 400, kMax - 1, kMax};
    for (int x : ends) {
        const std::string name = "position " + std::to_string(x);
        addSetting(table, name + " along both", [=](CAnyChart& chart) { chart.setPosition(x, x); });
        addSetting(table, name + " from the left",
                   [=](CAnyChart& chart) { chart.setPosition(x, 150); });
        addSetting(table, name + " from the top",
                   [=](CAnyChart& chart) { chart.setPosition(200, x); });
    }
}

void addBarWidths(HostileTable& table)
{
    for (int width : {kMin, -1, 1, 2, 400, 10000, 1 << 16, 1 << 30, kMax - 1, kMax}) {
        addSetting(table, "bar width " + std::to_string(width),
                   [=](CAnyChart& chart) { chart.setBarWidth(width); });
    }
}

void addProperties(HostileTable& table)
{
    constexpr int kLowBits = 31;
    for (int bit = 0; bit < kLowBits; ++bit) {
        addSetting(table, "property bit " + std::to_string(bit),
                   [=](CAnyChart& chart) { chart.setProperties(1 << bit, "title"); });
    }
    for (int properties : {0, -1, kMin, kMax, kMin + 1, 0x5555, 0xaaaa}) {
        addSetting(table, "properties " + std::to_string(properties),
                   [=](CAnyChart& chart) { chart.setProperties(properties, "title"); });
    }
}

void addColors(HostileTable& table)
{
    const auto add = [&table](const std::string& name, const Color& color) {
        addSetting(table, "colour " + name, [=](CAnyChart& chart) {
            chart.addItem(1000, "coloured", color, color);
            chart.setColors(color, color, color);
        });
    };
    add("one below the range", {-1, -1, -1});
    add("one above the range", {256, 256, 256});
    add("with a single channel out of range", {0, 256, 0});
    add("at the lower end of int", {kMin, kMin, kMin});
    add("at the upper end of int", {kMax, kMax, kMax});
    add("in range again after cutting to bytes", {0x10000, 0x1ff00, 0x7fffff00});
    add("black on black", {0, 0, 0});
    add("white on white", {255, 255, 255});
}

// Every setting by its name, with values that it takes and values that it refuses.
void addSettingsByName(HostileTable& table)
{
    const std::vector<std::string> values = {"",
                                             "0",
                                             "-1",
                                             "true",
                                             "nan",
                                             "inf",
                                             "1e999",
                                             "9999999999999999999",
                                             "#000000",
                                             "#00000",
                                             "#0000001",
                                             ",",
                                             "#000000,",
                                             "default",
                                             "dark",
                                             "none",
                                             "line,,",
                                             "de_AT",
                                             "_",
                                             "2147483647,-2147483648",
                                             "\xff\xfe",
                                             std::string(3, '\0'),
                                             std::string(kMillion, 'x'),
                                             std::string(kMillion, ',')};
    for (const auto& row : settings()) {
        const std::string name = row.name;
        addSetting(table, "by name: " + name, [=](CAnyChart& chart) {
            for (const std::string& value : values)
                (void)chart.graph().setByName(name, value);
        });
    }
    addSetting(table, "by a name that there is not", [=](CAnyChart& chart) {
        for (const std::string& value : values)
            (void)chart.graph().setByName(value, value);
    });
}

// All settings at once at the ends of their types.
void addEverything(HostileTable& table)
{
    for (int end : {kMin, kMax}) {
        addSetting(table, "every number at " + std::to_string(end), [=](CAnyChart& chart) {
            chart.graph().setFont("", end);
            chart.graph().setThreshold(end);
            chart.setProperties(end, "title");
            chart.setPosition(end, end);
            chart.setBarWidth(end);
            chart.setColors({end, end, end}, {end, end, end}, {end, end, end});
            chart.addItem(end, "item", {end, end, end}, {end, end, end});
        });
    }
}

} // namespace

HostileTable settingInputs()
{
    HostileTable table;
    addFontSizes(table);
    addFamilies(table);
    addLocales(table);
    addThresholds(table);
    addPositions(table);
    addBarWidths(table);
    addProperties(table);
    addColors(table);
    addSettingsByName(table);
    addEverything(table);
    return table;
}

} // namespace tovangl
