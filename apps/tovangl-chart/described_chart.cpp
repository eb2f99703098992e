// SPDX-License-Identifier: MIT
// Draws a chart that is described as data.
#include "tovangl-chart/described_chart.h"

#include "common/CFailure.h"
#include "tovangl-chart/chart_items.h"
#include <tovangl/HorizontalBarGraph.h>
#include <tovangl/VerticalBarGraph.h>

namespace tovangl::program {

namespace {

std::string settingOf(const ChartDescription& description, const char* name)
{
    return givenValue(description.settings, name).value_or("");
}

void applyDescribed(Graph& chart, const GivenSettings& given)
{
    for (const auto& [setting, value] : given) {
        const std::string reason = chart.setByName(setting->name, value);
        if (!reason.empty())
            throw CFailure(std::string("/") + setting->name + ": " + refusal(reason, value));
    }
}

std::string renderPng(Graph& chart, const ChartDescription& description)
{
    const PictureSize size = description.size;
    unsigned char* bytes = nullptr;
    int count = 0;
    if (description.printFactor)
        chart.createPixmapForPrinter(size.width, size.height, *description.printFactor, &bytes,
                                     &count);
    else
        chart.createPixmap(size.width, size.height, &bytes, &count);
    if (count == 0)
        throw CFailure("no picture: " + chart.problemText());
    return {reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(count)};
}

// How many pixels of the picture there are for each pixel of the size.
int pictureScale(const ChartDescription& description)
{
    if (description.printFactor)
        return *description.printFactor;
    const std::optional<std::string> scale = givenValue(description.settings, "scale");
    return scale ? parseWhole(*scale) : 1;
}

ChartRegions commonRegions(Graph& chart, const ChartDescription& description)
{
    const int scale = pictureScale(description);
    ChartRegions regions;
    regions.kind = description.kind.name;
    regions.description = chart.describe();
    regions.size = {description.size.width * scale, description.size.height * scale};
    regions.title = settingOf(description, "title");
    regions.titleRectangle = chart.titleRectangle();
    regions.captions = *chart.getRectangle();
    const std::string others = settingOf(description, "others");
    if (!others.empty())
        regions.others = OthersItem{others, chart.othersCount(), chart.othersValue()};
    return regions;
}

void addShapes(PieGraph& chart, ChartRegions& regions)
{
    regions.slices = *chart.getSlice();
}

template <typename BarChart>
void addShapes(BarChart& chart, ChartRegions& regions)
{
    regions.bars = *chart.getItemBarRectangle();
}

template <typename Chart>
DrawnChart draw(const ChartDescription& description, const std::string& family)
{
    Chart chart(false);
    if (!family.empty())
        chart.setByName("font", family);
    applyDescribed(chart, description.settings);
    addItems(chart, description.items);
    DrawnChart drawn;
    drawn.png = renderPng(chart, description);
    drawn.regions = commonRegions(chart, description);
    addShapes(chart, drawn.regions);
    drawn.problem = chart.problemText();
    return drawn;
}

} // namespace

DrawnChart drawDescription(const ChartDescription& description, const std::string& family)
{
    if (description.kind.bit == Setting::VerticalBars)
        return draw<VerticalBarGraph>(description, family);
    if (description.kind.bit == Setting::HorizontalBars)
        return draw<HorizontalBarGraph>(description, family);
    return draw<PieGraph>(description, family);
}

} // namespace tovangl::program
