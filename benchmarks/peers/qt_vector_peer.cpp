// SPDX-License-Identifier: MIT
// Times what Qt's own writers of SVG and PDF make of this library's charts: the same layout,
// painted on them. After the arguments of every measuring program it takes "svg" or "pdf".
#include "chart/CBarBase.h"
#include "chart/CPieGraph.h"
#include "paint/CCanvas.h"
#include "process/CRendering.h"
#include "support/timed_rounds.h"

#include <QBuffer>
#include <QPageSize>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <cstring>
#include <numeric>
#include <vector>

namespace tovangl {
namespace bench {

namespace {

constexpr bool kWithoutBackground = false;
constexpr int kPixelsPerPoint = 4;
constexpr int kPointsPerInch = 72;

template <typename Chart>
void paintOn(QPaintDevice& device, const CRequest& request, const CChartCase& chart)
{
    Chart graph(kWithoutBackground);
    for (const CCaseItem& item : chart.items)
        graph.input().addItem(item.value, QString::fromStdString(item.caption), QColor(), QColor());
    std::vector<std::size_t> all(chart.items.size());
    std::iota(all.begin(), all.end(), std::size_t(0));
    CCanvas canvas(device, graph.input().settings, request);
    canvas.paint(computeLayout(graph.input(), all, request, canvas.measurer()));
}

void paintOn(QPaintDevice& device, const CRequest& request, const CChartCase& chart)
{
    if (chart.kind == Bars)
        paintOn<CBarGraph>(device, request, chart);
    else if (chart.kind == LyingBars)
        paintOn<CLabeledBarGraph>(device, request, chart);
    else
        paintOn<CPieGraph>(device, request, chart);
}

void writeSvg(QBuffer& file, const CChartCase& chart)
{
    QSvgGenerator device;
    device.setOutputDevice(&file);
    device.setSize(QSize(chart.width, chart.height));
    device.setViewBox(QRect(0, 0, chart.width, chart.height));
    paintOn(device, {chart.width, chart.height, 1}, chart);
}

void writePdf(QBuffer& file, const CChartCase& chart)
{
    QPdfWriter device(&file);
    device.setPageSize(QPageSize(QSizeF(chart.width, chart.height), QPageSize::Point, QString(),
                                 QPageSize::ExactMatch));
    device.setPageMargins(QMarginsF());
    device.setResolution(kPixelsPerPoint * kPointsPerInch);
    paintOn(device,
            {chart.width * kPixelsPerPoint, chart.height * kPixelsPerPoint, kPixelsPerPoint,
             OutputDevice::Printer},
            chart);
}

} // namespace

} // namespace bench
} // namespace tovangl

int main(int count, char** arguments)
{
    using namespace tovangl;
    constexpr int kFormPlace = bench::kCaseArguments + 2;
    const bool isPdf = count > kFormPlace && std::strcmp(arguments[kFormPlace], "pdf") == 0;
    QByteArray bytes;
    const auto draw = [&bytes, isPdf](const bench::CChartCase& chart, const std::string&) {
        const CRendering rendering;
        bytes.clear();
        QBuffer file(&bytes);
        file.open(QIODevice::WriteOnly);
        (isPdf ? bench::writePdf : bench::writeSvg)(file, chart);
        return bench::CPictureBytes{bytes.constData(), static_cast<std::size_t>(bytes.size())};
    };
    return bench::timeRounds(count, arguments, draw);
}
