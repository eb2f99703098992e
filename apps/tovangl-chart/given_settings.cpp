// SPDX-License-Identifier: MIT
// The values that a command line or a description gives to settings.
#include "tovangl-chart/given_settings.h"

#include "common/CFailure.h"
#include "common/text_checks.h"

#include <algorithm>

namespace tovangl::program {

std::string optionName(const Setting& setting)
{
    std::string name = setting.name;
    std::replace(name.begin(), name.end(), '_', '-');
    return "--" + name;
}

std::optional<std::string> givenValue(const GivenSettings& given, std::string_view name)
{
    for (const auto& [setting, value] : given) {
        if (setting->name == name)
            return value;
    }
    return std::nullopt;
}

std::string refusal(const std::string& reason, const std::string& value)
{
    constexpr std::string_view kSubject = "the value ";
    if (reason.compare(0, kSubject.size(), kSubject) != 0)
        return quote(value) + ": " + reason;
    return quote(value) + ' ' + reason.substr(kSubject.size());
}

void applySettings(Graph& chart, const GivenSettings& given)
{
    for (const auto& [setting, value] : given) {
        const std::string reason = chart.setByName(setting->name, value);
        if (!reason.empty())
            throw CFailure(optionName(*setting) + ": " + refusal(reason, value));
    }
}

} // namespace tovangl::program
