// SPDX-License-Identifier: MIT
/// @file
/// The options of a command.
#ifndef TOVANGL_CHART_COMMON_OPTIONS_H
#define TOVANGL_CHART_COMMON_OPTIONS_H

#include "common/CFailure.h"
#include "tovangl-chart/ItemSource.h"
#include "tovangl-chart/option_values.h"
#include "tovangl-chart/picture_format.h"
#include "tovangl-chart/setting_options.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <optional>
#include <string>
#include <utility>
#include <vector>

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

/// Adds an option whose value parse() reads. The message about a refused value names the option.
///
/// @param parse  one of the parse… functions
template <typename Target, typename Parse>
CLI::Option* addOption(CLI::App& command, const std::string& name, Target& target, Parse parse,
                       const std::string& help)
{
    const auto store = [&target, parse, name](const std::string& text) {
        try {
            target = parse(text);
        } catch (const CFailure& reason) {
            throw CFailure(name + ": " + reason.what());
        }
    };
    return command.add_option_function<std::string>(name, store, help)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
}

/// The file that the command reads.
template <typename Path>
void addInput(CLI::App& command, Path& path, const std::string& help)
{
    addOption(command, "FILE", path, parsePath, help)->type_name("");
}

/// An option with the name of a file.
template <typename Path>
CLI::Option* addFileOption(CLI::App& command, const std::string& name, Path& path,
                           const std::string& help)
{
    return addOption(command, name, path, parsePath, help)->type_name("FILE");
}

/// The option --format.
template <typename Format>
void addFormatOption(CLI::App& command, Format& format, const std::string& help)
{
    addOption(command, "--format", format, parsePictureFormat, help)->type_name("NAME");
}

} // namespace tovangl::program

#endif
