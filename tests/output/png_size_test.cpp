// SPDX-License-Identifier: MIT
#include "output/plain_encoding.h"
#include "output/png_decoders.h"
#include "output/png_encoding.h"
#include "support/mixed_charts.h"
#include "support/png_decoding.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

struct CSizes
{
    double plain = 0; // bytes
    double balanced = 0;
    double fast = 0;
};

double sizeOf(const QImage& picture, Compression compression)
{
    QImage copy = picture.copy();
    return static_cast<double>(encodePng(copy, compression).size);
}

void add(CSizes& sizes, const std::string& png)
{
    const QImage picture = decodePng(png);
    sizes.plain += static_cast<double>(encodePlainly(picture).size());
    sizes.balanced += sizeOf(picture, Compression::Balanced);
    sizes.fast += sizeOf(picture, Compression::Fast);
}

CSizes sizesOfMixedCharts(unsigned count)
{
    CSizes sizes;
    for (unsigned number = 0; number < count; ++number)
        add(sizes, renderMixedChart(number).png);
    return sizes;
}

CSizes sizesOfLargeCharts(unsigned count)
{
    CSizes sizes;
    for (unsigned number = 0; number < count; ++number)
        add(sizes, makeMixedChart(number).createPixmap(1200, 600).bytes());
    return sizes;
}

// What users were promised: a tenth less than the plain way, or at most a tenth more where speed is
// what they asked for.
TEST(PngSize, OfManyChartsIsATenthBelowThePlainWayOrForSpeedATenthAbove)
{
    constexpr unsigned kCharts = 500;
    const CSizes sizes = sizesOfMixedCharts(kCharts);
    EXPECT_LE(sizes.balanced / sizes.plain, 0.9);
    EXPECT_LE(sizes.fast / sizes.plain, 1.1);
}

// The fastest compressor must not spend its bits on distances to rows that it does not find.
TEST(PngSize, OfLargeChartsForSpeedIsAtMostAQuarterAboveThePlainWay)
{
    constexpr unsigned kCharts = 24;
    const CSizes sizes = sizesOfLargeCharts(kCharts);
    EXPECT_LE(sizes.fast / sizes.plain, 1.25);
}

} // namespace
} // namespace tovangl
