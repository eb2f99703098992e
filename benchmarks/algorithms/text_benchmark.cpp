// SPDX-License-Identifier: MIT
// How fast numbers are written, and texts measured and fitted.
#include "text/CTextLabel.h"
#include "text/number_text.h"

#include <QImage>
#include <QLocale>
#include <QPainter>

#include <benchmark/benchmark.h>

namespace tovangl {
namespace {

constexpr double kRoom = 100; // pixels

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
    CTextMeasurer measurer(painter);
    for (auto _ : state) {
        const CTextLabel label(QLatin1String("September"), CTextStyle(), measurer);
        benchmark::DoNotOptimize(label.getBoundingRect());
    }
}
BENCHMARK(measureLabel);

// Measuring by counting, so that only the search for the place of the cut is timed.
void fitText(benchmark::State& state)
{
    constexpr double kCharacterWidth = 7;
    const QString text(static_cast<int>(state.range(0)), QLatin1Char('x'));
    const cdraw::TextMeasure measure = [](const QString& part) {
        return kCharacterWidth * static_cast<double>(part.size());
    };
    for (auto _ : state)
        benchmark::DoNotOptimize(
            cdraw::shortenText(text, kRoom, cdraw::kFromRight, cdraw::kStripSpaces, measure));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(fitText)->RangeMultiplier(10)->Range(10, 1000000)->Complexity();

void shortenText(benchmark::State& state)
{
    QImage image(1, 1, QImage::Format_ARGB32);
    QPainter painter(&image);
    CTextMeasurer measurer(painter);
    const QString text(static_cast<int>(state.range(0)), QLatin1Char('x'));
    for (auto _ : state)
        benchmark::DoNotOptimize(measurer.shortened(text, kRoom, CTextStyle()));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(shortenText)->RangeMultiplier(10)->Range(10, 1000000)->Complexity();

} // namespace
} // namespace tovangl
