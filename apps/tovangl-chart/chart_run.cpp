// SPDX-License-Identifier: MIT
// The steps that every chart command takes.
#include "tovangl-chart/chart_run.h"

#include "common/output_files.h"
#include "tovangl-chart/chart_page.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace tovangl::program {

namespace {

int factorOf(const CommonOptions& options)
{
    return std::max(options.printFactor.value_or(1), 1);
}

std::string sizeText(const CommonOptions& options)
{
    std::string text =
        std::to_string(options.size.width) + 'x' + std::to_string(options.size.height);
    if (factorOf(options) > 1)
        text += " for print at factor " + std::to_string(factorOf(options));
    return text;
}

CFailure noPicture(const Graph& chart, const CommonOptions& options)
{
    if (chart.problem() == Problem::SizeOutOfRange)
        return CFailure("no picture can measure " + sizeText(options));
    return CFailure("cannot draw a picture of " + sizeText(options) + ": " + chart.problemText());
}

bool makesPage(const CommonOptions& options)
{
    return isPageName(options.map);
}

/// Where the picture goes; empty if only the page holds it.
std::string pictureOutput(const CommonOptions& options)
{
    return options.output.value_or(makesPage(options) ? "" : kStandardOutput);
}

std::string makeMap(std::string_view picture, const ChartItems& items, const ChartRegions& regions,
                    const CommonOptions& options)
{
    if (!makesPage(options))
        return regionMapJson(items, regions);
    const std::string title = std::filesystem::path(options.map).stem();
    return chartPageHtml(title, picture, items, regions);
}

} // namespace

void checkOutputs(const CommonOptions& options)
{
    const std::string output = pictureOutput(options);
    if (output.empty())
        return;
    refuseTerminal(output);
    if (!options.map.empty() && isSamePlace(output, options.map))
        throw CFailure("the picture and the map cannot both go to " +
                       (options.map == kStandardOutput ? "standard output" : options.map));
}

std::string_view renderPicture(Graph& chart, const CommonOptions& options)
{
    unsigned char* bytes = nullptr;
    int size = 0;
    if (options.printFactor)
        chart.createPixmapForPrinter(options.size.width, options.size.height, *options.printFactor,
                                     &bytes, &size);
    else
        chart.createPixmap(options.size.width, options.size.height, &bytes, &size);
    if (size == 0)
        throw noPicture(chart, options);
    return {reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size)};
}

ChartRegions captionRegions(Graph& chart, const char* kind, const CommonOptions& options)
{
    ChartRegions regions;
    regions.kind = kind;
    regions.description = chart.describe();
    regions.size.width = options.size.width * factorOf(options);
    regions.size.height = options.size.height * factorOf(options);
    regions.captions = *chart.getRectangle();
    return regions;
}

void writeChart(std::string_view picture, const ChartItems& items, const ChartRegions& regions,
                const CommonOptions& options)
{
    std::vector<Output> outputs;
    if (const std::string output = pictureOutput(options); !output.empty())
        outputs.push_back({output, picture});
    std::string map;
    if (!options.map.empty()) {
        map = makeMap(picture, items, regions, options);
        outputs.push_back({options.map, map});
    }
    writeOutputs(outputs);
}

void tellProblem(const Graph& chart, const CommonOptions& options)
{
    if (chart.problem() != Problem::None)
        std::cerr << "tovangl-chart: " << sizeText(options) << ": " << chart.problemText() << '\n';
}

} // namespace tovangl::program
