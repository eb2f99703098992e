// SPDX-License-Identifier: MIT
/// @file
/// The one table of all settings, and how each is written into a chart's input.
#ifndef TOVANGL_INPUT_SETTING_RULES_H
#define TOVANGL_INPUT_SETTING_RULES_H

#include <tovangl/Setting.h>

#include <string>
#include <string_view>

namespace tovangl {

struct CBarInput;
struct CGraph1dSettings;
struct CPieInput;

/// The input of one chart, by what is known of it.
struct CSettingTarget
{
    explicit CSettingTarget(CBarInput& input);
    explicit CSettingTarget(CPieInput& input);

    Setting::Chart kind;
    CGraph1dSettings& settings;
    CBarInput* bars = nullptr; ///< of a bar chart
    CPieInput* pie = nullptr;  ///< of a pie
};

/// Sets the setting of that name to a value in the form of its type.
///
/// @return empty, or what is wrong: the input is then as it was
[[nodiscard]] std::string applySetting(const CSettingTarget& target, std::string_view name,
                                       std::string_view value);

} // namespace tovangl

#endif
