// SPDX-License-Identifier: MIT
// What a chart of any kind says of a rendering that went wrong.
#include "chart/problem_text.h"
#include "support/CAnyChart.h"
#include "support/host_pictures.h"
#include <tovangl/tovangl.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

using ::testing::MatchesRegex;

constexpr int kSide = 400;
constexpr int kSideWithoutRoom = 15;

class ProblemOfEveryChart : public ::testing::TestWithParam<ChartKind>
{
protected:
    ProblemOfEveryChart()
    {
        chart.addItem(3, "a");
        chart.addItem(2, "b");
    }
    void render(int width, int height) { size = chart.createPixmap(width, height).size; }
    [[nodiscard]] Graph& graph() const { return chart.graph(); }

    CAnyChart chart{GetParam()};
    int size = 0;
};

INSTANTIATE_TEST_SUITE_P(Graph, ProblemOfEveryChart, ::testing::ValuesIn(kChartKinds));

TEST_P(ProblemOfEveryChart, IsNoneBeforeTheFirstRendering)
{
    EXPECT_EQ(graph().problem(), Problem::None);
    EXPECT_EQ(graph().problemText(), "");
}

TEST_P(ProblemOfEveryChart, IsNoneWhereTheChartWasDrawn)
{
    render(kSide, kSide);
    EXPECT_EQ(graph().problem(), Problem::None);
}

TEST_P(ProblemOfEveryChart, IsAPictureWithoutRoomThatIsMadeAllTheSame)
{
    render(kSideWithoutRoom, kSideWithoutRoom);
    EXPECT_EQ(graph().problem(), Problem::TooSmallForChart);
    EXPECT_EQ(graph().problemText(), "The picture has no room for the chart.");
    EXPECT_GT(size, 0);
}

TEST_P(ProblemOfEveryChart, IsASizeThatNoPictureCanHave)
{
    render(kSide, 0);
    EXPECT_EQ(graph().problem(), Problem::SizeOutOfRange);
    EXPECT_EQ(size, 0);
}

TEST_P(ProblemOfEveryChart, IsASizeThatOnlyThePrintFactorMakesTooLarge)
{
    (void)chart.createPixmapForPrinter(kSide, kSide, 1000);
    EXPECT_EQ(graph().problem(), Problem::SizeOutOfRange);
}

TEST_P(ProblemOfEveryChart, IsAFamilyThatIsReplaced)
{
    graph().setFont("No Such Family", 11);
    render(kSide, kSide);
    EXPECT_EQ(graph().problem(), Problem::FamilyReplaced);
    EXPECT_GT(size, 0);
}

TEST_P(ProblemOfEveryChart, IsTheLackOfRoomWhereTheFamilyIsReplacedToo)
{
    graph().setFont("No Such Family", 11);
    render(kSideWithoutRoom, kSideWithoutRoom);
    EXPECT_EQ(graph().problem(), Problem::TooSmallForChart);
}

TEST_P(ProblemOfEveryChart, IsThatOfTheLastRendering)
{
    render(kSide, 0);
    render(kSide, kSide);
    EXPECT_EQ(graph().problem(), Problem::None);
}

TEST_P(ProblemOfEveryChart, IsKeptByClear)
{
    render(kSide, 0);
    graph().clear();
    EXPECT_EQ(graph().problem(), Problem::SizeOutOfRange);
}

class FamilyThatIsThere : public ::testing::TestWithParam<const char*>
{};

TEST_P(FamilyThatIsThere, IsNoProblem)
{
    PieGraph pie(false);
    pie.addItem(3, "a");
    pie.setFont(GetParam(), 11);
    for (int time = 0; time < 2; ++time) {
        (void)exported(pie, kSide, kSide);
        EXPECT_EQ(pie.problem(), Problem::None);
    }
}

INSTANTIATE_TEST_SUITE_P(Names, FamilyThatIsThere,
                         ::testing::Values("", "DejaVu Sans", "dejavu sans", " DejaVu Sans ",
                                           "DejaVu Sans [PfEd]", "No Such Family, DejaVu Sans",
                                           "sans-serif", "Fantasy", "No Such Family, serif"));

TEST(ProblemOfNoChart, IsNone)
{
    const Graph graph;
    EXPECT_EQ(graph.problem(), Problem::None);
    EXPECT_EQ(graph.problemText(), "");
}

TEST(ProblemText, IsOneSentenceForEveryProblem)
{
    for (const Problem problem :
         {Problem::SizeOutOfRange, Problem::NoMemory, Problem::NoPlatformPlugin,
          Problem::ProcessEnding, Problem::TooSmallForChart, Problem::NoGlyphs,
          Problem::FamilyReplaced}) {
        EXPECT_THAT(problemSentence(problem), MatchesRegex("[A-Z][^\n.!?]+\\."));
        EXPECT_THAT(pageProblemSentence(problem), MatchesRegex("[A-Z][^\n.!?]+\\."));
    }
}

} // namespace
} // namespace tovangl
