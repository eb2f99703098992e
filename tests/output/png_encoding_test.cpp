// SPDX-License-Identifier: MIT
#include "output/encoded_files.h"
#include "output/plain_encoding.h"
#include "output/png_decoders.h"
#include "output/random_pictures.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <thread>

namespace tovangl {
namespace {

class PngOfAPicture : public ::testing::TestWithParam<Compression>
{
protected:
    static void expectPixels(const QImage& picture)
    {
        EXPECT_TRUE(decodesTo(encoded(picture, GetParam()), picture))
            << picture.width() << " x " << picture.height();
    }
};

TEST_P(PngOfAPicture, DecodesToItsPixels)
{
    for (int round = 0; round < 400; ++round) {
        const auto seed = static_cast<unsigned>(round);
        expectPixels(randomPicture(seed, 1 + round * 7 % 73, 1 + round * 5 % 61, 1 + round));
    }
}

TEST_P(PngOfAPicture, DecodesToItsPixelsWhereItIsLarge)
{
    for (const int colors : {2, 4, 16, 200, 100000})
        expectPixels(randomPicture(static_cast<unsigned>(colors), 1501, 700, colors));
}

TEST_P(PngOfAPicture, DecodesToItsPixelsWhereItIsAsNarrowAsCanBe)
{
    for (const int colors : {1, 2, 200, 100000}) {
        expectPixels(randomPicture(1, 1, 1, colors));
        expectPixels(randomPicture(1, 1, 100000, colors));
        expectPixels(randomPicture(1, 2, 100000, colors));
        expectPixels(randomPicture(1, 100000, 1, colors));
    }
}

TEST_P(PngOfAPicture, DecodesToItsPixelsWhereItIsNoise)
{
    expectPixels(noise(1, 1, 1));
    expectPixels(noise(2, 300, 200));
    expectPixels(noise(3, 1, 200000));
    expectPixels(noise(4, 1000, 800));
}

TEST_P(PngOfAPicture, HoldsTheSameBytesEachTime)
{
    const QImage picture = randomPicture(7, 1000, 600, 40);
    const std::string first = bytesOf(encoded(picture, GetParam()));
    (void)encoded(noise(5, 900, 700), GetParam());
    EXPECT_EQ(bytesOf(encoded(picture, GetParam())), first);
}

TEST_P(PngOfAPicture, HoldsTheSameBytesInEveryThread)
{
    const QImage picture = randomPicture(7, 1000, 600, 40);
    const std::string first = bytesOf(encoded(picture, GetParam()));
    std::vector<std::string> others(4);
    std::vector<std::thread> threads;
    threads.reserve(others.size());
    for (std::string& other : others)
        threads.emplace_back([&] { other = bytesOf(encoded(picture, GetParam())); });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(std::count(others.begin(), others.end(), first), 4);
}

TEST_P(PngOfAPicture, SaysItsResolution)
{
    const QImage picture = randomPicture(7, 100, 60, 40);
    const std::string resolution = chunkOf(bytesOf(encoded(picture, GetParam())), "pHYs");
    EXPECT_EQ(resolution, std::string("\0\0\x0f\x61\0\0\x0f\x61\x01", 9));
}

TEST_P(PngOfAPicture, IsNoFileWhereThereIsNoPicture)
{
    QImage nothing;
    const CPictureFile file = encodePng(nothing, GetParam());
    EXPECT_NE(file.data, nullptr);
    EXPECT_EQ(file.size, 0u);
}

INSTANTIATE_TEST_SUITE_P(PngEncoding, PngOfAPicture,
                         ::testing::Values(Compression::Balanced, Compression::Fast));

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
