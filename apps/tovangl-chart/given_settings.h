// SPDX-License-Identifier: MIT
/// @file
/// The values that a command line or a description gives to settings.
#ifndef TOVANGL_CHART_GIVEN_SETTINGS_H
#define TOVANGL_CHART_GIVEN_SETTINGS_H

#include <tovangl/Graph.h>
#include <tovangl/Setting.h>

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tovangl::program {

/// The values that were given. The rows of the table lie in one array, so that this has its order.
using GivenSettings = std::map<const Setting*, std::string>;

/// "--font-size" for the setting "font_size"
[[nodiscard]] std::string optionName(const Setting& setting);

/// The value that was given for a setting.
[[nodiscard]] std::optional<std::string> givenValue(const GivenSettings& given,
                                                    std::string_view name);

/// Why a value was refused, with the value: the library tells what "the value" is not, and the user
/// has to see which value that is.
///
/// @param reason  of Graph::setByName()
[[nodiscard]] std::string refusal(const std::string& reason, const std::string& value);

/// Sets what was given. Throws CFailure with the name of the option whose value the chart refuses.
void applySettings(Graph& chart, const GivenSettings& given);

} // namespace tovangl::program

#endif
