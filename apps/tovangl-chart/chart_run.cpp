// SPDX-License-Identifier: MIT
// The steps that every chart command takes.
#include "tovangl-chart/chart_run.h"

#include "common/CFailure.h"
#include "common/font_files.h"
#include "common/output_files.h"
#include "tovangl-chart/chart_page.h"
#include "tovangl-chart/picture_rendering.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace tovangl::program {

namespace {

constexpr int kUsualDensity = 2; // picture pixels for each pixel of a page, on most dense displays

/// The pictures of a run.
struct Pictures : ChartPictures
{
    std::string separate; ///< a file of its own that differs from those of the page; may be empty
};

bool makesPage(const CommonOptions& options)
{
    return isPageName(options.map);
}

// Print has no use for a scale.
std::optional<int> givenScale(const CommonOptions& options)
{
    const std::optional<std::string> scale = givenValue(options.settings, "scale");
    return scale && !options.printFactor ? std::optional(parseWhole(*scale)) : std::nullopt;
}

PictureFormat givenFormat(const CommonOptions& options)
{
    return options.format.value_or(formatOfName(options.output.value_or("")));
}

/// The format of the picture that the regions belong to: that in the page, if there is one.
PictureFormat shownFormat(const CommonOptions& options)
{
    if (!makesPage(options))
        return givenFormat(options);
    return options.isPageSvg ? PictureFormat::Svg : PictureFormat::Png;
}

// How many pixels of a page or a size a pixel of the shown picture stands for, each way.
int shownScale(const CommonOptions& options)
{
    if (shownFormat(options) == PictureFormat::Pdf)
        return kPixelsPerPoint;
    if (options.printFactor)
        return std::max(*options.printFactor, 1);
    return makesPage(options) ? 1 : givenScale(options).value_or(1);
}

std::string sizeText(const CommonOptions& options)
{
    const std::string text =
        std::to_string(options.size.width) + 'x' + std::to_string(options.size.height);
    const int scale = givenScale(options).value_or(1);
    if (options.printFactor && *options.printFactor > 1)
        return text + " for print at factor " + std::to_string(*options.printFactor);
    return scale > 1 ? text + " at scale " + std::to_string(scale) : text;
}

CFailure noPicture(const Graph& chart, const CommonOptions& options)
{
    if (chart.problem() == Problem::SizeOutOfRange)
        return CFailure("no picture can measure " + sizeText(options));
    return CFailure("cannot draw a picture of " + sizeText(options) + ": " + chart.problemText());
}

/// Where the picture goes; empty if only the page holds it.
std::string pictureOutput(const CommonOptions& options)
{
    return options.output.value_or(makesPage(options) ? "" : kStandardOutput);
}

/// Whether the user knows already, or has not asked for what is missing: few machines have the
/// default family.
bool isNoNews(Problem problem, const CommonOptions& options)
{
    return problem == Problem::None ||
           (problem == Problem::FamilyReplaced && !givenValue(options.settings, "font"));
}

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

void checkFormats(const CommonOptions& options)
{
    if (options.isPageSvg && !makesPage(options))
        throw CFailure("--svg: there is no page without --map FILE.html");
    const bool hasShapes = givenFormat(options) != PictureFormat::Png || options.isPageSvg;
    if (hasShapes && options.printFactor)
        throw CFailure("--print: only a PNG picture has pixels; leave out the factor");
}

/// Empty if there is no picture.
std::string renderScaled(Graph& chart, const CommonOptions& options, PictureFormat format,
                         int scale)
{
    chart.setScale(scale);
    return renderPicture(chart, format, options.size, options.printFactor);
}

/// The picture that a page shows on dense displays. Nobody misses one that was not asked for: a
/// large picture may have none.
std::optional<DensePicture> renderDense(Graph& chart, const CommonOptions& options)
{
    const int scale = givenScale(options).value_or(kUsualDensity);
    if (!makesPage(options) || options.isPageSvg || options.printFactor || scale == 1)
        return std::nullopt;
    std::string png = renderScaled(chart, options, PictureFormat::Png, scale);
    if (png.empty() && givenScale(options))
        throw noPicture(chart, options);
    return png.empty() ? std::nullopt : std::optional(DensePicture{std::move(png), scale});
}

/// The picture as a file of its own, where none of the others can be that: the links of an SVG
/// picture in a page lead nowhere outside of it.
std::string renderSeparate(Graph& chart, const CommonOptions& options)
{
    const bool isAnother = options.isPageSvg || givenFormat(options) != shownFormat(options);
    if (pictureOutput(options).empty() || !isAnother)
        return {};
    std::string picture =
        renderScaled(chart, options, givenFormat(options), givenScale(options).value_or(1));
    if (picture.empty())
        throw noPicture(chart, options);
    return picture;
}

/// Items of a picture that is part of a page lead to their rows there. So do the others, if there
/// are any that lead nowhere else.
void linkItems(Graph& chart, std::size_t count, const GivenSettings& settings)
{
    const bool haveOthersLink = !givenValue(settings, "others_link").value_or("").empty();
    for (std::size_t i = 0; i < count + (haveOthersLink ? 0 : 1); ++i)
        chart.setLink(i, '#' + itemAnchor(i));
}

/// The shown picture is drawn last, because a chart tells the regions of its last rendering.
Pictures renderPictures(Graph& chart, std::size_t items, const CommonOptions& options)
{
    Pictures pictures;
    pictures.separate = renderSeparate(chart, options);
    pictures.dense = renderDense(chart, options);
    pictures.shownFormat = shownFormat(options);
    pictures.followsDisplay =
        options.isPageSvg && givenValue(options.settings, "follow_display") == "true";
    if (options.isPageSvg)
        linkItems(chart, items, options.settings);
    pictures.shown = renderScaled(chart, options, pictures.shownFormat, shownScale(options));
    if (pictures.shown.empty())
        throw noPicture(chart, options);
    return pictures;
}

/// In pixels of the shown picture.
PictureSize shownSize(const CommonOptions& options)
{
    const int scale = shownScale(options);
    return {options.size.width * scale, options.size.height * scale};
}

std::string pageTitle(const ChartRegions& regions, const CommonOptions& options)
{
    return regions.title.empty() ? std::filesystem::path(options.map).stem().string()
                                 : regions.title;
}

std::string makeMap(const ChartPictures& pictures, const ChartItems& items,
                    const ChartRegions& regions, const CommonOptions& options)
{
    if (!makesPage(options))
        return regionMapJson(items, regions);
    return chartPageHtml(pageTitle(regions, options), pictures, items, regions);
}

/// The picture in the scale that was asked for.
const std::string& askedPicture(const Pictures& pictures, const CommonOptions& options)
{
    if (!pictures.separate.empty())
        return pictures.separate;
    return givenScale(options) && pictures.dense ? pictures.dense->png : pictures.shown;
}

void writeChart(const Pictures& pictures, const ChartItems& items, const ChartRegions& regions,
                const CommonOptions& options)
{
    std::vector<Output> outputs;
    if (const std::string output = pictureOutput(options); !output.empty())
        outputs.push_back({output, askedPicture(pictures, options)});
    std::string map;
    if (!options.map.empty()) {
        map = makeMap(pictures, items, regions, options);
        outputs.push_back({options.map, map});
    }
    writeOutputs(outputs);
}

// Without a family, the first one of the user's own files is the one that is meant.
void applyFontFiles(Graph& chart, const std::vector<std::string>& files)
{
    const std::vector<std::string> families = addFontFiles(files);
    if (!families.empty())
        chart.setByName("font", families.front());
}

void tellProblem(const Graph& chart, const CommonOptions& options)
{
    if (!isNoNews(chart.problem(), options))
        std::cerr << "tovangl-chart: " << sizeText(options) << ": " << chart.problemText() << '\n';
}

} // namespace

ChartItems prepareChart(Graph& chart, const CommonOptions& options, LineColors colors)
{
    checkOutputs(options);
    checkFormats(options);
    applyFontFiles(chart, options.fontFiles);
    applySettings(chart, options.settings);
    return readItems(options.input, colors);
}

void drawChart(Graph& chart, const char* kind, const ChartItems& items,
               const CommonOptions& options, const AddShapes& addShapes)
{
    const Pictures pictures = renderPictures(chart, items.size(), options);
    ChartRegions regions = captionRegions(chart, kind, shownSize(options), options.settings);
    addShapes(regions);
    writeChart(pictures, items, regions, options);
    tellProblem(chart, options);
}

} // namespace tovangl::program
