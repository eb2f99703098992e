// SPDX-License-Identifier: MIT
// What a chart of any kind says of a rendering that went wrong.
#include "api/problem_text.h"
#include "support/host_pictures.h"
#include <tovangl/tovangl.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

namespace tovangl {
namespace {

using ::testing::MatchesRegex;

constexpr int kSide = 400;
constexpr int kSideWithoutRoom = 15;

struct CKind
{
    const char* name;
    std::unique_ptr<Graph> (*make)();
};

void PrintTo(const CKind& kind, std::ostream* stream)
{
    *stream << kind.name;
}

template <typename Chart>
std::unique_ptr<Graph> makeChart()
{
    auto chart = std::make_unique<Chart>(false);
    chart->addItem(3, "a");
    chart->addItem(2, "b");
    return chart;
}

class ProblemOfEveryChart : public ::testing::TestWithParam<CKind>
{
protected:
    void render(int width, int height) { size = exported(*chart, width, height).size; }

    std::unique_ptr<Graph> chart = GetParam().make();
    int size = 0;
};

INSTANTIATE_TEST_SUITE_P(Graph, ProblemOfEveryChart,
                         ::testing::Values(CKind{"VerticalBars", makeChart<VerticalBarGraph>},
                                           CKind{"HorizontalBars", makeChart<HorizontalBarGraph>},
                                           CKind{"Pie", makeChart<PieGraph>}),
                         [](const auto& info) { return info.param.name; });

TEST_P(ProblemOfEveryChart, IsNoneBeforeTheFirstRendering)
{
    EXPECT_EQ(chart->problem(), Problem::None);
    EXPECT_EQ(chart->problemText(), "");
}

TEST_P(ProblemOfEveryChart, IsNoneWhereTheChartWasDrawn)
{
    render(kSide, kSide);
    EXPECT_EQ(chart->problem(), Problem::None);
}

TEST_P(ProblemOfEveryChart, IsNoneForAChartWithoutItems)
{
    chart->clear();
    render(kSide, kSide);
    EXPECT_EQ(chart->problem(), Problem::None);
}

TEST_P(ProblemOfEveryChart, IsAPictureWithoutRoomThatIsMadeAllTheSame)
{
    render(kSideWithoutRoom, kSideWithoutRoom);
    EXPECT_EQ(chart->problem(), Problem::TooSmallForChart);
    EXPECT_EQ(chart->problemText(), "The picture has no room for the chart.");
    EXPECT_GT(size, 0);
}

TEST_P(ProblemOfEveryChart, IsASizeThatNoPictureCanHave)
{
    render(kSide, 0);
    EXPECT_EQ(chart->problem(), Problem::SizeOutOfRange);
    EXPECT_EQ(size, 0);
}

TEST_P(ProblemOfEveryChart, IsASizeThatOnlyThePrintFactorMakesTooLarge)
{
    (void)printed(*chart, kSide, kSide, 1000);
    EXPECT_EQ(chart->problem(), Problem::SizeOutOfRange);
}

TEST_P(ProblemOfEveryChart, IsAFamilyThatIsReplaced)
{
    chart->setFont("No Such Family", 11);
    render(kSide, kSide);
    EXPECT_EQ(chart->problem(), Problem::FamilyReplaced);
    EXPECT_GT(size, 0);
}

TEST_P(ProblemOfEveryChart, IsTheLackOfRoomWhereTheFamilyIsReplacedToo)
{
    chart->setFont("No Such Family", 11);
    render(kSideWithoutRoom, kSideWithoutRoom);
    EXPECT_EQ(chart->problem(), Problem::TooSmallForChart);
}

TEST_P(ProblemOfEveryChart, IsThatOfTheLastRendering)
{
    render(kSide, 0);
    render(kSide, kSide);
    EXPECT_EQ(chart->problem(), Problem::None);
}

TEST_P(ProblemOfEveryChart, IsKeptByClear)
{
    render(kSide, 0);
    chart->clear();
    EXPECT_EQ(chart->problem(), Problem::SizeOutOfRange);
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
