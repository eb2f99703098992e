// SPDX-License-Identifier: MIT
// The manual's page of settings, made from the library's own table.
#include "settings_page.h"

#include <tovangl/tovangl.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

namespace {

using tovangl::Graph;
using tovangl::HorizontalBarGraph;
using tovangl::PieGraph;
using tovangl::Setting;
using tovangl::SettingType;
using tovangl::VerticalBarGraph;

constexpr int kWidth = 400; // pixels
constexpr int kHeight = 200;

// What the table does not know of a setting: how C++ sets it, and what shows it best.
struct Example
{
    std::string name;
    const char* setter; // in the words of the manual
    Setting::Chart chart;
    bool hasBackground;
    std::vector<std::pair<const char*, const char*>> values;
};

constexpr bool kWithBackground = true;
constexpr bool kPlain = false;

const std::vector<Example>& examples()
{
    static const std::vector<Example> all = {
        {"theme",
         "tovangl::Graph::setTheme",
         Setting::VerticalBars,
         kWithBackground,
         {{"theme", "dark"}}},
        {"title",
         "tovangl::Graph::setTitle",
         Setting::VerticalBars,
         kWithBackground,
         {{"title", "Sales in 2024"}}},
        {"font",
         "tovangl::Graph::setFont",
         Setting::VerticalBars,
         kPlain,
         {{"font", "DejaVu Sans"}}},
        {"font_size",
         "tovangl::Graph::setFont",
         Setting::VerticalBars,
         kPlain,
         {{"font_size", "16"}}},
        {"locale",
         "tovangl::Graph::setLocale",
         Setting::HorizontalBars,
         kPlain,
         {{"locale", "de_AT"}}},
        {"threshold", "tovangl::Graph::setThreshold", Setting::Pie, kPlain, {{"threshold", "5"}}},
        {"others",
         "tovangl::Graph::setOthers",
         Setting::Pie,
         kPlain,
         {{"threshold", "5"}, {"others", "smaller folders"}}},
        {"others_link",
         "tovangl::Graph::setLink",
         Setting::Pie,
         kPlain,
         {{"threshold", "5"}, {"others", "smaller folders"}, {"others_link", "folders.html"}}},
        {"palette",
         "tovangl::Graph::setPalette",
         Setting::VerticalBars,
         kPlain,
         {{"palette", "#2a9d8f,#e9c46a,#e76f51"}}},
        {"background",
         "an argument of the constructor",
         Setting::Pie,
         kPlain,
         {{"background", "true"}}},
        {"picture_color",
         "tovangl::Graph::setPictureColor and tovangl::Graph::setPictureTransparent",
         Setting::Pie,
         kPlain,
         {{"picture_color", "#fdf6e3"}}},
        {"text_color",
         "tovangl::Graph::setTextColor",
         Setting::HorizontalBars,
         kPlain,
         {{"text_color", "#8a1c1c"}}},
        {"plot_color",
         "tovangl::Graph::setPlotColor",
         Setting::VerticalBars,
         kWithBackground,
         {{"plot_color", "#fdf6e3"}}},
        {"border_color",
         "tovangl::Graph::setBorderColor",
         Setting::HorizontalBars,
         kWithBackground,
         {{"border_color", "#c81e1e"}}},
        {"outline_color",
         "tovangl::Graph::setOutlineColor",
         Setting::Pie,
         kPlain,
         {{"outline_color", "#000000"}}},
        {"kilo", "tovangl::Graph::setKilo", Setting::VerticalBars, kPlain, {{"kilo", "1000"}}},
        {"scale", "tovangl::Graph::setScale", Setting::VerticalBars, kPlain, {{"scale", "2"}}},
        {"follow_display",
         "tovangl::Graph::setByName",
         Setting::VerticalBars,
         kWithBackground,
         {{"follow_display", "true"}}},
        {"fast",
         "tovangl::Graph::setCompression",
         Setting::VerticalBars,
         kPlain,
         {{"fast", "true"}}},
        {"category_axis",
         "tovangl::VerticalBarGraph::setHorizontalAxis and "
         "tovangl::HorizontalBarGraph::setVerticalAxis",
         Setting::VerticalBars,
         kPlain,
         {{"category_axis", "line,labels,bold-labels"}}},
        {"category_title",
         "tovangl::VerticalBarGraph::setHorizontalAxis and "
         "tovangl::HorizontalBarGraph::setVerticalAxis",
         Setting::VerticalBars,
         kPlain,
         {{"category_title", "Month"}}},
        {"value_axis",
         "tovangl::VerticalBarGraph::setVerticalAxis",
         Setting::VerticalBars,
         kPlain,
         {{"value_axis", "line,labels,bold-labels"}}},
        {"value_title",
         "tovangl::VerticalBarGraph::setVerticalAxis",
         Setting::VerticalBars,
         kPlain,
         {{"value_title", "Pieces sold"}}},
        {"bar_width",
         "tovangl::VerticalBarGraph::setBarWidth and tovangl::HorizontalBarGraph::setBarWidth",
         Setting::VerticalBars,
         kPlain,
         {{"bar_width", "12"}}},
        {"position",
         "tovangl::VerticalBarGraph::setPosition and tovangl::HorizontalBarGraph::setPosition",
         Setting::VerticalBars,
         kPlain,
         {{"position", "100,150"}}},
        {"axis_color",
         "tovangl::VerticalBarGraph::setAxisColor and tovangl::HorizontalBarGraph::setAxisColor",
         Setting::VerticalBars,
         kPlain,
         {{"axis_color", "#c81e1e"}}},
        {"axis_title_color",
         "tovangl::VerticalBarGraph::setAxisTitleColor and "
         "tovangl::HorizontalBarGraph::setAxisTitleColor",
         Setting::VerticalBars,
         kPlain,
         {{"category_title", "Month"}, {"axis_title_color", "#c81e1e"}}},
        {"grid_color",
         "tovangl::VerticalBarGraph::setGridColor",
         Setting::VerticalBars,
         kPlain,
         {{"grid_color", "#e7b4b4"}}},
        {"value_color",
         "tovangl::HorizontalBarGraph::setValueColor",
         Setting::HorizontalBars,
         kPlain,
         {{"value_color", "#c81e1e"}}},
        {"bold", "tovangl::PieGraph::setProperty", Setting::Pie, kPlain, {{"bold", "true"}}},
        {"shorten_left",
         "tovangl::PieGraph::setProperty",
         Setting::Pie,
         kPlain,
         {{"shorten_left", "true"}}},
        {"keep_overlaps",
         "tovangl::PieGraph::setProperty",
         Setting::Pie,
         kPlain,
         {{"keep_overlaps", "true"}}},
        {"without_sizes",
         "tovangl::PieGraph::setProperty",
         Setting::Pie,
         kPlain,
         {{"without_sizes", "true"}}},
        {"unit", "tovangl::PieGraph::setUnit", Setting::Pie, kPlain, {{"unit", "bit"}}},
        {"line_color",
         "tovangl::PieGraph::setLineColor",
         Setting::Pie,
         kPlain,
         {{"line_color", "#c81e1e"}}},
    };
    return all;
}

using Items = std::vector<std::pair<long, const char*>>;

const Items kMonths = {{3200, "January"}, {4100, "February"}, {2750, "March"},
                       {1800, "April"},   {5050, "May"},      {4600, "June"}};
// Three of the slices are so small that their captions are in each other's way.
const Items kFolders = {{5200, "/usr/share/locale"}, {210, "/usr/share/doc"},
                        {180, "/usr/lib/modules"},   {150, "/usr/bin"},
                        {4100, "/home/guest"},       {1900, "/var/cache/apt/archives"}};

template <typename Chart>
std::unique_ptr<Graph> chartOf(const Items& items, bool hasBackground)
{
    auto chart = std::make_unique<Chart>(hasBackground);
    for (const auto& [value, caption] : items)
        chart->addItem(value, caption);
    return chart;
}

std::unique_ptr<Graph> chartOf(Setting::Chart kind, bool hasBackground)
{
    if (kind == Setting::Pie)
        return chartOf<PieGraph>(kFolders, hasBackground);
    if (kind == Setting::VerticalBars)
        return chartOf<VerticalBarGraph>(kMonths, hasBackground);
    return chartOf<HorizontalBarGraph>(kMonths, hasBackground);
}

const Example* findExample(const std::string& name)
{
    const auto found = std::find_if(examples().begin(), examples().end(),
                                    [&](const Example& it) { return it.name == name; });
    return found == examples().end() ? nullptr : &*found;
}

std::string code(const std::string& text)
{
    return '`' + text + '`';
}

// Commas between the choices are followed by a space.
std::string list(const std::string& choices)
{
    std::string text = "`";
    for (const char letter : choices)
        text += letter == ',' ? std::string("`, `") : std::string(1, letter);
    return text + '`';
}

std::string rangeOf(const Setting& setting)
{
    if (setting.minimum == std::numeric_limits<int>::min())
        return "any whole number";
    return "a whole number from " + std::to_string(setting.minimum) + " to " +
           std::to_string(setting.maximum);
}

std::string valueOf(const Setting& setting)
{
    switch (setting.type) {
    case SettingType::Boolean:
        return "`true` or `false`";
    case SettingType::Whole:
        return rangeOf(setting);
    case SettingType::Real:
        return "a decimal number, such as `2` or `1.5`";
    case SettingType::Text:
        return "any text, in UTF-8";
    case SettingType::Color:
        return "a colour as `#rrggbb`, or `default`";
    case SettingType::PictureColor:
        return "a colour as `#rrggbb`, `transparent`, or `default`";
    case SettingType::Palette:
        return "colours as `#rrggbb,#rrggbb`, the name of a theme, or `default`";
    case SettingType::Locale:
        return "a language and a country, such as `de_AT`; `C`; or `default`";
    case SettingType::AxisProperties:
        return "some of " + list(setting.choices) + " with commas between them, or `none`";
    case SettingType::Position:
        return "two whole numbers with a comma between them, such as `60,200`";
    case SettingType::Choice:
        return "one of " + list(setting.choices);
    case SettingType::Link:
        return "an address that begins with `http:`, `https:` or `mailto:`, or one relative to the "
               "page; or empty";
    }
    return {};
}

std::string chartsOf(const Setting& setting)
{
    const std::vector<std::pair<Setting::Chart, const char*>> kinds = {
        {Setting::VerticalBars, "tovangl::VerticalBarGraph"},
        {Setting::HorizontalBars, "tovangl::HorizontalBarGraph"},
        {Setting::Pie, "tovangl::PieGraph"}};
    std::string text;
    for (const auto& [kind, name] : kinds) {
        if ((setting.charts & kind) != 0)
            text += (text.empty() ? "" : ", ") + std::string(name);
    }
    return text;
}

std::string optionOf(const Setting& setting)
{
    std::string option = setting.name;
    std::replace(option.begin(), option.end(), '_', '-');
    return "--" + option;
}

std::string defaultOf(const Setting& setting)
{
    const std::string value = setting.defaultValue;
    return value.empty() ? "empty" : code(value);
}

// The picture's name, or nothing where a value of the example is refused.
std::string drawExample(const Example& example, PictureFolder& pictures)
{
    const std::unique_ptr<Graph> chart = chartOf(example.chart, example.hasBackground);
    for (const auto& [name, value] : example.values) {
        if (!chart->setByName(name, value).empty())
            return {};
    }
    const std::string picture = "settings_" + example.name;
    pictures.draw(*chart, picture, kWidth, kHeight);
    return picture + ".png";
}

std::string valuesOf(const Example& example)
{
    std::string text;
    for (const auto& [name, value] : example.values)
        text += (text.empty() ? "" : ", ") + std::string(name) + ' ' + value;
    return text;
}

std::string tableOf(const Setting& setting, const Example& example)
{
    return "| | |\n|---|---|\n| value | " + valueOf(setting) + " |\n| default | " +
           defaultOf(setting) + " |\n| charts | " + chartsOf(setting) + " |\n| in C++ | " +
           example.setter + " |\n| option | " + code(optionOf(setting)) + " |\n";
}

// Shown at the size of scale 1.
std::string imageOf(const Example& example, const std::string& picture)
{
    return "\\image html " + picture + " \"" + valuesOf(example) +
           "\" width=" + std::to_string(kWidth) + "px\n";
}

std::string sectionOf(const Setting& setting, PictureFolder& pictures)
{
    const std::string name = setting.name;
    const std::string head =
        "## " + name + " {#setting_" + name + "}\n\n" + setting.summary + "\n\n";
    const Example* example = findExample(name);
    const std::string picture = example ? drawExample(*example, pictures) : std::string();
    if (picture.empty()) {
        pictures.miss("an example of " + name);
        return head;
    }
    return head + tableOf(setting, *example) + '\n' + imageOf(*example, picture) + '\n';
}

constexpr const char* kIntroduction =
    R"(# Settings {#settings}

Every setting of a chart has a name. tovangl::Graph::setByName sets it to a value that is written as
text, tovangl-chart has an option for it, and tovangl::settings lists them all, for a host that offers
them to its own users.

Where several are set, the order is that of this page: a theme replaces colours that were set before
it. A value that is refused changes nothing.

)";

} // namespace

std::string settingsPage(PictureFolder& pictures)
{
    std::string page = kIntroduction;
    for (const Setting& setting : tovangl::settings())
        page += sectionOf(setting, pictures);
    return page;
}
