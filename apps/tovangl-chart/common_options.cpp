// SPDX-License-Identifier: MIT
// The options of a command.
#include "tovangl-chart/common_options.h"

#include "common/program_arguments.h"
#include "tovangl-chart/csv_options.h"
#include "tovangl-chart/option_adding.h"
#include "tovangl-chart/setting_options.h"

namespace tovangl::program {

namespace {

void addFileOptions(CLI::App& command, CommonOptions& options)
{
    addInput(command, options.input.path, "Items, one per line; without it, standard input");
    addCsvOptions(command, options.input);
    addFileOption(
        command, "-o,--output", options.output,
        "Write the picture here; without it, to standard output or into the page of --map");
    addFormatOption(command, options.format,
                    "Format of the picture: png, svg or pdf [by the name of FILE, or png]");
    addFileOption(command, "--map", options.map,
                  "Write where each item was drawn: a page with the picture and its regions "
                  "if FILE ends in .html, JSON otherwise");
    command.add_flag("--svg", options.isPageSvg, "Put the picture into the page of --map as SVG");
}

void addSizeOptions(CLI::App& command, CommonOptions& options)
{
    addOption(command, "--size", options.size, parseSize, "Size of the picture [800x600]")
        ->type_name("WxH");
    addOption(command, "--print", options.printFactor, parseWhole,
              "For print: N times as many pixels each way, slices in paler colours")
        ->type_name("N");
    addFontFileOption(command, options.fontFiles);
}

} // namespace

void addOptions(CLI::App& command, Setting::Chart kind, CommonOptions& options)
{
    addFileOptions(command, options);
    addSizeOptions(command, options);
    addSettingOptions(command, kind, options.settings);
}

} // namespace tovangl::program
