// SPDX-License-Identifier: MIT
// Draws the charts that builds are compared by:
//   render_layouts CHARTS-FOLDER OUTPUT-FOLDER [SWEPT-CHART...]
// For each described chart it writes the picture (.png), its bare pixels (.pixels) and its layout
// (.layout). The swept charts are many: each is written as its layout and a digest of each row of
// its pixels. With names, only those swept charts are drawn, with their pictures.
#include "layout/drawn_chart.h"
#include "layout/swept_charts.h"

#include <QCryptographicHash>
#include <QDir>

#include <algorithm>
#include <cstdio>
#include <fstream>

namespace {

using tovangl::CDrawnChart;

const char* row(const QImage& image, int y)
{
    return reinterpret_cast<const char*>(image.constScanLine(y));
}

int rowSize(const QImage& image)
{
    constexpr int kBytesPerPixel = 4;
    return image.width() * kBytesPerPixel;
}

bool writePicture(const CDrawnChart& chart, const std::string& output)
{
    std::ofstream pixels(output + ".pixels", std::ios::binary);
    for (int y = 0; y < chart.image.height(); ++y)
        pixels.write(row(chart.image, y), rowSize(chart.image));
    return pixels && chart.image.save(QString::fromStdString(output + ".png"));
}

bool writeRowDigests(const CDrawnChart& chart, const std::string& output)
{
    std::ofstream digests(output + ".pixels");
    for (int y = 0; y < chart.image.height(); ++y) {
        const QByteArray bytes = QByteArray::fromRawData(row(chart.image, y), rowSize(chart.image));
        const QByteArray digest = QCryptographicHash::hash(bytes, QCryptographicHash::Md5);
        digests << "row " << y << ' ' << digest.toHex().constData() << '\n';
    }
    return bool(digests);
}

bool writeLayout(const CDrawnChart& chart, const std::string& output)
{
    std::ofstream layout(output + ".layout");
    layout << chart.layout;
    return bool(layout);
}

bool renderDescribed(const QDir& charts, const QDir& output)
{
    for (const QFileInfo& file : charts.entryInfoList({QString("*.chart")}, QDir::Files)) {
        const CDrawnChart chart =
            tovangl::drawChart(tovangl::readChartFile(file.filePath().toStdString()));
        const std::string path = output.filePath(file.completeBaseName()).toStdString();
        if (!writePicture(chart, path) || !writeLayout(chart, path))
            return false;
    }
    return true;
}

bool renderSwept(const QDir& output, const std::vector<std::string>& names)
{
    const QDir folder(output.filePath("swept"));
    if (!folder.mkpath("."))
        return false;
    for (const tovangl::CSweptChart& swept : tovangl::sweptCharts()) {
        const bool isNamed = std::find(names.begin(), names.end(), swept.name) != names.end();
        if (!names.empty() && !isNamed)
            continue;
        const CDrawnChart chart = tovangl::drawChart(swept.chart);
        const std::string path = folder.filePath(QString::fromStdString(swept.name)).toStdString();
        if (!(isNamed ? writePicture : writeRowDigests)(chart, path) || !writeLayout(chart, path))
            return false;
    }
    return true;
}

} // namespace

int main(int count, char** arguments)
{
    if (count < 3) {
        std::fprintf(stderr,
                     "usage: render_layouts CHARTS-FOLDER OUTPUT-FOLDER [SWEPT-CHART...]\n");
        return 2;
    }
    const QDir charts(QString::fromLocal8Bit(arguments[1]));
    const QDir output(QString::fromLocal8Bit(arguments[2]));
    const std::vector<std::string> names(arguments + 3, arguments + count);
    const bool isDone =
        (!names.empty() || renderDescribed(charts, output)) && renderSwept(output, names);
    return isDone ? 0 : 1;
}
