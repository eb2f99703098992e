// SPDX-License-Identifier: MIT
// The options that every chart has.
#include "tovangl-chart/common_options.h"

#include "tovangl-chart/csv_options.h"

namespace tovangl::program {

namespace {

// The library's defaults, for a font of which only the family or the size is given.
constexpr const char* kDefaultFamily = "Tahoma";
constexpr int kDefaultFontSize = 11;

std::string parsePath(const std::string& text)
{
    if (text.empty())
        throw CFailure("the file has no name");
    return text;
}

void addFileOptions(CLI::App& command, CommonOptions& options)
{
    addOption(command, "FILE", options.input.path, parsePath,
              "Items, one per line; without it, standard input")
        ->type_name("");
    addCsvOptions(command, options.input);
    addOption(
        command, "-o,--output", options.output, parsePath,
        "Write the picture (PNG) here; without it, to standard output or into the page of --map")
        ->type_name("FILE");
    addOption(command, "--map", options.map, parsePath,
              "Write where each item was drawn: a page with the picture and its regions "
              "if FILE ends in .html, JSON otherwise")
        ->type_name("FILE");
}

void addLookOptions(CLI::App& command, CommonOptions& options)
{
    addOption(command, "--size", options.size, parseSize, "Size of the picture [800x600]")
        ->type_name("WxH");
    addOption(command, "--print", options.printFactor, parseWhole,
              "For print: N times as many pixels each way, slices in paler colours")
        ->type_name("N");
    addOption(command, "--font", options.fontFamily, parseText, "Font family [Tahoma]")
        ->type_name("NAME");
    addOption(command, "--font-size", options.fontSize, parseWhole, "Font size in pixels [11]")
        ->type_name("N");
    addOption(command, "--locale", options.locale, parseLocale, "Number format, such as de_AT")
        ->type_name("LL_CC");
    addOption(command, "--threshold", options.threshold, parseReal,
              "Leave out items with a smaller share of the total")
        ->type_name("PERCENT");
    command.add_flag("--background", options.background, "Paint a gradient behind the chart");
    command.add_flag("--fast", options.fast, "Save faster, in a larger file");
}

} // namespace

void addCommonOptions(CLI::App& command, CommonOptions& options)
{
    addFileOptions(command, options);
    addLookOptions(command, options);
}

void applyCommonOptions(Graph& chart, const CommonOptions& options)
{
    if (options.fontFamily || options.fontSize)
        chart.setFont(options.fontFamily.value_or(kDefaultFamily),
                      options.fontSize.value_or(kDefaultFontSize));
    if (options.locale)
        chart.setLocale(options.locale->language, options.locale->country);
    if (options.threshold)
        chart.setThreshold(*options.threshold);
    chart.setCompression(options.fast ? Compression::Fast : Compression::Balanced);
}

} // namespace tovangl::program
