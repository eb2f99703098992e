// SPDX-License-Identifier: MIT
// Draws a chart that is described as data.
#include "tovangl-chart/described_chart.h"

#include "common/CFailure.h"
#include "common/text_checks.h"
#include "tovangl-chart/chart_items.h"
#include "tovangl-chart/picture_rendering.h"
#include <tovangl/HorizontalBarGraph.h>
#include <tovangl/VerticalBarGraph.h>

namespace tovangl::program {

namespace {

void applyDescribed(Graph& chart, const GivenSettings& given)
{
    for (const auto& [setting, value] : given) {
        const std::string reason = chart.setByName(setting->name, value);
        if (!reason.empty())
            throw CFailure(std::string("/") + setting->name + ": " + refusal(reason, value));
    }
}

std::string linkPlace(std::size_t item)
{
    return std::string("/") + chart_key::kItems + '/' + std::to_string(item) + '/' +
           item_key::kLink;
}

void setLinks(Graph& chart, const ChartItems& items)
{
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (!items[i].link.empty() && !chart.setLink(i, items[i].link))
            throw CFailure(linkPlace(i) + ": " + quote(items[i].link) +
                           " is not an address of http:, https: or mailto:, or of a place "
                           "relative to the page");
    }
}

std::string render(Graph& chart, const ChartDescription& description, PictureFormat format)
{
    std::string picture = renderPicture(chart, format, description.size, description.printFactor);
    if (picture.empty())
        throw CFailure("no picture: " + chart.problemText());
    return picture;
}

// How many pixels of the regions there are for each pixel or point of the size.
int regionScale(const ChartDescription& description, PictureFormat format)
{
    if (format == PictureFormat::Pdf)
        return kPixelsPerPoint;
    if (format == PictureFormat::Png && description.printFactor)
        return *description.printFactor;
    const std::optional<std::string> scale = givenValue(description.settings, "scale");
    return scale ? parseWhole(*scale) : 1;
}

PictureSize regionSize(const ChartDescription& description, PictureFormat format)
{
    const int scale = regionScale(description, format);
    return {description.size.width * scale, description.size.height * scale};
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
ChartRegions regionsOf(Chart& chart, const ChartDescription& description, PictureFormat format)
{
    ChartRegions regions = captionRegions(chart, description.kind.name,
                                          regionSize(description, format), description.settings);
    addShapes(chart, regions);
    return regions;
}

template <typename Chart>
DrawnChart draw(const ChartDescription& description, const DrawingRules& rules)
{
    Chart chart(false);
    if (!rules.family.empty())
        chart.setByName("font", rules.family);
    applyDescribed(chart, description.settings);
    addItems(chart, description.items);
    setLinks(chart, description.items);
    DrawnChart drawn;
    drawn.picture = render(chart, description, rules.format);
    if (rules.wantsRegions)
        drawn.regions = regionsOf(chart, description, rules.format);
    drawn.problem = chart.problemText();
    return drawn;
}

} // namespace

DrawnChart drawDescription(const ChartDescription& description, const DrawingRules& rules)
{
    if (description.kind.bit == Setting::VerticalBars)
        return draw<VerticalBarGraph>(description, rules);
    if (description.kind.bit == Setting::HorizontalBars)
        return draw<HorizontalBarGraph>(description, rules);
    return draw<PieGraph>(description, rules);
}

} // namespace tovangl::program
