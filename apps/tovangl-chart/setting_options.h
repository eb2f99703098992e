// SPDX-License-Identifier: MIT
/// @file
/// The library's settings as options of a command.
#ifndef TOVANGL_CHART_SETTING_OPTIONS_H
#define TOVANGL_CHART_SETTING_OPTIONS_H

#include "tovangl-chart/given_settings.h"

namespace CLI {
class App;
}

namespace tovangl::program {

/// Adds an option for every setting of this kind of chart. The last of two values counts.
void addSettingOptions(CLI::App& command, Setting::Chart kind, GivenSettings& given);

} // namespace tovangl::program

#endif
