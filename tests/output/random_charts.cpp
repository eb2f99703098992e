// SPDX-License-Identifier: MIT
// Charts that are told by numbers, as painted pictures.
#include "output/random_charts.h"

#include "layout/drawn_chart.h"
#include "support/CDice.h"

namespace tovangl {

namespace {

constexpr int kLargestFactor = 4;

// Most pictures are small ones: so are most of those that hosts ask for.
QSize rollSize(CDice& dice, int factor)
{
    const int most = dice.roll(1, 8) == 1 ? 1 : dice.roll(1, 4);
    return QSize(dice.roll(1, 1000 * most / factor), dice.roll(1, 750 * most / factor));
}

CChartFile rollChart(CDice& dice)
{
    CChartFile file;
    file.kind = QString::fromLatin1(
        dice.roll(0, 2) == 0 ? "pie" : (dice.roll(0, 1) == 0 ? "bars" : "lying"));
    file.background = dice.roll(0, 1) == 1;
    const int factor = dice.roll(0, 3) == 0 ? dice.roll(1, kLargestFactor) : 1;
    if (factor > 1)
        file.printFactor = factor;
    file.size = rollSize(dice, factor);
    const int items = dice.roll(0, 60);
    for (int i = 0; i < items; ++i) {
        CChartFile::CItem item;
        item.value = dice.roll(-200, 2000);
        item.text = QString::fromLatin1("item %1").arg(dice.roll(0, 99999));
        if (dice.roll(0, 2) == 0)
            item.color = QColor(dice.roll(0, 255), dice.roll(0, 255), dice.roll(0, 255));
        file.items.push_back(item);
    }
    return file;
}

} // namespace

QImage paintRandomChart(unsigned seed)
{
    CDice dice(seed);
    return drawChart(rollChart(dice)).image;
}

} // namespace tovangl
