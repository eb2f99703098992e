// SPDX-License-Identifier: MIT
// How fast a picture is packed and compressed.
#include "output/CDeflater.h"
#include "output/packed_picture.h"

#include <QColor>
#include <QImage>

#include <benchmark/benchmark.h>
#include <random>

namespace tovangl {
namespace {

// Upright stripes eight pixels wide, different in every row, of so many colours in all.
QImage stripes(int colors)
{
    constexpr int kStripe = 8;
    QImage image(800, 400, QImage::Format_ARGB32);
    std::minstd_rand random;
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int color =
                x % kStripe == 0 ? static_cast<int>(random() % static_cast<unsigned>(colors)) : -1;
            row[x] = color < 0 ? row[x - 1] : qRgb(color % 256, color / 256, 7);
        }
    }
    return image;
}

void pack(benchmark::State& state)
{
    const QImage original = stripes(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        QImage image = original.copy();
        state.ResumeTiming();
        benchmark::DoNotOptimize(packPicture(image, Compression::Balanced).rows.size);
    }
}
BENCHMARK(pack)->ArgName("colors")->Arg(1)->Arg(16)->Arg(256)->Arg(65536);

void deflate(benchmark::State& state, Compression compression)
{
    QImage image = stripes(static_cast<int>(state.range(0)));
    const CPackedPicture packed = packPicture(image, compression);
    for (auto _ : state)
        benchmark::DoNotOptimize(CDeflater(packed, compression).deflate(packed.spare));
}
BENCHMARK_CAPTURE(deflate, balanced, Compression::Balanced)->ArgName("colors")->Arg(16)->Arg(65536);
BENCHMARK_CAPTURE(deflate, fast, Compression::Fast)->ArgName("colors")->Arg(16)->Arg(65536);

} // namespace
} // namespace tovangl
