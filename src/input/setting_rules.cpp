// SPDX-License-Identifier: MIT
// The one table of all settings.
#include "input/setting_rules.h"

#include "input/CBarInput.h"
#include "input/CPieInput.h"
#include "input/setting_values.h"
#include "input/themes.h"

#include <array>
#include <limits>

namespace tovangl {

namespace {

using Target = const CSettingTarget&;
using Text = std::string_view;

constexpr int kPie = Setting::Pie;
constexpr int kVertical = Setting::VerticalBars;
constexpr int kHorizontal = Setting::HorizontalBars;
constexpr int kBars = kVertical | kHorizontal;
constexpr int kAll = kPie | kBars;

constexpr long kLeastInt = std::numeric_limits<int>::min();
constexpr long kGreatestInt = std::numeric_limits<int>::max();

// A setting's place in the input. It says whether the value could be read.
using Write = bool (*)(Target target, Text value);

template <typename Value>
bool store(Value& field, const std::optional<Value>& value)
{
    if (value)
        field = *value;
    return value.has_value();
}

// What is stored as it is read.
template <auto field, auto parse>
bool writeAsRead(Target target, Text value)
{
    return store(target.settings.*field, parse(value));
}

template <QColor CChartColors::*field, auto parse = parseColor>
bool writeColor(Target target, Text value)
{
    return store(target.settings.colors.*field, parse(value));
}

template <CPieInput::Option option, bool whenTrue>
bool writeOption(Target target, Text value)
{
    const std::optional<bool> flag = parseBoolean(value);
    if (flag)
        target.pie->options.setFlag(option, *flag == whenTrue);
    return flag.has_value();
}

bool writeFont(Target target, Text value)
{
    const std::optional<QString> family = parseText(value);
    if (family)
        target.settings.setFont(*family, target.settings.fontSize);
    return family.has_value();
}

bool writeFontSize(Target target, Text value)
{
    const std::optional<long> size = parseWhole(value, kLeastInt, kGreatestInt);
    if (size)
        target.settings.fontSize = static_cast<int>(*size);
    return size.has_value();
}

bool writeLocale(Target target, Text value)
{
    if (value == kDefaultValue) {
        target.settings.locale = CGraph1dSettings().locale;
        return true;
    }
    const std::optional<CLocaleName> name = parseLocale(value);
    if (name)
        target.settings.setLocale(name->language, name->country);
    return name.has_value();
}

bool writePalette(Target target, Text value)
{
    const Text ofTheme = themeValue(value, "palette");
    return store(target.settings.colors.palette, parseColors(ofTheme.empty() ? value : ofTheme));
}

bool writeScale(Target target, Text value)
{
    const std::optional<long> scale = parseWhole(value, 1, CGraph1dSettings::kGreatestScale);
    if (scale)
        target.settings.setScale(static_cast<int>(*scale));
    return scale.has_value();
}

bool writeKilo(Target target, Text value)
{
    const bool isDefault = value == kDefaultValue;
    if (!isDefault && value != "1024" && value != "1000")
        return false;
    target.settings.setKilo(isDefault ? 0 : value == "1024" ? 1024 : 1000);
    return true;
}

bool writeFast(Target target, Text value)
{
    const std::optional<bool> isFast = parseBoolean(value);
    if (isFast)
        target.settings.compression = *isFast ? Compression::Fast : Compression::Balanced;
    return isFast.has_value();
}

CAxisSettings& categoryAxis(Target target)
{
    return target.kind == Setting::VerticalBars ? target.bars->horizontalAxis
                                                : target.bars->verticalAxis;
}

bool setProperties(CAxisSettings& axis, Text value)
{
    return store(axis.properties, parseAxisProperties(value));
}

// A title is shown, unless it is empty.
bool setTitle(CAxisSettings& axis, Text value)
{
    const bool isRead = store(axis.title, parseText(value));
    if (isRead)
        axis.properties.setFlag(CAxisSettings::ShowTitle, !axis.title.isEmpty());
    return isRead;
}

bool writeCategoryAxis(Target target, Text value)
{
    return setProperties(categoryAxis(target), value);
}

bool writeCategoryTitle(Target target, Text value)
{
    return setTitle(categoryAxis(target), value);
}

bool writeValueAxis(Target target, Text value)
{
    return setProperties(target.bars->verticalAxis, value);
}

bool writeValueTitle(Target target, Text value)
{
    return setTitle(target.bars->verticalAxis, value);
}

bool writePosition(Target target, Text value)
{
    const std::optional<QPoint> position = parsePosition(value);
    if (position)
        target.bars->setPosition(position->x(), position->y());
    return position.has_value();
}

bool writeBarWidth(Target target, Text value)
{
    const std::optional<long> width = parseWhole(value, kLeastInt, kGreatestInt);
    if (width)
        target.bars->setBarWidth(static_cast<int>(*width));
    return width.has_value();
}

bool writeUnit(Target target, Text value)
{
    return store(target.pie->unit, parseText(value));
}

bool writeLineColor(Target target, Text value)
{
    return store(target.settings.colors.labelLine,
                 parseColor(value == kDefaultValue ? "#000000" : value));
}

bool writeTheme(Target target, Text value);

struct CSettingRule
{
    Setting setting;
    Write write;
};

constexpr CSettingRule text(const char* name, int charts, const char* defaultValue,
                            const char* summary, Write write)
{
    return {{name, SettingType::Text, charts, 0, 0, "", defaultValue, summary}, write};
}

constexpr CSettingRule flag(const char* name, int charts, const char* summary, Write write)
{
    return {{name, SettingType::Boolean, charts, 0, 0, "", "false", summary}, write};
}

constexpr CSettingRule color(const char* name, int charts, const char* summary, Write write)
{
    return {{name, SettingType::Color, charts, 0, 0, "", "default", summary}, write};
}

constexpr CSettingRule whole(const char* name, int charts, long minimum, long maximum,
                             const char* defaultValue, const char* summary, Write write)
{
    return {{name, SettingType::Whole, charts, minimum, maximum, "", defaultValue, summary}, write};
}

constexpr CSettingRule choice(const char* name, int charts, const char* choices,
                              const char* defaultValue, const char* summary, Write write)
{
    return {{name, SettingType::Choice, charts, 0, 0, choices, defaultValue, summary}, write};
}

constexpr CSettingRule axis(const char* name, int charts, const char* defaultValue,
                            const char* summary, Write write)
{
    return {{name, SettingType::AxisProperties, charts, 0, 0, kAxisPropertyNames, defaultValue,
             summary},
            write};
}

constexpr CSettingRule other(const char* name, SettingType type, int charts,
                             const char* defaultValue, const char* summary, Write write)
{
    return {{name, type, charts, 0, 0, "", defaultValue, summary}, write};
}

// The order is that in which several settings are applied: the theme before the colours that it
// sets, what an axis shows before its title.
constexpr std::array kRules = {
    choice("theme", kAll, kThemeNames, "light",
           "Gives the chart a look: sets the palette and all colours.", writeTheme),
    text("title", kAll, "", "The chart's title, one bold line above it.",
         writeAsRead<&CGraph1dSettings::title, parseText>),
    text("font", kAll, "Tahoma", "The font family of all texts.", writeFont),
    whole("font_size", kAll, kLeastInt, kGreatestInt, "11",
          "The font's size in pixels; below 1 it is the system's, and above 30,000 it is 30,000.",
          writeFontSize),
    other("locale", SettingType::Locale, kAll, "default",
          "How numbers are written; the default follows the process's locale.", writeLocale),
    other("threshold", SettingType::Real, kAll, "0",
          "Leaves out items whose share of the total, in per cent, is smaller.",
          writeAsRead<&CGraph1dSettings::threshold, parseReal>),
    text("others", kAll, "",
         "Gathers what the threshold leaves out into one last item of this caption.",
         writeAsRead<&CGraph1dSettings::othersCaption, parseText>),
    other("others_link", SettingType::Link, kAll, "",
          "Where the item that gathers the others leads in an SVG picture.",
          writeAsRead<&CGraph1dSettings::othersLink, parseLink>),
    other("palette", SettingType::Palette, kAll, "default",
          "The colours of items without a colour of their own, in turn.", writePalette),
    flag("background", kAll, "Paints a gradient behind the chart, and a border around bars.",
         writeAsRead<&CGraph1dSettings::hasBackground, parseBoolean>),
    other("picture_color", SettingType::PictureColor, kAll, "default",
          "What the picture is filled with: white by default.",
          writeColor<&CChartColors::picture, parsePictureColor>),
    color("text_color", kAll,
          "The colour of captions, numbers and the title; also of axis lines, where their own is "
          "not set.",
          writeColor<&CChartColors::text>),
    color("plot_color", kAll, "The background's colour, in place of its gradient.",
          writeColor<&CChartColors::plot>),
    color("border_color", kAll, "The colour of the background's border.",
          writeColor<&CChartColors::border>),
    color("outline_color", kAll,
          "The colour of the outlines of slices, and of bars without one of their own.",
          writeColor<&CChartColors::outline>),
    choice("kilo", kAll, "default,1024,1000", "default",
           "What a prefix such as K stands for, and whose multiples the value scale shows.",
           writeKilo),
    whole("scale", kAll, 1, CGraph1dSettings::kGreatestScale, "1",
          "Picture pixels, each way, for each pixel of the size: 2 for displays of high density.",
          writeScale),
    flag("follow_display", kAll,
         "Gives an SVG picture the colours of the theme dark on displays that are set to dark.",
         writeAsRead<&CGraph1dSettings::followsDisplay, parseBoolean>),
    flag("fast", kAll, "Saves faster, in a larger file.", writeFast),
    axis("category_axis", kBars, "line,labels,hide-overlapped",
         "What the axis with the captions shows.", writeCategoryAxis),
    text("category_title", kBars, "", "The title of the axis with the captions.",
         writeCategoryTitle),
    axis("value_axis", kVertical, "line,labels,prefixes,hide-overlapped",
         "What the value axis shows.", writeValueAxis),
    text("value_title", kVertical, "", "The title of the value axis.", writeValueTitle),
    whole("bar_width", kBars, kLeastInt, kGreatestInt, "0",
          "The width of every bar in pixels; 0 or less lets the bars share the axis.",
          writeBarWidth),
    other("position", SettingType::Position, kBars, "-1,-1",
          "Where the axis lines stand, in pixels from the left and the top; -1 leaves one to the "
          "layout.",
          writePosition),
    color("axis_color", kBars, "The colour of the axis lines.", writeColor<&CChartColors::axis>),
    color("axis_title_color", kBars, "The colour of the axis titles.",
          writeColor<&CChartColors::axisTitle>),
    color("grid_color", kVertical, "The colour of the grid lines.",
          writeColor<&CChartColors::grid>),
    color("value_color", kHorizontal, "The colour of the values beside the bars.",
          writeColor<&CChartColors::value>),
    flag("bold", kPie, "Draws the captions in bold type.",
         writeOption<CPieInput::BoldLabels, true>),
    flag("shorten_left", kPie, "Cuts long captions at their beginning.",
         writeOption<CPieInput::ShortenFromLeft, true>),
    flag("keep_overlaps", kPie, "Lets captions overlap instead of moving them apart.",
         writeOption<CPieInput::RemoveLabelOverlaps, false>),
    flag("without_sizes", kPie, "Draws the captions without sizes.",
         writeOption<CPieInput::ShowSizes, false>),
    text("unit", kPie, "B", "The unit of the sizes.", writeUnit),
    other("line_color", SettingType::Color, kPie, "#000000",
          "The colour of the lines that lead to the captions.", writeLineColor),
};

template <std::size_t count>
constexpr std::array<Setting, count> settingsOf(const std::array<CSettingRule, count>& rules)
{
    std::array<Setting, count> settings{};
    for (std::size_t i = 0; i < count; ++i)
        settings[i] = rules[i].setting;
    return settings;
}

constexpr auto kSettings = settingsOf(kRules);

const CSettingRule* findRule(Text name, Setting::Chart kind)
{
    for (const CSettingRule& rule : kRules) {
        if (rule.setting.name == name && (rule.setting.charts & kind) != 0)
            return &rule;
    }
    return nullptr;
}

bool writeTheme(Target target, Text value)
{
    const std::optional<CThemeValues> theme = findTheme(value);
    if (!theme)
        return false;
    for (const CThemeValue& part : *theme) {
        if (const CSettingRule* rule = findRule(part.setting, target.kind))
            rule->write(target, part.value);
    }
    return true;
}

std::string wholeText(const Setting& setting)
{
    return "a whole number from " + std::to_string(setting.minimum) + " to " +
           std::to_string(setting.maximum);
}

// What the value of a setting has to be, after "is not".
std::string wanted(const Setting& setting)
{
    switch (setting.type) {
    case SettingType::Boolean:
        return "true or false";
    case SettingType::Whole:
        return wholeText(setting);
    case SettingType::Real:
        return "a number";
    case SettingType::Text:
        return "UTF-8";
    case SettingType::Color:
        return "a colour such as #4070c0, or default";
    case SettingType::PictureColor:
        return "a colour such as #4070c0, transparent, or default";
    case SettingType::Palette:
        return std::string("a list of colours such as #4070c0,#f0a030, the name of a theme (") +
               kThemeNames + "), or default";
    case SettingType::Locale:
        return "a locale such as de_AT, or default";
    case SettingType::AxisProperties:
        return std::string("a list of axis properties (") + setting.choices + ", or none)";
    case SettingType::Position:
        return "a position such as 60,200";
    case SettingType::Choice:
        return std::string("one of ") + setting.choices;
    case SettingType::Link:
        return "an address of http:, https: or mailto:, or of a place relative to the page";
    }
    return {};
}

} // namespace

CSettingTarget::CSettingTarget(CBarInput& input)
    : kind(input.kind == BarKind::Standing ? Setting::VerticalBars : Setting::HorizontalBars)
    , settings(input.settings)
    , bars(&input)
{}

CSettingTarget::CSettingTarget(CPieInput& input)
    : kind(Setting::Pie)
    , settings(input.settings)
    , pie(&input)
{}

SettingTable settings() noexcept
{
    return {kSettings.data(), kSettings.data() + kSettings.size()};
}

std::string applySetting(const CSettingTarget& target, std::string_view name,
                         std::string_view value)
{
    const CSettingRule* rule = findRule(name, target.kind);
    if (!rule)
        return "this chart has no such setting";
    return rule->write(target, value) ? std::string() : "the value is not " + wanted(rule->setting);
}

} // namespace tovangl
