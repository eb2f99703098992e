// SPDX-License-Identifier: MIT
// A few small pictures, kept as files. Each has a chart file of the same name beside it.
#include "golden/image_comparison.h"
#include "layout/drawn_chart.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <ostream>

namespace tovangl {
namespace {

// Antialiased edges differ by so much between versions of Qt.
constexpr int kTolerance = 6;

QString pathOf(const char* name, const char* ending)
{
    return QString::fromUtf8(TOVANGL_GOLDEN_PICTURES "/%1%2")
        .arg(QLatin1String(name), QLatin1String(ending));
}

class GoldenPicture : public ::testing::TestWithParam<const char*>
{};

TEST_P(GoldenPicture, IsDrawnAgain)
{
    const CChartFile file = readChartFile(pathOf(GetParam(), ".chart").toStdString());
    const QImage image = drawChart(file).image;
    const QString goldenPath = pathOf(GetParam(), ".png");
    if (std::getenv("TOVANGL_ACCEPT_GOLDEN")) {
        ASSERT_TRUE(image.save(goldenPath));
    }
    const CImageDifference difference = compareImages(image, QImage(goldenPath), kTolerance);
    EXPECT_TRUE(difference.isNone()) << difference.text() << "; if that is meant, run "
                                     << "tests/golden/accept and look at the pictures";
}

INSTANTIATE_TEST_SUITE_P(Golden, GoldenPicture,
                         ::testing::Values("pie", "pie_print", "bars", "bars_print", "lying"),
                         [](const ::testing::TestParamInfo<const char*>& info) {
                             return std::string(info.param);
                         });

} // namespace
} // namespace tovangl
