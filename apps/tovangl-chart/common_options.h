// SPDX-License-Identifier: MIT
/// @file
/// The options of a command.
#ifndef TOVANGL_CHART_COMMON_OPTIONS_H
#define TOVANGL_CHART_COMMON_OPTIONS_H

#include "tovangl-chart/ItemSource.h"
#include "tovangl-chart/given_settings.h"
#include "tovangl-chart/option_values.h"
#include "tovangl-chart/picture_format.h"

#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace tovangl::program {

struct CommonOptions
{
    ItemSource input;
    std::optional<std::string> output;
    std::string map; // empty: none
    std::optional<PictureFormat> format;
    bool isPageSvg = false; // the page holds the picture as SVG
    PictureSize size;
    std::optional<int> printFactor;
    std::vector<std::string> fontFiles;
    GivenSettings settings;
};

/// Adds the options that every chart has to its command, and those of this kind of chart.
void addOptions(CLI::App& command, Setting::Chart kind, CommonOptions& options);

} // namespace tovangl::program

#endif
