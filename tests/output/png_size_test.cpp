// SPDX-License-Identifier: MIT
#include "output/plain_encoding.h"
#include "output/png_decoders.h"
#include "output/png_encoding.h"
#include "support/mixed_charts.h"
#include "support/png_decoding.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

struct CSizes
{
    double plain = 0; // bytes
    double balanced = 0;
    double fast = 0;
    double worstFast = 0; // of a file, as a part of the plain one
};

double sizeOf(const QImage& picture, Compression compression)
{
    QImage copy = picture.copy();
    return static_cast<double>(encodePng(copy, compression).size);
}

void add(CSizes& sizes, const std::string& png)
{
    const QImage picture = decodePng(png);
    const auto plain = static_cast<double>(encodePlainly(picture).size());
    const double fast = sizeOf(picture, Compression::Fast);
    sizes.plain += plain;
    sizes.balanced += sizeOf(picture, Compression::Balanced);
    sizes.fast += fast;
    if (!picture.isNull())
        sizes.worstFast = std::max(sizes.worstFast, fast / plain);
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
    for (unsigned number = 0; number < count; ++number) {
        const int width = 600 + 12 * static_cast<int>(number);
        add(sizes, makeMixedChart(number).createPixmap(width, 1400 - width).bytes());
    }
    return sizes;
}

// What users were promised where speed is what they asked for: less than the plain way, and no file
// larger by more than a quarter.
void expectSmallFastFiles(const CSizes& sizes)
{
    EXPECT_LE(sizes.fast / sizes.plain, 0.95);
    EXPECT_GT(sizes.worstFast, 0);
    EXPECT_LE(sizes.worstFast, 1.25);
}

TEST(PngSize, OfManyChartsIsATenthBelowThePlainWayAndForSpeedOfNoneMuchAboveIt)
{
    const CSizes sizes = sizesOfMixedCharts(500);
    EXPECT_LE(sizes.balanced / sizes.plain, 0.9);
    expectSmallFastFiles(sizes);
}

TEST(PngSize, OfLargeChartsIsBelowThePlainWayAndForSpeedOfNoneMuchAboveIt)
{
    const CSizes sizes = sizesOfLargeCharts(60);
    EXPECT_LE(sizes.balanced / sizes.plain, 0.95);
    expectSmallFastFiles(sizes);
}

} // namespace
} // namespace tovangl
