// SPDX-License-Identifier: MIT
// The C interface: the life of a chart, its settings, and what belongs to no chart.
#include "c/chart_handle.h"
#include "chart/CBarBase.h"
#include "chart/CPieGraph.h"
#include "chart/chart_rendering.h"
#include <tovangl/Setting.h>
#include <tovangl/Version.h>

#include <algorithm>
#include <string_view>
#include <utility>

namespace tovangl {

namespace {

static_assert(int{TOVANGL_PIE} == int{Setting::Pie});
static_assert(int{TOVANGL_BARS} == int{Setting::VerticalBars});
static_assert(int{TOVANGL_HBARS} == int{Setting::HorizontalBars});
static_assert(int{TOVANGL_SETTING_BOOLEAN} == static_cast<int>(SettingType::Boolean));
static_assert(int{TOVANGL_SETTING_WHOLE} == static_cast<int>(SettingType::Whole));
static_assert(int{TOVANGL_SETTING_REAL} == static_cast<int>(SettingType::Real));
static_assert(int{TOVANGL_SETTING_TEXT} == static_cast<int>(SettingType::Text));
static_assert(int{TOVANGL_SETTING_COLOR} == static_cast<int>(SettingType::Color));
static_assert(int{TOVANGL_SETTING_PICTURE_COLOR} == static_cast<int>(SettingType::PictureColor));
static_assert(int{TOVANGL_SETTING_PALETTE} == static_cast<int>(SettingType::Palette));
static_assert(int{TOVANGL_SETTING_LOCALE} == static_cast<int>(SettingType::Locale));
static_assert(int{TOVANGL_SETTING_AXIS_PROPERTIES} ==
              static_cast<int>(SettingType::AxisProperties));
static_assert(int{TOVANGL_SETTING_POSITION} == static_cast<int>(SettingType::Position));
static_assert(int{TOVANGL_SETTING_CHOICE} == static_cast<int>(SettingType::Choice));
static_assert(int{TOVANGL_SETTING_LINK} == static_cast<int>(SettingType::Link));

constexpr bool kWithoutBackground = false;

// Null for a number that is no kind.
std::unique_ptr<tovangl_chart> makeChart(int kind)
{
    switch (kind) {
    case TOVANGL_PIE:
        return std::make_unique<tovangl_chart>(std::make_unique<CPieGraph>(kWithoutBackground));
    case TOVANGL_BARS:
        return std::make_unique<tovangl_chart>(std::make_unique<CBarGraph>(kWithoutBackground));
    case TOVANGL_HBARS:
        return std::make_unique<tovangl_chart>(
            std::make_unique<CLabeledBarGraph>(kWithoutBackground));
    default:
        return nullptr;
    }
}

int kindOf(const tovangl_chart& chart)
{
    if (chart.pie)
        return TOVANGL_PIE;
    return chart.bars->input().kind == BarKind::Standing ? TOVANGL_BARS : TOVANGL_HBARS;
}

bool hasSetting(const tovangl_chart& chart, std::string_view name)
{
    const SettingTable table = settings();
    const int kind = kindOf(chart);
    return std::any_of(table.begin(), table.end(), [=](const Setting& setting) {
        return setting.name == name && (setting.charts & kind) != 0;
    });
}

COutcome setByName(tovangl_chart& chart, std::string_view name, std::string_view value)
{
    std::string reason = chart.graph.setByName(name, value);
    if (reason.empty())
        return {};
    return {hasSetting(chart, name) ? TOVANGL_BAD_VALUE : TOVANGL_UNKNOWN_SETTING,
            std::move(reason)};
}

// A chart of the default font with a caption and numbers.
tovangl_status drawTinyChart()
{
    constexpr int kWidth = 120; // pixels: enough for the axes
    constexpr int kHeight = 90; // pixels
    CBarGraph graph(kWithoutBackground);
    graph.input().addItem(1, QStringLiteral("1"), QColor(), QColor());
    return renderPicture(graph, kWidth, kHeight).size > 0 ? TOVANGL_OK : TOVANGL_NO_PICTURE;
}

} // namespace

} // namespace tovangl

const char* tovangl_version()
{
    return tovangl::version();
}

const char* tovangl_status_text(int status)
{
    switch (status) {
    case TOVANGL_NULL_ARGUMENT:
        return "A pointer is null that must not be.";
    case TOVANGL_BAD_ARGUMENT:
        return "An argument is out of its range.";
    case TOVANGL_NOT_UTF8:
        return "A caption is not UTF-8.";
    case TOVANGL_UNKNOWN_SETTING:
        return "A chart of this kind has no setting of that name.";
    case TOVANGL_BAD_VALUE:
        return "The setting does not accept the value.";
    case TOVANGL_WRONG_KIND:
        return "A chart of this kind has no such thing.";
    case TOVANGL_NO_PICTURE:
        return "The picture cannot be made.";
    case TOVANGL_NO_MEMORY:
        return "There is not enough memory.";
    case TOVANGL_NO_FONT:
        return "The file cannot be read, or is not a font that can be used.";
    default:
        return "";
    }
}

tovangl_status tovangl_warm_up()
{
    try {
        return tovangl::drawTinyChart();
    } catch (...) {
        return TOVANGL_NO_MEMORY;
    }
}

size_t tovangl_setting_count()
{
    const tovangl::SettingTable table = tovangl::settings();
    return static_cast<std::size_t>(table.end() - table.begin());
}

tovangl_status tovangl_setting_at(size_t index, tovangl_setting* setting)
{
    if (!setting)
        return TOVANGL_NULL_ARGUMENT;
    *setting = tovangl_setting();
    if (index >= tovangl_setting_count())
        return TOVANGL_BAD_ARGUMENT;
    const tovangl::Setting& row = tovangl::settings().begin()[index];
    *setting = {row.name,    row.choices, row.defaultValue,           row.summary,
                row.minimum, row.maximum, static_cast<int>(row.type), row.charts};
    return TOVANGL_OK;
}

tovangl_status tovangl_chart_create(int kind, tovangl_chart** chart)
{
    if (!chart)
        return TOVANGL_NULL_ARGUMENT;
    *chart = nullptr;
    try {
        *chart = tovangl::makeChart(kind).release();
    } catch (...) {
        return TOVANGL_NO_MEMORY;
    }
    return *chart ? TOVANGL_OK : TOVANGL_BAD_ARGUMENT;
}

void tovangl_chart_destroy(tovangl_chart* chart)
{
    const std::unique_ptr<tovangl_chart> owner(chart);
}

const char* tovangl_chart_error(const tovangl_chart* chart)
{
    return chart ? chart->error : "";
}

tovangl_status tovangl_chart_set(tovangl_chart* chart, const char* name, const char* value)
{
    return tovangl::callChart(chart, [=](tovangl_chart& target) -> tovangl::COutcome {
        if (!name || !value)
            return {TOVANGL_NULL_ARGUMENT};
        return tovangl::setByName(target, name, value);
    });
}

tovangl_status tovangl_chart_set_sized(tovangl_chart* chart, const char* name, const char* value,
                                       size_t length)
{
    return tovangl::callChart(chart, [=](tovangl_chart& target) -> tovangl::COutcome {
        if (!name || (!value && length > 0))
            return {TOVANGL_NULL_ARGUMENT};
        return tovangl::setByName(target, name, {value, length});
    });
}

tovangl_status tovangl_chart_clear(tovangl_chart* chart)
{
    return tovangl::callChart(chart, [](tovangl_chart& target) -> tovangl::COutcome {
        target.graph.clear();
        return {};
    });
}
