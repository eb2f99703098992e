// SPDX-License-Identifier: MIT
#include "output/encoded_files.h"
#include "output/plain_encoding.h"
#include "output/png_decoders.h"
#include "output/random_pictures.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <tuple>

namespace tovangl {
namespace {

// An opaque picture, or a translucent one.
class PngOfAPicture : public ::testing::TestWithParam<std::tuple<Compression, bool>>
{
protected:
    static QImage runs(unsigned seed, int width, int height, int colors)
    {
        const auto make = isTranslucent() ? translucentPicture : randomPicture;
        return make(seed, width, height, colors);
    }
    static QImage grains(unsigned seed, int width, int height)
    {
        return isTranslucent() ? translucentNoise(seed, width, height) : noise(seed, width, height);
    }
    static CPictureFile file(const QImage& picture) { return encoded(picture, compression()); }
    static std::string bytes(const QImage& picture) { return bytesOf(file(picture)); }
    static void expectPixels(const QImage& picture)
    {
        EXPECT_TRUE(decodesTo(file(picture), picture))
            << picture.width() << " x " << picture.height();
    }

private:
    static Compression compression() { return std::get<0>(GetParam()); }
    static bool isTranslucent() { return std::get<1>(GetParam()); }
};

INSTANTIATE_TEST_SUITE_P(PngEncoding, PngOfAPicture,
                         ::testing::Combine(::testing::Values(Compression::Balanced,
                                                              Compression::Fast),
                                            ::testing::Bool()));

TEST_P(PngOfAPicture, DecodesToItsPixels)
{
    for (int round = 0; round < 400; ++round) {
        const auto seed = static_cast<unsigned>(round);
        expectPixels(runs(seed, 1 + round * 7 % 73, 1 + round * 5 % 61, 1 + round));
    }
}

TEST_P(PngOfAPicture, DecodesToItsPixelsWhereItIsLarge)
{
    for (const int colors : {2, 4, 16, 200, 100000})
        expectPixels(runs(static_cast<unsigned>(colors), 1501, 700, colors));
}

TEST_P(PngOfAPicture, DecodesToItsPixelsWhereItIsAsNarrowAsCanBe)
{
    for (const int colors : {1, 2, 200, 100000}) {
        expectPixels(runs(1, 1, 1, colors));
        expectPixels(runs(1, 1, 100000, colors));
        expectPixels(runs(1, 2, 100000, colors));
        expectPixels(runs(1, 100000, 1, colors));
    }
}

TEST_P(PngOfAPicture, DecodesToItsPixelsWhereItIsNoise)
{
    expectPixels(grains(1, 1, 1));
    expectPixels(grains(2, 300, 200));
    expectPixels(grains(3, 1, 200000));
    expectPixels(grains(4, 1000, 800));
}

TEST_P(PngOfAPicture, HoldsTheSameBytesEachTime)
{
    for (const int colors : {40, 100000}) {
        const QImage picture = runs(7, 1000, 600, colors);
        const std::string first = bytes(picture);
        (void)file(grains(5, 900, 700));
        EXPECT_EQ(bytes(picture), first) << colors;
    }
}

TEST_P(PngOfAPicture, HoldsTheSameBytesInEveryThread)
{
    const QImage picture = runs(7, 1000, 600, 40);
    const std::string first = bytes(picture);
    std::vector<std::string> others(4);
    std::vector<std::thread> threads;
    threads.reserve(others.size());
    for (std::string& other : others)
        threads.emplace_back([&] { other = bytes(picture); });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(std::count(others.begin(), others.end(), first), 4);
}

TEST_P(PngOfAPicture, SaysItsResolution)
{
    const std::string resolution = chunkOf(bytes(runs(7, 100, 60, 40)), "pHYs");
    EXPECT_EQ(resolution, std::string("\0\0\x0f\x61\0\0\x0f\x61\x01", 9));
}

// A resolution of its own would be written too: what is compared is the library's kind of picture.
TEST(PngEncoding, DecodesToWhatThePlainFileDoes)
{
    for (const int colors : {1, 5, 60, 300}) {
        const QImage picture = randomPicture(3, 160, 120, colors);
        const QImage plain = QImage::fromData(encodePlainly(picture), "PNG");
        EXPECT_EQ(decodeWithLibpng(encoded(picture, Compression::Balanced)),
                  plain.convertToFormat(QImage::Format_ARGB32));
    }
}

TEST(PngEncoding, MakesNoFileWhereThereIsNoPicture)
{
    for (const Compression compression : {Compression::Balanced, Compression::Fast}) {
        QImage nothing;
        const CPictureFile file = encodePng(nothing, compression);
        EXPECT_NE(file.data, nullptr);
        EXPECT_EQ(file.size, 0u);
    }
}

TEST(PngDecoders, RefuseAFileWithAWrongByte)
{
    const QImage picture = randomPicture(7, 100, 60, 40);
    CPictureFile file = encoded(picture, Compression::Balanced);
    EXPECT_TRUE(decodesTo(file, picture));
    file.data[file.size / 2] ^= 1U;
    EXPECT_TRUE(decodeWithLibpng(file) != picture);
    EXPECT_TRUE(decodeWithSpng(file) != picture);
}

} // namespace
} // namespace tovangl
