// SPDX-License-Identifier: MIT
// Every described chart has the layout that is written down beside it. accept writes it anew.
#include "layout/drawn_chart.h"

#include <QDir>

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace tovangl {
namespace {

std::vector<std::string> chartNames()
{
    const QDir folder(QString::fromUtf8(TOVANGL_LAYOUT_CHARTS));
    std::vector<std::string> names;
    for (const QString& file : folder.entryList({QString("*.chart")}, QDir::Files, QDir::Name))
        names.push_back(file.left(file.size() - 6).toStdString());
    return names;
}

std::string pathOf(const std::string& name, const char* ending)
{
    return std::string(TOVANGL_LAYOUT_CHARTS) + '/' + name + ending;
}

std::string contentOf(const std::string& path)
{
    std::ostringstream content;
    content << std::ifstream(path).rdbuf();
    return content.str();
}

class Layout : public ::testing::TestWithParam<std::string>
{};

TEST_P(Layout, IsAsWrittenDown)
{
    const CDrawnChart chart = drawChart(readChartFile(pathOf(GetParam(), ".chart")));
    const std::string expectedPath = pathOf(GetParam(), ".expected");
    if (std::getenv("TOVANGL_ACCEPT_LAYOUTS"))
        std::ofstream(expectedPath) << chart.layout;
    EXPECT_EQ(chart.layout, contentOf(expectedPath)) << "If that is meant, run tests/layout/accept";
}

TEST_P(Layout, IsTheSameTwice)
{
    const CChartFile file = readChartFile(pathOf(GetParam(), ".chart"));
    const CDrawnChart first = drawChart(file);
    const CDrawnChart second = drawChart(file);
    EXPECT_EQ(first.layout, second.layout);
    EXPECT_EQ(first.image, second.image);
}

INSTANTIATE_TEST_SUITE_P(Charts, Layout, ::testing::ValuesIn(chartNames()),
                         [](const ::testing::TestParamInfo<std::string>& info) {
                             return info.param;
                         });

TEST(LayoutCharts, AreAllThere)
{
    EXPECT_GE(chartNames().size(), 40u);
}

TEST(ChartFile, NamesTheLineOfAMistake)
{
    const std::string path = ::testing::TempDir() + "mistake.chart";
    std::ofstream(path) << "kind pie\nsize 10 10\nsizes 3\n";
    try {
        (void)readChartFile(path);
        FAIL() << "the mistake was not noticed";
    } catch (const std::runtime_error& error) {
        EXPECT_EQ(error.what(), path + ":3: there is no setting \"sizes\"");
    }
}

} // namespace
} // namespace tovangl
