// SPDX-License-Identifier: MIT
#include "chart/CBarBase.h"
#include "support/host_pictures.h"
#include <tovangl/tovangl.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <type_traits>

namespace tovangl {
namespace {

using ::testing::ElementsAre;

constexpr int kMost = std::numeric_limits<int>::max();

// A facade with its chart in sight.
class CTestGraph : public VerticalBarGraph
{
public:
    CTestGraph()
        : VerticalBarGraph(false)
    {}
    using VerticalBarGraph::getGraph;

    [[nodiscard]] const CGraph1dSettings& settings() const { return getGraph()->input().settings; }
};

static_assert(!std::is_copy_constructible_v<Graph> && !std::is_copy_assignable_v<Graph>);
static_assert(std::has_virtual_destructor_v<Graph>);

TEST(GraphWithoutChart, ExportsNothing)
{
    Graph graph;
    unsigned char byte = 7;
    unsigned char* data = &byte;
    int size = 42;
    graph.createPixmap(10, 10, &data, &size);
    graph.createPixmapForPrinter(10, 10, 2, &data, &size);
    EXPECT_EQ(data, &byte);
    EXPECT_EQ(size, 42);
}

TEST(GraphWithoutChart, HasThresholdZeroWhateverIsSet)
{
    Graph graph;
    graph.setThreshold(5);
    EXPECT_EQ(graph.threshold(), 0.0);
}

TEST(GraphWithoutChart, HasAnEmptyListOfRectangles)
{
    Graph graph;
    ASSERT_NE(graph.getRectangle(), nullptr);
    EXPECT_TRUE(graph.getRectangle()->empty());
}

TEST(GraphWithoutChart, IgnoresSettings)
{
    Graph graph;
    graph.setFont("Tahoma", 11);
    graph.setLocale("en", "us");
    graph.setCompression(Compression::Fast);
    graph.clear();
    graph.freePixmap();
    EXPECT_TRUE(graph.getRectangle()->empty());
}

class GraphTest : public ::testing::Test
{
protected:
    CTestGraph graph;
};

TEST_F(GraphTest, ExportsAPngOfTheSizeAskedFor)
{
    EXPECT_EQ(exported(graph, 400, 300).decoded().size(), QSize(400, 300));
}

TEST_F(GraphTest, ExportsThePixelsOfTheChart)
{
    graph.addItem(1, "caption");
    const QImage image = exported(graph, 400, 300).decoded();
    EXPECT_EQ(image, graph.getGraph()->getImage(400, 300));
}

TEST_F(GraphTest, PrintsAtAMultipleOfTheSize)
{
    EXPECT_EQ(printed(graph, 400, 300, 2).decoded().size(), QSize(800, 600));
}

TEST_F(GraphTest, ExportsTheSamePixelsWithEveryCompression)
{
    const QImage balanced = exported(graph, 400, 700).decoded();
    graph.setCompression(Compression::Fast);
    EXPECT_EQ(exported(graph, 400, 700).decoded(), balanced);
}

TEST_F(GraphTest, ExportsItsSmallerFileUnlessAskedForSpeed)
{
    for (long value = 1; value < 60; ++value)
        graph.addItem(value * value, "item");
    const int before = exported(graph, 1600, 800).size;
    graph.setCompression(Compression::Fast);
    EXPECT_GT(exported(graph, 1600, 800).size, before);
    graph.setCompression(Compression::Balanced);
    EXPECT_EQ(exported(graph, 1600, 800).size, before);
}

TEST_F(GraphTest, FreesItsBytesOnRequestAndTwiceIsHarmless)
{
    (void)exported(graph, 40, 30);
    graph.freePixmap();
    graph.freePixmap();
    EXPECT_EQ(exported(graph, 40, 30).decoded().size(), QSize(40, 30));
}

class SizeOfNoPicture : public GraphTest, public ::testing::WithParamInterface<std::pair<int, int>>
{};

TEST_P(SizeOfNoPicture, GivesABufferOfNoLengthAndIsTheProblem)
{
    const CHostPicture picture = exported(graph, GetParam().first, GetParam().second);
    EXPECT_NE(picture.data, nullptr);
    EXPECT_EQ(picture.size, 0);
    EXPECT_EQ(graph.problem(), Problem::SizeOutOfRange);
}

INSTANTIATE_TEST_SUITE_P(Graph, SizeOfNoPicture,
                         ::testing::Values(std::pair(0, 300), std::pair(300, 0), std::pair(-1, -1),
                                           std::pair(1000001, 1), std::pair(40000, 40000),
                                           std::pair(kMost, kMost)));

TEST_F(GraphTest, AnEmptyPictureReplacesTheOneBefore)
{
    (void)exported(graph, 40, 30);
    EXPECT_EQ(exported(graph, 0, 0).size, 0);
}

TEST_F(GraphTest, ListsTheCaptionsOfTheLastExport)
{
    graph.addItem(1, "a");
    (void)exported(graph, 400, 300);
    const QRect caption = graph.getGraph()->itemRectangles().front();
    EXPECT_THAT(*graph.getRectangle(), ElementsAre(Rectangle{caption.x(), caption.y(),
                                                             caption.width(), caption.height()}));
}

TEST_F(GraphTest, ListsZerosForACaptionThatIsHidden)
{
    graph.addItem(1, "a");
    (void)exported(graph, 400, 300);
    graph.setHorizontalAxis(AxisProperty::ShowLine, "");
    (void)exported(graph, 400, 300);
    EXPECT_THAT(*graph.getRectangle(), ElementsAre(kNoRectangle));
}

TEST_F(GraphTest, HandsOutTheSameListEachTime)
{
    graph.addItem(1, "a");
    const auto* list = graph.getRectangle();
    EXPECT_EQ(graph.getRectangle(), list);
    EXPECT_EQ(list->size(), 1u);
}

TEST_F(GraphTest, SetsTheFont)
{
    graph.setFont("DejaVu S\xc3\xa4ns", 20);
    EXPECT_EQ(graph.settings().fontFamily, QString::fromUtf8("DejaVu S\xc3\xa4ns"));
    graph.setFont("Tahoma", 11);
    EXPECT_EQ(graph.settings().fontFamily, QString("Tahoma"));
    EXPECT_EQ(graph.settings().fontSize, 11);
}

TEST_F(GraphTest, SetsTheLocale)
{
    graph.setLocale("Deutsch", "at");
    EXPECT_EQ(graph.settings().locale.name(), QString("de_AT"));
}

} // namespace
} // namespace tovangl
