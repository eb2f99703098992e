// SPDX-License-Identifier: MIT
#include "deflate/deflate_streams.h"
#include "output/packed_picture.h"
#include "output/plain_encoding.h"
#include "output/png_decoders.h"
#include "output/png_encoding.h"
#include "support/mixed_charts.h"
#include "support/png_decoding.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

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

// Rows of more than 256 colours, compressed the plain way: 0 for other pictures.
double sizeByLibdeflate(const QImage& picture)
{
    constexpr int kLevel = 6;
    QImage copy = picture.copy();
    const CPackedPicture packed = packPicture(copy, Compression::Balanced);
    const Bytes rows(packed.rows.data, packed.rows.data + packed.rows.size);
    return packed.palette.empty() ? static_cast<double>(rawDeflated(rows, kLevel).size()) : 0;
}

// Large pies with smooth edges.
QImage manyColors(unsigned number)
{
    CAnyChart chart(ChartKind::Pie, true);
    const unsigned slices = 3 + number;
    for (unsigned slice = 0; slice < slices; ++slice)
        chart.addItem(10 + 7L * slice, "slice " + std::to_string(slice));
    const int width = 300 + 60 * static_cast<int>(number);
    return decodePng(chart.createPixmap(width, 300).bytes()).convertToFormat(QImage::Format_ARGB32);
}

TEST(PngSize, OfManyColorsIsThatOfALongerSearchWithinAFiftieth)
{
    double whole = 0;
    double plain = 0;
    for (unsigned number = 0; number < 12; ++number) {
        const QImage picture = manyColors(number);
        const double size = sizeOf(picture, Compression::Balanced);
        const double bySearch = sizeByLibdeflate(picture);
        ASSERT_GT(bySearch, 0) << number;
        EXPECT_LE(size, 1.1 * bySearch) << number;
        EXPECT_EQ(size, sizeOf(picture, Compression::Fast)) << number;
        whole += size;
        plain += bySearch;
    }
    EXPECT_LE(whole, 1.02 * plain);
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
