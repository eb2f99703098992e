// SPDX-License-Identifier: MIT
// Charts that differ from the next one in a single setting, to be compared between builds.
#include "layout/swept_charts.h"

#include <array>

namespace tovangl {

namespace {

constexpr std::array<const char*, 3> kKinds = {"pie", "bars", "lying"};

// What each chart has where its sweep says nothing else.
constexpr int kWidth = 200;
constexpr int kHeight = 150;

constexpr std::array kAxisProperties = {"line",       "labels",   "title",           "bold-labels",
                                        "bold-title", "prefixes", "hide-overlapped", "shift-last"};
constexpr const char* kUsualAxis = "line,labels,title,prefixes,hide-overlapped";
constexpr const char* kAxisOfWholeNumbers = "line,labels,title,hide-overlapped";
constexpr std::array kPieOptions = {"bold", "shorten_left", "keep_overlaps", "without_sizes"};

struct CPlace
{
    const char* language;
    const char* country;
    const char* caption;
    bool hasNegatives;
};

// Locales of many scripts. Negative numbers are left out where versions of Qt write them
// differently, and captions are Latin where the pinned fonts lack the script: docs/qt_versions.md.
constexpr std::array kPlaces = {
    CPlace{"en", "US", "January", true},     CPlace{"de", "AT", "Jänner größer", true},
    CPlace{"fr", "FR", "Février", true},     CPlace{"es", "ES", "mañana", true},
    CPlace{"pl", "PL", "Październik", true}, CPlace{"pt", "PT", "Março", true},
    CPlace{"et", "EE", "jaanuar", true},     CPlace{"bg", "BG", "Януари", true},
    CPlace{"ru", "RU", "Январь", true},      CPlace{"el", "GR", "Ιανουάριος", true},
    CPlace{"hy", "AM", "Հունվար", true},     CPlace{"ka", "GE", "იანვარი", true},
    CPlace{"he", "IL", "ינואר שלום", false}, CPlace{"ar", "EG", "يناير", false},
    CPlace{"fa", "IR", "ژانویه", false},     CPlace{"ur", "PK", "جنوری", false},
    CPlace{"hi", "IN", "Delhi", true},       CPlace{"my", "MM", "ဇန်နဝါရီ", true},
    CPlace{"th", "TH", "มกราคม", true},      CPlace{"am", "ET", "ጃንዩወሪ", true},
    CPlace{"zh", "CN", "一月", true},        CPlace{"ja", "JP", "いちがつ", true},
    CPlace{"ko", "KR", "일월", true},
};

class CSweep
{
public:
    void add(const std::string& name, const CChartFile& chart)
    {
        m_charts.push_back({name, chart});
    }
    // The same of every kind.
    void addKinds(const std::string& name, CChartFile chart)
    {
        for (const char* kind : kKinds) {
            chart.kind = QLatin1String(kind);
            add(name + '_' + kind, chart);
        }
    }
    [[nodiscard]] std::vector<CSweptChart> take() { return std::move(m_charts); }

private:
    std::vector<CSweptChart> m_charts;
};

CChartFile chartOf(std::vector<CChartFile::CItem> items)
{
    CChartFile chart;
    chart.size = QSize(kWidth, kHeight);
    chart.items = std::move(items);
    return chart;
}

CChartFile chartOfFour()
{
    return chartOf({{12, "Item 1", {}}, {37, "Item 2", {}}, {25, "Item 3", {}}, {8, "Item 4", {}}});
}

std::string numbered(const char* sweep, int number)
{
    return std::string(sweep) + '_' + std::to_string(number);
}

void sweepWidths(CSweep& sweep)
{
    constexpr int kLeast = 40;
    constexpr int kGreatest = 300;
    constexpr std::array<int, 3> kHeights = {100, 150, 205};
    CChartFile chart = chartOfFour();
    chart.background = true;
    for (int width = kLeast; width <= kGreatest; ++width) {
        for (const int height : kHeights) {
            chart.size = QSize(width, height);
            sweep.addKinds(numbered("width", width) + 'x' + std::to_string(height), chart);
        }
    }
}

void sweepFontSizes(CSweep& sweep)
{
    constexpr int kLeast = -3;
    constexpr int kGreatest = 40;
    constexpr std::array kFamilies = {"Tahoma", "DejaVu Sans", "", "Tahoma, DejaVu Sans"};
    CChartFile chart = chartOfFour();
    chart.size *= 2;
    for (int size = kLeast; size <= kGreatest; ++size) {
        for (std::size_t family = 0; family < kFamilies.size(); ++family) {
            chart.settings = {{"font", kFamilies[family]}, {"font_size", std::to_string(size)}};
            chart.printFactor.reset();
            const std::string name = numbered("font", size) + '_' + std::to_string(family);
            sweep.addKinds(name, chart);
            chart.printFactor = 2;
            sweep.addKinds(name + "_print", chart);
        }
    }
}

void sweepLocales(CSweep& sweep)
{
    constexpr std::array<long long, 5> kValues = {1234567, 98765, 4096, 250000, 12345678};
    for (const CPlace& place : kPlaces) {
        CChartFile chart = chartOf({});
        chart.size *= 2;
        for (const long long value : kValues)
            chart.items.push_back({value, QString::fromUtf8(place.caption), {}});
        if (place.hasNegatives)
            chart.items.push_back({-1234567, QString::fromUtf8(place.caption), {}});
        const std::string locale = std::string(place.language) + '_' + place.country;
        chart.settings = {{"locale", locale}};
        sweep.addKinds("locale_" + locale, chart);
        // Whole numbers, where a unit is used by default.
        chart.kind = "bars";
        chart.settings.push_back({"value_axis", kAxisOfWholeNumbers});
        sweep.add("locale_" + locale + "_whole_bars", chart);
    }
}

// Each option is set where its bit in number is.
std::vector<CChartFile::CSetting> pieOptions(unsigned number)
{
    std::vector<CChartFile::CSetting> settings;
    for (std::size_t i = 0; i < kPieOptions.size(); ++i)
        settings.push_back({kPieOptions[i], (number >> i & 1) != 0 ? "true" : "false"});
    return settings;
}

void sweepPieOptions(CSweep& sweep)
{
    CChartFile chart = chartOfFour();
    chart.kind = "pie";
    for (unsigned number = 0; number < 1u << kPieOptions.size(); ++number) {
        chart.settings = pieOptions(number);
        sweep.add(numbered("options", static_cast<int>(number)), chart);
    }
}

// Those properties whose bit in number is set.
std::string axisProperties(unsigned number)
{
    std::string names;
    for (std::size_t i = 0; i < kAxisProperties.size(); ++i) {
        if ((number >> i & 1) != 0)
            names += (names.empty() ? "" : ",") + std::string(kAxisProperties[i]);
    }
    return names.empty() ? "none" : names;
}

void sweepAxisProperties(CSweep& sweep)
{
    // A title is set first, because it would show itself.
    const std::vector<CChartFile::CSetting> bars = {{"category_title", "Pieces sold"},
                                                    {"category_axis", kUsualAxis},
                                                    {"value_title", "Pieces sold"},
                                                    {"value_axis", kUsualAxis}};
    const std::vector<CChartFile::CSetting> lying = {{"category_title", "Pieces sold"}};
    CChartFile chart = chartOfFour();
    const auto add = [&](const char* name, int number, const char* kind,
                         std::vector<CChartFile::CSetting> settings, const char* axis) {
        chart.kind = kind;
        chart.settings = std::move(settings);
        chart.settings.push_back({axis, axisProperties(static_cast<unsigned>(number))});
        sweep.add(numbered(name, number), chart);
    };
    for (int number = 0; number < 1 << kAxisProperties.size(); ++number) {
        add("across", number, "bars", bars, "category_axis");
        add("upright", number, "bars", bars, "value_axis");
        add("lying_upright", number, "lying", lying, "category_axis");
    }
}

// A caption of some sixty letters that is unlike the next one.
QString longCaption(int number)
{
    return QString::fromLatin1("%1. a folder of the year %2 with far more letters than fit here")
        .arg(number)
        .arg(1990 + 7 * number);
}

void sweepLongCaptions(CSweep& sweep)
{
    constexpr int kItems = 10;
    constexpr int kLeast = 200;
    constexpr int kGreatest = 360;
    constexpr int kStep = 4;
    CChartFile chart = chartOf({});
    chart.background = true;
    for (int i = 0; i < kItems; ++i)
        chart.items.push_back({10 + 7 * i, longCaption(i), {}});
    for (int width = kLeast; width <= kGreatest; width += kStep) {
        chart.size = QSize(width, 300);
        chart.settings.clear();
        sweep.addKinds(numbered("long", width), chart);
        chart.kind = "pie";
        for (const unsigned options : {4u, 8u, 12u, 14u}) {
            chart.settings = pieOptions(options);
            sweep.add(numbered("long", width) + "_pie_" + std::to_string(options), chart);
        }
    }
}

} // namespace

std::vector<CSweptChart> sweptCharts()
{
    CSweep sweep;
    sweepWidths(sweep);
    sweepFontSizes(sweep);
    sweepLocales(sweep);
    sweepPieOptions(sweep);
    sweepAxisProperties(sweep);
    sweepLongCaptions(sweep);
    return sweep.take();
}

} // namespace tovangl
