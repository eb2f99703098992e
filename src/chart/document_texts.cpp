// SPDX-License-Identifier: MIT
// What SVG and PDF files say of a chart besides showing it.
#include "chart/document_texts.h"

#include "base/host_text.h"
#include "chart/CChartSummary.h"
#include "chart/description.h"
#include "input/CGraph1dInput.h"
#include "layout/CRequest.h"
#include "pdf/CPdfSurface.h"
#include "svg/CSvgFrame.h"
#include "text/one_line.h"

namespace tovangl {

namespace {

std::vector<CSvgItem> svgItems(const CChartSummary& chart)
{
    const CGraph1dInput& input = chart.input;
    std::vector<CSvgItem> items;
    const auto add = [&](std::size_t position, const CGraph1dItem& item) {
        items.push_back({position, itemTitle(item, input.settings.locale), item.link});
    };
    for (const std::size_t position : chart.items)
        add(position, input.items[position]);
    const auto others = chart.others ? input.gatherOthers(*chart.others) : std::nullopt;
    if (others)
        add(input.items.size(), *others);
    return items;
}

} // namespace

CSvgFrame svgFrame(const CChartSummary& chart, const CRequest& request, const QFont& font)
{
    CSvgFrame frame{request.width, request.height, font};
    const CGraph1dSettings& settings = chart.input.settings;
    frame.fontFamily = settings.fontFamily;
    frame.picture = settings.colors.picture;
    frame.title = settings.title.isEmpty() ? QString::fromLatin1(chart.kind) : settings.title;
    frame.description = toQString(describeChart(chart));
    frame.items = svgItems(chart);
    frame.isOneOfTwo = settings.followsDisplay;
    return frame;
}

CPdfProperties pdfProperties(const CChartSummary& chart)
{
    const CGraph1dSettings& settings = chart.input.settings;
    const QString description = toQString(describeChart(chart));
    const QString title = oneLine(settings.title);
    const bool hasLanguage = settings.locale.language() != QLocale::C;
    return {title.isEmpty() ? description : title, description,
            hasLanguage ? settings.locale.bcp47Name() : QStringLiteral("en")};
}

} // namespace tovangl
