// SPDX-License-Identifier: MIT
// Encodes many pictures with both settings and decodes each file with two decoders.
//
// compare_decoders PICTURES CHARTS-FOLDER FILES-FOLDER | --largest | --self-test
// PICTURES charts and random pictures, after the described charts of a folder. Some of the files
// are left in the last folder, for other programs to look at. --largest encodes noise of the
// largest size and looks at the end of the file only, because decoding needs more memory than
// encoding.
#include "layout/drawn_chart.h"
#include "output/png_decoders.h"
#include "output/random_charts.h"
#include "output/random_pictures.h"

#include <QDir>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <random>
#include <string>

namespace tovangl {
namespace {

class CComparison
{
public:
    explicit CComparison(std::string folder)
        : m_folder(std::move(folder))
    {}

    void compare(const std::string& name, const QImage& picture)
    {
        for (const Compression compression : {Compression::Balanced, Compression::Fast}) {
            QImage copy = picture.copy();
            const CPictureFile file = encodePng(copy, compression);
            if (!decodesTo(file, picture)) {
                ++m_failed;
                std::printf("FAIL  %s, %d x %d\n", name.c_str(), picture.width(), picture.height());
            }
            keepSample(file);
        }
        ++m_compared;
    }

    [[nodiscard]] bool finish() const
    {
        std::printf("%ld pictures, both settings, two decoders: %ld wrong\n", m_compared, m_failed);
        return m_failed == 0 && m_compared > 0;
    }

private:
    void keepSample(const CPictureFile& file)
    {
        constexpr long kOneOf = 10;
        if (++m_encoded % kOneOf != 0)
            return;
        std::ofstream(m_folder + "/" + std::to_string(m_encoded) + ".png", std::ios::binary)
            .write(reinterpret_cast<const char*>(file.data.get()),
                   static_cast<std::streamsize>(file.size));
    }

    std::string m_folder;
    long m_encoded = 0;
    long m_compared = 0;
    long m_failed = 0;
};

// Small and large ones, with few colours and with many, opaque ones and others.
QImage anyPicture(unsigned seed)
{
    std::mt19937 random(seed);
    const auto upTo = [&random](unsigned limit) {
        return static_cast<int>(static_cast<unsigned>(random()) % limit);
    };
    const bool isLarge = upTo(4) == 0;
    const int width = 1 + upTo(isLarge ? 4000 : 300);
    const int height = 1 + upTo(isLarge ? 3000 : 300);
    int colors = 1 + upTo(10);
    for (int digits = upTo(5); digits > 0; --digits)
        colors *= 10;
    const bool isNoise = upTo(16) == 0;
    if (upTo(2) == 0)
        return isNoise ? translucentNoise(seed, width, height)
                       : translucentPicture(seed, width, height, colors);
    return isNoise ? noise(seed, width, height) : randomPicture(seed, width, height, colors);
}

bool compareAll(unsigned pictures, const QString& charts, const std::string& files)
{
    CComparison comparison(files);
    for (const QFileInfo& file : QDir(charts).entryInfoList({QString("*.chart")}, QDir::Files)) {
        const std::string path = file.filePath().toStdString();
        comparison.compare(path, drawChart(readChartFile(path)).image);
    }
    for (unsigned seed = 0; seed < pictures; ++seed) {
        const std::string number = std::to_string(seed);
        if (seed % 2 == 0)
            comparison.compare("chart " + number, paintRandomChart(seed));
        else
            comparison.compare("picture " + number, anyPicture(seed));
    }
    return comparison.finish();
}

bool isWholeFile(const CPictureFile& file, std::size_t least)
{
    constexpr std::array<unsigned char, 12> kEnd = {0,   0,   0,    0,    'I',  'E',
                                                    'N', 'D', 0xae, 0x42, 0x60, 0x82};
    return file.size > least && file.size <= std::numeric_limits<int>::max() &&
           std::equal(kEnd.begin(), kEnd.end(), file.data.get() + file.size - kEnd.size());
}

// Noise cannot be compressed: its file takes as much memory as the packed rows.
bool encodeLargest()
{
    constexpr int kSide = 23170; // pixels: the largest square that is drawn at all
    constexpr std::size_t kLeast = std::size_t{3} * kSide * kSide;
    for (const Compression compression : {Compression::Balanced, Compression::Fast}) {
        QImage picture = noise(1, kSide, kSide);
        if (!isWholeFile(encodePng(picture, compression), kLeast))
            return false;
        std::printf("noise of %d x %d pixels is encoded\n", kSide, kSide);
    }
    return true;
}

// A picture of another pixel, and a damaged file, must be seen.
bool testItself()
{
    QImage picture = randomPicture(1, 300, 200, 20);
    QImage copy = picture.copy();
    CPictureFile file = encodePng(copy, Compression::Balanced);
    const bool isSame = decodesTo(file, picture);
    picture.setPixel(150, 100, picture.pixel(150, 100) ^ 1U);
    const bool isOther = decodesTo(file, picture);
    file.data[file.size - 20] ^= 1U;
    const bool isDamaged = decodeWithSpng(file).isNull() && decodeWithLibpng(file).isNull();
    return isSame && !isOther && isDamaged;
}

} // namespace
} // namespace tovangl

int main(int count, char** arguments)
{
    if (count == 2 && std::string(arguments[1]) == "--self-test")
        return tovangl::testItself() ? EXIT_SUCCESS : EXIT_FAILURE;
    if (count == 2 && std::string(arguments[1]) == "--largest")
        return tovangl::encodeLargest() ? EXIT_SUCCESS : EXIT_FAILURE;
    if (count != 4) {
        std::fprintf(stderr, "usage: compare_decoders PICTURES CHARTS FILES | --largest\n");
        return 2;
    }
    const auto pictures = static_cast<unsigned>(std::atol(arguments[1]));
    const QString charts = QString::fromLocal8Bit(arguments[2]);
    return tovangl::compareAll(pictures, charts, arguments[3]) ? EXIT_SUCCESS : EXIT_FAILURE;
}
