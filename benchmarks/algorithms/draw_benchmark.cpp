// SPDX-License-Identifier: MIT
// How fast texts are fitted, and the gradient shapes drawn.
#include "draw/gradient_shapes.h"
#include "draw/text_fitting.h"

#include <QColor>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

namespace tovangl {
namespace {

// Measuring by counting, so that only the search for the place of the cut is timed.
void fitText(benchmark::State& state)
{
    constexpr double kRoom = 100;
    constexpr double kCharacterWidth = 7;
    const QString text(static_cast<int>(state.range(0)), QLatin1Char('x'));
    const cdraw::TextMeasure measure = [](const QString& part) {
        return kCharacterWidth * static_cast<double>(part.size());
    };
    for (auto _ : state)
        benchmark::DoNotOptimize(
            cdraw::fitText(text, kRoom, cdraw::kFromRight, cdraw::kStripSpaces, measure));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(fitText)->RangeMultiplier(10)->Range(10, 1000000)->Complexity();

void shortenText(benchmark::State& state)
{
    constexpr double kRoom = 100;
    QImage image(1, 1, QImage::Format_ARGB32);
    QPainter painter(&image);
    const QString text(static_cast<int>(state.range(0)), QLatin1Char('x'));
    for (auto _ : state) {
        QString shortened = text;
        benchmark::DoNotOptimize(
            cdraw::shortenText(shortened, kRoom, painter, cdraw::kFromRight, cdraw::kStripSpaces));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(shortenText)->RangeMultiplier(10)->Range(10, 1000000)->Complexity();

void drawDefaultBackground(benchmark::State& state)
{
    QImage image(800, 400, QImage::Format_ARGB32);
    for (auto _ : state) {
        QPainter painter(&image);
        cdraw::drawDefaultGradientBackground(painter);
    }
}
BENCHMARK(drawDefaultBackground);

} // namespace
} // namespace tovangl
