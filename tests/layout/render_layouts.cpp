// SPDX-License-Identifier: MIT
// Draws every described chart: render_layouts CHARTS-FOLDER OUTPUT-FOLDER
// For each it writes the picture (.png), its bare pixels (.pixels) and its layout (.layout).
#include "layout/drawn_chart.h"

#include <QDir>

#include <cstdio>
#include <fstream>

namespace {

bool render(const QString& chartPath, const std::string& output)
{
    const tovangl::CDrawnChart chart =
        tovangl::drawChart(tovangl::readChartFile(chartPath.toStdString()));
    std::ofstream pixels(output + ".pixels", std::ios::binary);
    for (int y = 0; y < chart.image.height(); ++y)
        pixels.write(reinterpret_cast<const char*>(chart.image.constScanLine(y)),
                     std::streamsize{chart.image.width()} * 4);
    std::ofstream layout(output + ".layout");
    layout << chart.layout;
    return pixels && layout && chart.image.save(QString::fromStdString(output + ".png"));
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 3) {
        std::fprintf(stderr, "usage: render_layouts CHARTS-FOLDER OUTPUT-FOLDER\n");
        return 2;
    }
    const QDir charts(QString::fromLocal8Bit(arguments[1]));
    const QDir output(QString::fromLocal8Bit(arguments[2]));
    for (const QFileInfo& file : charts.entryInfoList({QString("*.chart")}, QDir::Files)) {
        if (!render(file.filePath(), output.filePath(file.completeBaseName()).toStdString()))
            return 1;
    }
    return 0;
}
