// SPDX-License-Identifier: MIT
// How fast texts and the gradient shapes are painted.
#include "layout/CPieLayout.h"
#include "layout/CPlacedText.h"
#include "paint/gradient_shapes.h"
#include "paint/text_painting.h"

#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

namespace tovangl {
namespace {

void drawLabel(benchmark::State& state)
{
    QImage image(200, 200, QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    CPlacedText label;
    label.text = QLatin1String("September");
    label.room = QRectF(50, 100, 80, 14);
    label.color = Qt::black;
    label.isTurned = state.range(0) != 0;
    for (auto _ : state)
        paintText(painter, label);
}
BENCHMARK(drawLabel)->ArgName("turned")->Arg(0)->Arg(1);

void drawDefaultBackground(benchmark::State& state)
{
    QImage image(800, 400, QImage::Format_ARGB32);
    for (auto _ : state) {
        QPainter painter(&image);
        cdraw::drawGradientBackground(painter, CPieBackground(), 1);
    }
}
BENCHMARK(drawDefaultBackground);

} // namespace
} // namespace tovangl
