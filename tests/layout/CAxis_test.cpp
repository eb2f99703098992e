// SPDX-License-Identifier: MIT
// An axis's line, title and thickness.
#include "layout/axis_support.h"

#include <limits>

namespace tovangl {
namespace {

constexpr int kMost = std::numeric_limits<int>::max();

using CAxisTest = CAxisBench;

TEST_F(CAxisTest, HasAHeightOrAWidthButNotBoth)
{
    CAxisPlan plan = labelled(1);
    const CPlannedAxis horizontal(plan, measurer);
    EXPECT_EQ(horizontal.getHeightForWidth(400), 5 + sizeOf().height());
    EXPECT_EQ(horizontal.getWidthForHeight(400), 0);
    plan.frame = kUpAtTheLeft;
    const CPlannedAxis vertical(plan, measurer);
    EXPECT_EQ(vertical.getHeightForWidth(400), 0);
    EXPECT_EQ(vertical.getWidthForHeight(400), 1 + 5 + sizeOf().width());
}

TEST_F(CAxisTest, ThicknessFollowsTheDirectionAtThatLength)
{
    const QSize label = sizeOf();
    const auto heightOf = [&](std::size_t count) {
        return CPlannedAxis(labelled(count), measurer).getHeightForWidth(8 * label.width());
    };
    EXPECT_EQ(heightOf(8), 5 + label.height());
    EXPECT_EQ(heightOf(9), 5 + 2 * label.height());
    EXPECT_EQ(heightOf(17), 5 + label.width());
}

TEST_F(CAxisTest, TellsTheLineShareOfItsSide)
{
    CAxisPlan plan;
    plan.look.lineWidth = 4;
    EXPECT_EQ(CPlannedAxis(plan, measurer).lineShare(), 1);
    plan.frame = kUpAtTheLeft;
    EXPECT_EQ(CPlannedAxis(plan, measurer).lineShare(), 3);
}

TEST_F(CAxisTest, LengthIsTheDistanceOfTheEdgesWhateverTheLine)
{
    CAxisPlan plan;
    plan.look.lineWidth = 3;
    const CAxisLayout axis = fitted(plan, QRect(10, 20, 100, 30));
    EXPECT_EQ(axis.length, 99);
    EXPECT_EQ(axis.rect, QRect(10, 20, 100, 30));
}

TEST_F(CAxisTest, FittingSurvivesExtremeRectangles)
{
    const QRect widest(QPoint(-kMost, -kMost), QPoint(kMost, kMost));
    for (int orientation = 0; orientation < 4; ++orientation) {
        CAxisPlan plan = labelled(3);
        plan.frame =
            CAxisFrame(static_cast<CAxisFrame::Orientation>(orientation), CAxisFrame::Bottom);
        plan.look.lineWidth = kMost;
        EXPECT_EQ(fitted(plan, widest).length, kMost);
    }
}

// --- the line

struct CLineEnds
{
    CAxisFrame frame;
    QPoint from; // in the rectangle from (10, 20) to (109, 219)
    QPoint to;
};

void PrintTo(const CLineEnds& line, std::ostream* stream)
{
    PrintTo(line.frame, stream);
}

class LineTable : public CAxisBench, public ::testing::WithParamInterface<CLineEnds>
{};

TEST_P(LineTable, RunsOverTheWholeRectangleAtTheSideOfThePlot)
{
    CAxisPlan plan;
    plan.frame = GetParam().frame;
    plan.look = {3, Qt::red};
    const std::optional<CStraightLine> line = fitted(plan, QRect(10, 20, 100, 200)).line;
    ASSERT_TRUE(line);
    EXPECT_EQ(line->from, GetParam().from);
    EXPECT_EQ(line->to, GetParam().to);
    EXPECT_EQ(line->width, 3);
    EXPECT_EQ(line->color, QColor(Qt::red));
}

INSTANTIATE_TEST_SUITE_P(
    All, LineTable,
    ::testing::Values(
        CLineEnds{kRightAtTheBottom, QPoint(10, 20), QPoint(109, 20)},
        CLineEnds{kRightAtTheTop, QPoint(10, 219), QPoint(109, 219)},
        CLineEnds{{CAxisFrame::RightToLeft, CAxisFrame::Bottom}, QPoint(109, 20), QPoint(10, 20)},
        CLineEnds{kUpAtTheLeft, QPoint(109, 219), QPoint(109, 20)},
        CLineEnds{kDownAtTheLeft, QPoint(109, 20), QPoint(109, 219)},
        CLineEnds{{CAxisFrame::TopToBottom, CAxisFrame::Right}, QPoint(10, 20), QPoint(10, 219)}));

TEST_F(CAxisTest, LineHidesInARectangleThinnerThanItsShare)
{
    CAxisPlan plan;
    plan.frame = kRightAtTheTop;
    plan.look.lineWidth = 6;
    EXPECT_TRUE(fitted(plan, QRect(0, 0, 100, 4)).line);
    const CAxisLayout thin = fitted(plan, QRect(0, 0, 100, 3));
    EXPECT_TRUE(thin.isLineHidden);
    EXPECT_FALSE(thin.line);
}

TEST_F(CAxisTest, HasNoLineWithoutTheProperty)
{
    CAxisPlan plan;
    plan.settings.properties = CAxisSettings::ShowLabels;
    EXPECT_FALSE(fitted(plan, QRect(0, 0, 100, 30)).line);
}

// --- the title

TEST_F(CAxisTest, TitleSpansTheWholeAxisAndIsCentred)
{
    const CAxisLayout axis = fitted(titled(kRightAtTheBottom), QRect(10, 20, 100, 50));
    ASSERT_EQ(axis.texts.size(), 1U);
    const CPlacedText& title = axis.texts[0];
    EXPECT_EQ(title.text, QString("title"));
    EXPECT_EQ(title.room.width(), 100);
    EXPECT_EQ(title.room.left() + title.origin.x(), 10);
    EXPECT_EQ(title.room.top() + title.origin.y(), 20);
    EXPECT_EQ(title.alignment, Qt::AlignHCenter | Qt::AlignVCenter);
}

TEST_F(CAxisTest, TitleIsNotPlacedWithoutTheProperty)
{
    CAxisPlan plan = titled(kRightAtTheBottom);
    plan.settings.properties = CAxisSettings::ShowLine;
    EXPECT_TRUE(fitted(plan, QRect(0, 0, 100, 50)).texts.empty());
}

TEST_F(CAxisTest, TitleIsMeasuredAndSetBoldOnDemand)
{
    const QRect rect(0, 0, 300, 50);
    CAxisPlan plan = titled(kRightAtTheBottom, "a title of words");
    const CAxisLayout plain = fitted(plan, rect);
    plan.settings.properties |= CAxisSettings::BoldTitle;
    const CAxisLayout bold = fitted(plan, rect);
    EXPECT_FALSE(plain.texts.at(0).isBold);
    EXPECT_TRUE(bold.texts.at(0).isBold);
    EXPECT_GT(bold.title.getBoundingRect().width(), plain.title.getBoundingRect().width());
}

TEST_F(CAxisTest, LineAndTitleHaveColoursOfTheirOwn)
{
    CAxisPlan plan = titled(kRightAtTheBottom);
    plan.settings.properties |= CAxisSettings::ShowLine;
    plan.look.lineColor = Qt::red;
    plan.look.titleColor = Qt::blue;
    const CAxisLayout axis = fitted(plan, QRect(0, 0, 100, 50));
    EXPECT_EQ(axis.line.value().color, QColor(Qt::red));
    EXPECT_EQ(axis.texts.at(0).color, QColor(Qt::blue));
}

TEST_F(CAxisTest, TitleIsTurnedOnVerticalAxesOnly)
{
    const QRect rect(0, 0, 100, 100);
    EXPECT_FALSE(fitted(titled(kRightAtTheBottom), rect).texts.at(0).isTurned);
    EXPECT_TRUE(fitted(titled(kDownAtTheLeft), rect).texts.at(0).isTurned);
}

TEST_F(CAxisTest, TitleOfAVerticalAxisCoversItsWholeHeight)
{
    for (const CAxisFrame& frame : {kUpAtTheLeft, kDownAtTheLeft}) {
        const QRect rect(10, 20, 60, 101);
        const CPlacedText title = fitted(titled(frame), rect).texts.at(0);
        const QRect covered = coveredPixels(title.room, true, title.origin.toPoint());
        EXPECT_TRUE(rect.adjusted(0, -1, 0, 1).contains(covered));
        EXPECT_EQ(covered.height(), 101);
    }
}

TEST_F(CAxisTest, TitleThatIsTooLongIsShortened)
{
    const CAxisPlan plan = titled(kRightAtTheBottom, "a title that is far too long");
    const CAxisLayout axis = fitted(plan, QRect(0, 0, 60, 50));
    EXPECT_TRUE(axis.texts.at(0).text.endsWith(QString("...")));
}

TEST_F(CAxisTest, TitleHidesOnAnAxisThinnerThanItsWholeThickness)
{
    CAxisPlan plan = titled(kRightAtTheBottom);
    plan.settings.properties |= CAxisSettings::ShowLine;
    const int thickness = CPlannedAxis(plan, measurer).getHeightForWidth(100);
    EXPECT_FALSE(fitted(plan, QRect(0, 0, 100, thickness)).isTitleHidden);
    const CAxisLayout thin = fitted(plan, QRect(0, 0, 100, thickness - 1));
    EXPECT_TRUE(thin.isTitleHidden);
    EXPECT_TRUE(thin.texts.empty());
}

TEST_F(CAxisTest, TitleHidesOnAnAxisTooShortForOneLetterAndTheEllipsis)
{
    const CAxisPlan plan = titled(kRightAtTheBottom, "considerable");
    EXPECT_TRUE(fitted(plan, QRect(0, 0, 8, 50)).isTitleHidden);
}

struct CTitleStart
{
    CAxisFrame::Orientation orientation;
    int along; // on an axis of 100 by 100 pixels
};

void PrintTo(const CTitleStart& start, std::ostream* stream)
{
    *stream << nameOf({start.orientation, CAxisFrame::Bottom});
}

class TitleStartTable : public CAxisBench, public ::testing::WithParamInterface<CTitleStart>
{};

TEST_P(TitleStartTable, IsAtTheLeftOrAtTheBottom)
{
    const CAxisFrame frame(GetParam().orientation, CAxisFrame::Bottom);
    const CAxisLayout axis = fitted(titled(frame), QRect(10, 20, 100, 100));
    EXPECT_EQ(axis.titlePos, COrientedCoord(GetParam().along, axis.shape.getAxisToTitleShift()));
}

INSTANTIATE_TEST_SUITE_P(All, TitleStartTable,
                         ::testing::Values(CTitleStart{CAxisFrame::LeftToRight, 0},
                                           CTitleStart{CAxisFrame::RightToLeft, 99},
                                           CTitleStart{CAxisFrame::BottomToTop, 0},
                                           CTitleStart{CAxisFrame::TopToBottom, 99}));

} // namespace
} // namespace tovangl
