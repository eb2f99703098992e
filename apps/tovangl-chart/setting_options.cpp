// SPDX-License-Identifier: MIT
// The library's settings as options of a command.
#include "tovangl-chart/setting_options.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>

namespace tovangl::program {

namespace {

constexpr const char* kGroup = "Settings";

std::string choicesForm(std::string choices)
{
    std::replace(choices.begin(), choices.end(), ',', '|');
    return choices;
}

// What stands for the value in the help.
std::string valueForm(const Setting& setting)
{
    switch (setting.type) {
    case SettingType::Boolean:
        break;
    case SettingType::Whole:
    case SettingType::Real:
        return "N";
    case SettingType::Text:
        return "TEXT";
    case SettingType::Color:
        return "#RRGGBB";
    case SettingType::PictureColor:
        return "#RRGGBB|transparent";
    case SettingType::Palette:
        return "#RRGGBB,...";
    case SettingType::Locale:
        return "LL_CC";
    case SettingType::AxisProperties:
        return "NAME,...";
    case SettingType::Position:
        return "X,Y";
    case SettingType::Choice:
        return choicesForm(setting.choices);
    case SettingType::Link:
        return "ADDRESS";
    }
    return {};
}

bool isTellingDefault(std::string_view value)
{
    return !value.empty() && value != "default" && value != "false";
}

// The sentence without its full stop, and the default.
std::string helpText(const Setting& setting)
{
    std::string text = setting.summary;
    if (!text.empty() && text.back() == '.')
        text.pop_back();
    if (isTellingDefault(setting.defaultValue))
        text += std::string(" [") + setting.defaultValue + ']';
    return text;
}

void addFlag(CLI::App& command, const Setting& setting, GivenSettings& given)
{
    const auto keep = [&setting, &given](std::int64_t count) {
        given[&setting] = count > 0 ? "true" : "false";
    };
    command.add_flag_function(optionName(setting), keep, helpText(setting))->group(kGroup);
}

void addValueOption(CLI::App& command, const Setting& setting, GivenSettings& given)
{
    const auto keep = [&setting, &given](const std::string& value) { given[&setting] = value; };
    command.add_option_function<std::string>(optionName(setting), keep, helpText(setting))
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast)
        ->type_name(valueForm(setting))
        ->group(kGroup);
}

} // namespace

void addSettingOptions(CLI::App& command, Setting::Chart kind, GivenSettings& given)
{
    for (const Setting& setting : settings()) {
        if ((setting.charts & kind) == 0)
            continue;
        if (setting.type == SettingType::Boolean)
            addFlag(command, setting, given);
        else
            addValueOption(command, setting, given);
    }
}

} // namespace tovangl::program
