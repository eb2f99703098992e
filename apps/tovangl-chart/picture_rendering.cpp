// SPDX-License-Identifier: MIT
// Renders a chart in the format that is wanted, and asks it what is where.
#include "tovangl-chart/picture_rendering.h"

namespace tovangl::program {

std::string renderPicture(Graph& chart, PictureFormat format, PictureSize size,
                          std::optional<int> printFactor)
{
    unsigned char* bytes = nullptr;
    int count = 0;
    if (format == PictureFormat::Svg)
        chart.createSvg(size.width, size.height, &bytes, &count);
    else if (format == PictureFormat::Pdf)
        chart.createPdf(size.width, size.height, &bytes, &count);
    else if (printFactor)
        chart.createPixmapForPrinter(size.width, size.height, *printFactor, &bytes, &count);
    else
        chart.createPixmap(size.width, size.height, &bytes, &count);
    return {reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(count)};
}

ChartRegions captionRegions(Graph& chart, const char* kind, PictureSize size,
                            const GivenSettings& settings)
{
    ChartRegions regions;
    regions.kind = kind;
    regions.description = chart.describe();
    regions.size = size;
    regions.title = givenValue(settings, "title").value_or("");
    regions.titleRectangle = chart.titleRectangle();
    regions.captions = *chart.getRectangle();
    const std::string others = givenValue(settings, "others").value_or("");
    if (!others.empty())
        regions.others = OthersItem{others, chart.othersCount(), chart.othersValue(),
                                    givenValue(settings, "others_link").value_or("")};
    return regions;
}

} // namespace tovangl::program
