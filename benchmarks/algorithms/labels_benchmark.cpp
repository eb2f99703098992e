// SPDX-License-Identifier: MIT
// How fast numbers are written, and labels measured and drawn.
#include "labels/CBarTextLabel.h"

#include <QImage>
#include <QLocale>
#include <QPainter>
#include <QTextOption>

#include <benchmark/benchmark.h>

namespace tovangl {
namespace {

void writeNumber(benchmark::State& state)
{
    const QLocale locale(QLatin1String("en_US"));
    const int format = static_cast<int>(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(numberText(1234567, format, locale, kKilo1024));
}
BENCHMARK(writeNumber)
    ->Arg(PlainNumber)
    ->Arg(PrefixedWhole)
    ->Arg(PrefixedFromTen)
    ->Arg(PrefixedOneDecimal);

void measureLabel(benchmark::State& state)
{
    QImage image(1, 1, QImage::Format_ARGB32);
    QPainter painter(&image);
    for (auto _ : state) {
        CBarTextLabel label(QLatin1String("September"), nullptr);
        benchmark::DoNotOptimize(label.getBoundingRect(painter));
    }
}
BENCHMARK(measureLabel);

void drawLabel(benchmark::State& state)
{
    QImage image(200, 200, QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    CBarTextLabel label(QLatin1String("September"), nullptr);
    label.setRotated(state.range(0) != 0);
    const QRect rect(50, 100, 80, 14);
    const QTextOption option;
    for (auto _ : state)
        label.draw(painter, rect, option);
}
BENCHMARK(drawLabel)->ArgName("turned")->Arg(0)->Arg(1);

} // namespace
} // namespace tovangl
