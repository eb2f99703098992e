// SPDX-License-Identifier: MIT
#include "output/packed_picture.h"
#include "output/random_pictures.h"

#include <QImage>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <initializer_list>
#include <utility>
#include <vector>

namespace tovangl {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct CDepthCase
{
    int colors;
    int depth;
};

class DepthOfAPalette : public ::testing::TestWithParam<CDepthCase>
{};

TEST_P(DepthOfAPalette, IsTheFewestBitsThatNumberItsColours)
{
    EXPECT_EQ(paletteDepth(GetParam().colors), GetParam().depth);
}

INSTANTIATE_TEST_SUITE_P(PackedPicture, DepthOfAPalette,
                         ::testing::Values(CDepthCase{1, 1}, CDepthCase{2, 1}, CDepthCase{3, 2},
                                           CDepthCase{4, 2}, CDepthCase{5, 4}, CDepthCase{16, 4},
                                           CDepthCase{17, 8}, CDepthCase{256, 8}));

std::vector<int> rowsOf(const CPackedPicture& packed)
{
    return std::vector<int>(packed.rows.data, packed.rows.data + packed.rows.size);
}

TEST(PackedPicture, PutsTheFirstPixelIntoTheHighestBits)
{
    QImage picture(3, 1, QImage::Format_ARGB32);
    picture.setPixel(0, 0, qRgb(0, 0, 0));
    picture.setPixel(1, 0, qRgb(1, 1, 1));
    picture.setPixel(2, 0, qRgb(2, 2, 2));
    EXPECT_THAT(rowsOf(packPicture(picture, Compression::Balanced)), ElementsAre(0, 0b00011000));
}

TEST(PackedPicture, HoldsRedGreenAndBlueWhereColoursAreMany)
{
    QImage picture = pictureOfColors(257);
    const CPackedPicture packed = packPicture(picture, Compression::Balanced);
    EXPECT_TRUE(packed.palette.empty());
    EXPECT_EQ(packed.rows.size, 1 + 257 * 3u);
    EXPECT_EQ(packed.rows.data[1 + 256 * 3 + 1], 1);
}

TEST(PackedPicture, HoldsAlphaTooWhereOneOfManyColoursIsNotOpaque)
{
    QImage picture = pictureOfColors(257);
    picture.setPixel(256, 0, qRgba(1, 2, 3, 4));
    const CPackedPicture packed = packPicture(picture, Compression::Balanced);
    EXPECT_TRUE(packed.hasAlpha);
    const std::vector<int> row = rowsOf(packed);
    EXPECT_EQ(row.size(), 1 + 257 * 4u);
    EXPECT_THAT(std::vector<int>(row.end() - 4, row.end()), ElementsAre(1, 2, 3, 4));
}

TEST(PackedPicture, LiesInThePicturesOwnMemory)
{
    for (const int colors : {1, 3, 12, 200, 100000}) {
        QImage picture = randomPicture(1, 61, 47, colors);
        const unsigned char* const memory = picture.bits();
        const CPackedPicture packed = packPicture(picture, Compression::Balanced);
        EXPECT_EQ(packed.rows.data, memory);
        EXPECT_EQ(packed.spare.data, memory + packed.rows.size);
        EXPECT_EQ(packed.rows.size + packed.spare.size, 61 * 47 * 4u);
    }
}

TEST(PackedPicture, LeavesThePicturesMemoryFreeWhereItsRowsHoldAlpha)
{
    QImage picture = translucentNoise(1, 61, 47);
    const unsigned char* const memory = picture.bits();
    const CPackedPicture packed = packPicture(picture, Compression::Balanced);
    EXPECT_EQ(packed.rows.size, (1 + 61 * 4u) * 47);
    EXPECT_EQ(packed.spare.data, memory);
    EXPECT_EQ(packed.spare.size, 61 * 47 * 4u);
}

TEST(RowFilter, IsNoneWhereNoRowRepeatsTheRowAbove)
{
    EXPECT_EQ(chooseFilter(1000000, 0, 600), RowFilter::None);
}

TEST(RowFilter, IsNoneForShortRowsAndUpForLongOnesOfABarChart)
{
    EXPECT_EQ(chooseFilter(400, 350, 50), RowFilter::None);
    EXPECT_EQ(chooseFilter(800, 350, 50), RowFilter::Up);
}

TEST(RowFilter, IsNoneWhereFewRowsRepeatTheRowAbove)
{
    EXPECT_EQ(chooseFilter(800, 50, 350), RowFilter::None);
}

// All rows are the same, and long.
QImage pictureOfStripe()
{
    QImage picture(12000, 100, QImage::Format_ARGB32);
    picture.fill(Qt::white);
    for (int y = 0; y < picture.height(); ++y)
        picture.setPixel(6000, y, qRgb(0, 0, 0));
    return picture;
}

TEST(RowFilter, IsNoneForTheSettingFastAlone)
{
    for (const Compression compression : {Compression::Balanced, Compression::Fast}) {
        QImage picture = pictureOfStripe();
        const CPackedPicture packed = packPicture(picture, compression);
        const bool isFast = compression == Compression::Fast;
        EXPECT_EQ(RowFilter{*packed.rows.data}, isFast ? RowFilter::None : RowFilter::Up);
        EXPECT_EQ(packed.stillRows.runs.empty(), isFast);
    }
}

TEST(PackedPicture, TellsHowFarApartPixelsAre)
{
    const auto shapeOf = [](QImage picture) {
        return packPicture(picture, Compression::Fast).shape;
    };
    EXPECT_EQ(shapeOf(randomPicture(1, 61, 47, 2)).pixelBytes, 1u);
    EXPECT_EQ(shapeOf(randomPicture(1, 61, 47, 2)).stride, 1u + 8u);
    EXPECT_EQ(shapeOf(randomPicture(1, 61, 47, 200)).stride, 1u + 61u);
    EXPECT_EQ(shapeOf(noise(1, 61, 47)).pixelBytes, 3u);
    EXPECT_EQ(shapeOf(noise(1, 61, 47)).stride, 1u + 3 * 61u);
    EXPECT_EQ(shapeOf(translucentNoise(1, 61, 47)).pixelBytes, 4u);
    EXPECT_EQ(shapeOf(translucentNoise(1, 61, 47)).stride, 1u + 4 * 61u);
}

// Rows of 1000 bytes: true repeats the row above.
std::vector<CRowRun> stillRuns(std::initializer_list<std::pair<bool, int>> rows)
{
    std::vector<bool> isRepeated;
    for (const auto& [value, count] : rows)
        isRepeated.insert(isRepeated.end(), static_cast<std::size_t>(count), value);
    return findStillRows(isRepeated, 1000).runs;
}

MATCHER_P2(RunIs, first, count, "")
{
    return arg.first == static_cast<std::size_t>(first) &&
           arg.count == static_cast<std::size_t>(count);
}

TEST(FoundStillRows, AreTheLongRunsOfRowsThatRepeatTheRowAbove)
{
    EXPECT_THAT(stillRuns({{false, 1}, {true, 33}, {false, 5}, {true, 32}, {false, 5}, {true, 40}}),
                ElementsAre(RunIs(1, 33), RunIs(76, 40)));
}

TEST(FoundStillRows, AreNoneWhereTheyAreLessThanHalfOfThePicture)
{
    EXPECT_THAT(stillRuns({{false, 50}, {true, 50}}), ElementsAre(RunIs(50, 50)));
    EXPECT_THAT(stillRuns({{false, 51}, {true, 50}}), IsEmpty());
    EXPECT_THAT(stillRuns({{false, 1}, {true, 32}}), IsEmpty());
}

} // namespace
} // namespace tovangl
