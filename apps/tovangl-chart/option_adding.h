// SPDX-License-Identifier: MIT
/// @file
/// Adds options to a command.
///
/// CLI11 takes seconds to compile: only what adds options includes this, and no header does.
#ifndef TOVANGL_CHART_OPTION_ADDING_H
#define TOVANGL_CHART_OPTION_ADDING_H

#include "common/CFailure.h"
#include "tovangl-chart/option_values.h"
#include "tovangl-chart/picture_format.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <string>

namespace tovangl::program {

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
