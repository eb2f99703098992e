// SPDX-License-Identifier: MIT
// tovangl-chart pie
#include "tovangl-chart/chart_run.h"
#include "tovangl-chart/command_line.h"
#include "tovangl-chart/item_lines.h"
#include <tovangl/PieGraph.h>

#include <memory>

namespace tovangl::program {

namespace {

constexpr const char* kName = "pie";
constexpr const char* kDescription = "A pie with caption and size beside each slice";

constexpr const char* kExamples =
    R"(Examples:
  du -b -d1 /usr | tovangl-chart pie -o usr.png
  tovangl-chart pie --threshold 2 --without-sizes --background votes.txt -o votes.png
  tovangl-chart pie --size 400x300 --print 4 sizes.txt -o page.png --map page.json
  du -b -d1 /usr | tovangl-chart pie --map usr.html      (one page, with clickable regions)

Slices run clockwise from nine o'clock. Only numbers above 0 are drawn.)";

// The library's own default. An unset line colour would follow the outlines, and the lines would be
// white on white.
constexpr Color kDefaultLineColor = {0, 0, 0};

struct PieOptions
{
    CommonOptions common;
    bool bold = false;
    bool shortenFromLeft = false;
    bool keepOverlaps = false;
    bool withoutSizes = false;
    std::optional<Color> outline;
    std::optional<Color> text;
    std::optional<Color> line;
};

void addPieOptions(CLI::App& command, PieOptions& options)
{
    command.add_flag("--bold", options.bold, "Draw captions in bold type");
    command.add_flag("--shorten-left", options.shortenFromLeft,
                     "Cut long captions at their beginning");
    command.add_flag("--keep-overlaps", options.keepOverlaps, "Let captions overlap");
    command.add_flag("--without-sizes", options.withoutSizes, "Draw captions without sizes");
    const std::string form = "#RRGGBB";
    addOption(command, "--outline-color", options.outline, parseColor, "Outlines of the slices")
        ->type_name(form);
    addOption(command, "--text-color", options.text, parseColor, "Captions")->type_name(form);
    addOption(command, "--line-color", options.line, parseColor, "Lines that lead to captions")
        ->type_name(form);
}

int propertiesOf(const PieOptions& options)
{
    return (options.bold ? PieGraph::BoldLabels : 0) |
           (options.shortenFromLeft ? PieGraph::ShortenFromLeft : 0) |
           (options.keepOverlaps ? 0 : PieGraph::RemoveLabelOverlaps) |
           (options.withoutSizes ? 0 : PieGraph::ShowSizes);
}

void addSlices(PieGraph& chart, const ChartItems& items)
{
    for (const ChartItem& item : items) {
        if (item.fill)
            chart.addItem(item.value, item.caption, *item.fill);
        else
            chart.addItem(item.value, item.caption);
    }
}

void runPie(const PieOptions& options)
{
    checkOutputs(options.common);
    const ChartItems items = readItems(options.common.input, LineColors::Fill);
    PieGraph chart(options.common.background);
    applyCommonOptions(chart, options.common);
    chart.setProperty(propertiesOf(options));
    chart.setColors(options.outline.value_or(kNoColor), options.text.value_or(kNoColor),
                    options.line.value_or(kDefaultLineColor));
    addSlices(chart, items);
    const std::string_view picture = renderPicture(chart, options.common);
    ChartRegions regions = captionRegions(chart, kName, options.common);
    regions.slices = *chart.getSlice();
    writeChart(picture, items, regions, options.common);
    tellProblem(chart, options.common);
}

} // namespace

void addPieCommand(CLI::App& program)
{
    CLI::App* command = addChartCommand(program, kName, kDescription, kExamples);
    const auto options = std::make_shared<PieOptions>();
    addCommonOptions(*command, options->common);
    addPieOptions(*command, *options);
    command->callback([options] { runPie(*options); });
}

} // namespace tovangl::program
