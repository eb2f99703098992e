// SPDX-License-Identifier: MIT
// What every chart keeps and tells of its renderings.
#include "chart/CBarBase.h"
#include "chart/CPieGraph.h"
#include "support/pixels.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <memory>

namespace tovangl {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr int kWidth = 400;
constexpr int kHeight = 300;
constexpr int kSideWithoutRoom = 15;
constexpr int kMost = std::numeric_limits<int>::max();

struct CKind
{
    const char* name;
    std::unique_ptr<CGraph1dBase> (*make)();
};

void PrintTo(const CKind& kind, std::ostream* stream)
{
    *stream << kind.name;
}

template <typename Chart>
std::unique_ptr<CGraph1dBase> makeChart()
{
    return std::make_unique<Chart>(false);
}

class EveryChart : public ::testing::TestWithParam<CKind>
{
protected:
    void add(long long value, const char* text = "caption")
    {
        chart->input().addItem(value, QString(text), QColor(), QColor());
    }
    void addLargeAndSmall()
    {
        add(96);
        add(4);
    }
    QImage render(int width = kWidth, int height = kHeight)
    {
        return chart->getImage(width, height);
    }

    std::unique_ptr<CGraph1dBase> chart = GetParam().make();
};

INSTANTIATE_TEST_SUITE_P(Chart, EveryChart,
                         ::testing::Values(CKind{"StandingBars", makeChart<CBarGraph>},
                                           CKind{"LyingBars", makeChart<CLabeledBarGraph>},
                                           CKind{"Pie", makeChart<CPieGraph>}),
                         [](const auto& info) { return info.param.name; });

// --- pictures

TEST_P(EveryChart, HasAPictureOfTheSizeAndFormatAskedFor)
{
    const QImage image = render(40, 30);
    EXPECT_EQ(image.size(), QSize(40, 30));
    EXPECT_EQ(image.format(), QImage::Format_ARGB32);
}

TEST_P(EveryChart, LeavesItsMarginWhite)
{
    addLargeAndSmall();
    const QImage image = render();
    EXPECT_FALSE(inkOf(image).isNull());
    EXPECT_TRUE(isWhiteOutside(image, image.rect().adjusted(9, 9, -9, -9)));
}

TEST_P(EveryChart, IsDrawnWithoutItems)
{
    EXPECT_EQ(render().size(), QSize(kWidth, kHeight));
    EXPECT_TRUE(chart->isDrawn());
    EXPECT_EQ(chart->problem(), Problem::None);
}

TEST_P(EveryChart, IsTheSameInEveryRendering)
{
    addLargeAndSmall();
    const QImage first = render();
    EXPECT_FALSE(chart->getImageForPrinter(kWidth, kHeight, 3).isNull());
    EXPECT_FALSE(render(120, 90).isNull());
    EXPECT_EQ(render(), first);
}

TEST_P(EveryChart, IsPrintedAtAMultipleOfTheResolution)
{
    addLargeAndSmall();
    EXPECT_EQ(chart->getImageForPrinter(200, 100, 3).size(), QSize(600, 300));
}

TEST_P(EveryChart, IsPrintedOnceForAFactorBelowOne)
{
    addLargeAndSmall();
    const QImage once = chart->getImageForPrinter(kWidth, kHeight, 1);
    for (const int factor : {0, -1, std::numeric_limits<int>::min()})
        EXPECT_EQ(chart->getImageForPrinter(kWidth, kHeight, factor), once) << factor;
}

TEST_P(EveryChart, HasNoPictureOfASizeThatNoneCanHave)
{
    EXPECT_TRUE(render(0, 100).isNull());
    EXPECT_TRUE(render(-5, 100).isNull());
    EXPECT_TRUE(render(40000, 40000).isNull());
    EXPECT_TRUE(render(kMost, kMost).isNull());
    EXPECT_TRUE(chart->getImageForPrinter(kMost, 10, 3).isNull());
    EXPECT_EQ(chart->problem(), Problem::SizeOutOfRange);
    EXPECT_FALSE(chart->isDrawn());
}

// The margin at the far end, where charts paint nothing: painters of Qt 5 do not reach it, those of
// Qt 6 do.
TEST_P(EveryChart, LeavesNothingOfTheMemoryWhereNoPainterReaches)
{
    constexpr int kMargin = 5;
    constexpr int kLong = 32767 + 8 * kMargin;
    addLargeAndSmall();
    chart->input().settings.colors.picture = Qt::yellow;
    const QRgb yellow = QColor(Qt::yellow).rgba();
    const QRect columns(kLong - kMargin, 0, kMargin, kHeight);
    EXPECT_TRUE(isFilled(render(kLong, kHeight), columns, yellow));
    const QRect rows(0, kLong - kMargin, kWidth, kMargin);
    EXPECT_TRUE(isFilled(render(kWidth, kLong), rows, yellow));
}

TEST_P(EveryChart, IsAWhitePictureWhereThereIsNoRoom)
{
    addLargeAndSmall();
    const QImage image = render(kSideWithoutRoom, kSideWithoutRoom);
    EXPECT_TRUE(isFilled(image, image.rect(), kWhitePixel));
    EXPECT_EQ(chart->problem(), Problem::TooSmallForChart);
    EXPECT_FALSE(chart->isDrawn());
}

// --- what is drawn

TEST_P(EveryChart, DrawsWhatReachesTheThresholdAtEachRendering)
{
    addLargeAndSmall();
    (void)render();
    EXPECT_THAT(chart->drawnItems(), ElementsAre(0, 1));
    chart->setThreshold(5);
    EXPECT_THAT(chart->drawnItems(), ElementsAre(0, 1)) << "until the next one";
    (void)render();
    EXPECT_THAT(chart->drawnItems(), ElementsAre(0));
}

TEST_P(EveryChart, DrawsItemsThatWereAddedSince)
{
    add(1);
    (void)render();
    add(2);
    EXPECT_THAT(chart->drawnItems(), ElementsAre(0));
    (void)render();
    EXPECT_THAT(chart->drawnItems(), ElementsAre(0, 1));
}

TEST_P(EveryChart, DrawsNothingInAPictureThatHasNoRoomOrIsNone)
{
    addLargeAndSmall();
    for (const int side : {kSideWithoutRoom, 0}) {
        (void)render();
        (void)render(side, side);
        EXPECT_THAT(chart->drawnItems(), IsEmpty()) << side;
    }
}

// --- caption rectangles

TEST_P(EveryChart, HasANullCaptionRectangleForEachItemNeverDrawn)
{
    EXPECT_THAT(chart->itemRectangles(), IsEmpty());
    addLargeAndSmall();
    EXPECT_THAT(chart->itemRectangles(), ElementsAre(QRect(), QRect()));
}

TEST_P(EveryChart, HasTheCaptionRectanglesOfTheLastRendering)
{
    addLargeAndSmall();
    (void)render();
    const std::vector<QRect> rects = chart->itemRectangles();
    ASSERT_THAT(rects, SizeIs(2));
    EXPECT_TRUE(rects[0].isValid() && rects[1].isValid());
    EXPECT_FALSE(rects[0].intersects(rects[1]));
    (void)render(2 * kWidth, 2 * kHeight);
    EXPECT_NE(chart->itemRectangles(), rects);
}

TEST_P(EveryChart, KeepsTheCaptionRectangleOfAnItemThatIsLeftOutDeliberately)
{
    addLargeAndSmall();
    (void)render();
    const std::vector<QRect> earlier = chart->itemRectangles();
    chart->setThreshold(5);
    (void)render(2 * kWidth, 2 * kHeight);
    EXPECT_NE(chart->itemRectangles()[0], earlier[0]);
    EXPECT_EQ(chart->itemRectangles()[1], earlier[1]);
}

TEST_P(EveryChart, HasNoCaptionRectangleForAnItemThatWasAlwaysLeftOut)
{
    addLargeAndSmall();
    chart->setThreshold(5);
    (void)render();
    EXPECT_TRUE(chart->itemRectangles()[0].isValid());
    EXPECT_EQ(chart->itemRectangles()[1], QRect());
}

TEST_P(EveryChart, LosesTheCaptionRectanglesOfChosenItemsAloneWhereThereIsNoRoom)
{
    addLargeAndSmall();
    (void)render();
    const QRect small = chart->itemRectangles()[1];
    chart->setThreshold(5);
    (void)render(kSideWithoutRoom, kSideWithoutRoom);
    EXPECT_THAT(chart->itemRectangles(), ElementsAre(QRect(), small));
}

TEST_P(EveryChart, KeepsAllCaptionRectanglesWhereThereIsNoPicture)
{
    addLargeAndSmall();
    (void)render();
    const std::vector<QRect> earlier = chart->itemRectangles();
    (void)render(0, kHeight);
    EXPECT_EQ(chart->itemRectangles(), earlier);
}

// --- the threshold

TEST_P(EveryChart, TellsTheThresholdThatWasSetAndAfterARenderingTheOneThatActed)
{
    add(1);
    chart->setThreshold(-4);
    EXPECT_EQ(chart->threshold(), -4.0);
    (void)render();
    EXPECT_EQ(chart->threshold(), 0.0);
    chart->setThreshold(-4);
    EXPECT_EQ(chart->threshold(), -4.0);
}

TEST_P(EveryChart, TellsTheThresholdThatWasSetWhereThereIsNoPicture)
{
    add(1);
    chart->setThreshold(-4);
    (void)render(0, 0);
    EXPECT_EQ(chart->threshold(), -4.0);
}

TEST(PieWithoutAnyShare, TellsTheNegativeThresholdThatWasSet)
{
    CPieGraph pie(false);
    pie.input().addItem(0, QString(), QColor(), QColor());
    pie.setThreshold(-4);
    (void)pie.getImage(kWidth, kHeight);
    EXPECT_EQ(pie.threshold(), -4.0);
}

TEST_P(EveryChart, TellsTheThresholdThatActedAlsoAfterARenderingWithoutItems)
{
    add(1);
    chart->setThreshold(-4);
    (void)render();
    chart->clear();
    (void)render();
    EXPECT_EQ(chart->threshold(), 0.0);
}

// --- clear()

TEST_P(EveryChart, HasNoItemsAndTellsOfNoneAfterClear)
{
    addLargeAndSmall();
    (void)render();
    chart->clear();
    EXPECT_THAT(chart->input().items, IsEmpty());
    EXPECT_THAT(chart->drawnItems(), IsEmpty());
    EXPECT_THAT(chart->itemRectangles(), IsEmpty());
    addLargeAndSmall();
    EXPECT_THAT(chart->drawnItems(), IsEmpty());
    EXPECT_THAT(chart->itemRectangles(), Each(QRect()));
}

TEST_P(EveryChart, KeepsItsSettingsAtClearAndIsDrawnAgainAsBefore)
{
    addLargeAndSmall();
    chart->input().settings.setFont(QString("DejaVu Sans"), 20);
    chart->setThreshold(3);
    const QImage before = render();
    chart->clear();
    EXPECT_EQ(chart->threshold(), 3.0);
    addLargeAndSmall();
    EXPECT_EQ(render(), before);
}

// --- layouts

template <typename Chart>
Chart& withTwoItems(Chart& chart)
{
    chart.input().addItem(3, QString("a"), QColor(), QColor());
    chart.input().addItem(1, QString("b"), QColor(), QColor());
    return chart;
}

TEST(BarLayoutOfAChart, IsThatOfTheLastRenderingAndGoneAfterClear)
{
    CBarGraph chart(false);
    EXPECT_THAT(chart.layout().bars, IsEmpty());
    (void)withTwoItems(chart).getImage(kWidth, kHeight);
    (void)chart.getImage(kWidth, kHeight);
    EXPECT_THAT(chart.layout().bars, SizeIs(2));
    EXPECT_THAT(chart.barRectangles(), SizeIs(2));
    chart.clear();
    EXPECT_THAT(chart.barRectangles(), IsEmpty());
}

TEST(PieLayoutOfAChart, IsThatOfTheLastRenderingAndGoneAfterClear)
{
    CPieGraph chart(false);
    EXPECT_THAT(chart.layout().slices, IsEmpty());
    (void)withTwoItems(chart).getImage(kWidth, kHeight);
    (void)chart.getImage(kWidth, kHeight);
    EXPECT_THAT(chart.layout().slices, SizeIs(2));
    EXPECT_THAT(chart.layout().labels, SizeIs(2));
    chart.clear();
    EXPECT_THAT(chart.layout().slices, IsEmpty());
}

} // namespace
} // namespace tovangl
