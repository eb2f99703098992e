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

// Every property of an axis that is one bit.
constexpr std::array<int, 8> kAxisProperties = {1, 2, 4, 8, 16, 32, 128, 4096};
// Line, labels, title, unit prefixes and hidden overlaps.
constexpr int kUsualAxis = 167;
constexpr int kUnitPrefixes = 32;
// Bold labels, shortened from the left, overlaps removed, sizes.
constexpr std::array<int, 4> kPieOptions = {8, 64, 128, 256};

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
            chart.font = CChartFile::CFont{QLatin1String(kFamilies[family]), size};
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
        chart.locale = CChartFile::CLocale{place.language, place.country};
        const std::string name = std::string("locale_") + place.language + '_' + place.country;
        sweep.addKinds(name, chart);
        // Whole numbers, where a unit is used by default.
        chart.across = chart.upright = CChartFile::CAxisSetting{kUsualAxis - kUnitPrefixes, ""};
        sweep.addKinds(name + "_whole", chart);
    }
}

// The sum of those options whose bit is set in number.
template <std::size_t N>
int sumOf(const std::array<int, N>& options, unsigned number)
{
    int sum = 0;
    for (std::size_t i = 0; i < N; ++i) {
        if (number >> i & 1)
            sum += options[i];
    }
    return sum;
}

void sweepPieOptions(CSweep& sweep)
{
    CChartFile chart = chartOfFour();
    chart.kind = "pie";
    for (unsigned number = 0; number < 1u << kPieOptions.size(); ++number) {
        chart.options = sumOf(kPieOptions, number);
        sweep.add(numbered("options", *chart.options), chart);
    }
}

void sweepAxisProperties(CSweep& sweep)
{
    const CChartFile::CAxisSetting usual{kUsualAxis, "Pieces sold"};
    CChartFile chart = chartOfFour();
    for (unsigned number = 0; number < 1u << kAxisProperties.size(); ++number) {
        const CChartFile::CAxisSetting swept{sumOf(kAxisProperties, number), "A title"};
        chart.across = swept;
        chart.upright = usual;
        chart.kind = "bars";
        sweep.add(numbered("across", swept.properties), chart);
        chart.across = usual;
        chart.upright = swept;
        sweep.add(numbered("upright", swept.properties), chart);
        chart.across.reset();
        chart.kind = "lying";
        sweep.add(numbered("lying_upright", swept.properties), chart);
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
        for (const int options : {0, 64, 128, 256, 384}) {
            chart.options = options;
            sweep.addKinds(numbered("long", width) + '_' + std::to_string(options), chart);
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
