// SPDX-License-Identifier: MIT
#include "axes/CTestAxis.h"

#include <gmock/gmock.h>
#include <random>

namespace tovangl {
namespace {

using ::testing::ElementsAre;

const CAxis::Properties kThinned = CAxis::ShowLine | CAxis::ShowLabels | CAxis::HideOverlapped;

using CAxisLabels = CAxisPicture;

TEST_F(CAxisLabels, BoxHasTheGreatestWidthAndTheGreatestHeight)
{
    CTestAxis axis;
    axis.addLabel(QSize(50, 8));
    axis.addLabel(QSize(20, 12));
    axis.setLabelBoundingRect(painter);
    EXPECT_EQ(axis.labelRect(), QRect(0, 0, 50, 12));
}

TEST_F(CAxisLabels, HiddenLabelsCountForTheBox)
{
    CTestAxis axis;
    axis.addLabel(QSize(50, 8));
    axis.label(0)->setHidden(true);
    axis.setLabelBoundingRect(painter);
    EXPECT_EQ(axis.labelRect(), QRect(0, 0, 50, 8));
}

TEST_F(CAxisLabels, WithoutLabelsTheBoxIsNull)
{
    CTestAxis axis;
    axis.addLabel(QSize(50, 8));
    axis.setLabelBoundingRect(painter);
    axis.clearLabels();
    axis.setLabelBoundingRect(painter);
    EXPECT_EQ(axis.labelRect(), QRect());
    EXPECT_TRUE(axis.labels().empty());
}

TEST_F(CAxisLabels, BoldTitleIsMeasuredBold)
{
    CTestAxis plain(CAxis::LeftToRight, CAxis::Bottom, CAxis::ShowTitle, "a title of words");
    CTestAxis bold(CAxis::LeftToRight, CAxis::Bottom, CAxis::ShowTitle | CAxis::BoldTitle,
                   "a title of words");
    plain.setTitleBoundingRect(painter);
    bold.setTitleBoundingRect(painter);
    EXPECT_GT(plain.titleRect().width(), 0);
    EXPECT_GT(bold.titleRect().width(), plain.titleRect().width());
}

TEST_F(CAxisLabels, AlongNeedOneRowOfRoomBelowTheTicks)
{
    CTestAxis axis;
    axis.addLabels(4, QSize(50, 12));
    axis.fitToRect(painter, QRect(0, 0, 400, 5 + 12));
    EXPECT_FALSE(axis.areLabelsHidden());
    axis.fitToRect(painter, QRect(0, 0, 400, 5 + 11));
    EXPECT_TRUE(axis.areLabelsHidden());
}

TEST_F(CAxisLabels, AlongInTwoRowsNeedRoomForBoth)
{
    CTestAxis axis;
    axis.addLabels(9, QSize(50, 12));
    axis.fitToRect(painter, QRect(0, 0, 400, 5 + 24));
    EXPECT_EQ(axis.labelDirection(), CAxis::AlongTwoRows);
    EXPECT_FALSE(axis.areLabelsHidden());
    axis.fitToRect(painter, QRect(0, 0, 400, 5 + 23));
    EXPECT_TRUE(axis.areLabelsHidden());
}

TEST_F(CAxisLabels, OnceHiddenStayHidden)
{
    CTestAxis axis;
    axis.addLabel(QSize(50, 12));
    axis.fitToRect(painter, QRect(0, 0, 400, 3));
    axis.fitToRect(painter, QRect(0, 0, 400, 100));
    EXPECT_TRUE(axis.areLabelsHidden());
}

// A vertical axis with one long word in a rectangle of a width.
struct CNarrowAxis : CTestAxis
{
    CNarrowAxis(QPainter& painter, int width, const char* text = "considerable")
        : CTestAxis(CAxis::BottomToTop, CAxis::Right)
    {
        appendLabel(std::make_unique<CBarTextLabel>(QString(text), nullptr));
        fitToRect(painter, QRect(0, 0, width, 200));
    }
};

TEST_F(CAxisLabels, AcrossThatFitKeepTheirBox)
{
    const CNarrowAxis wide(painter, 200);
    const int text = wide.labelRect().width();
    const CNarrowAxis exact(painter, 5 + text);
    EXPECT_EQ(exact.labelRect().width(), text);
    EXPECT_FALSE(exact.areLabelsHidden());
}

TEST_F(CAxisLabels, AcrossThatCanBeShortenedGetANarrowerBox)
{
    const CNarrowAxis wide(painter, 200);
    const int text = wide.labelRect().width();
    const CNarrowAxis narrow(painter, 5 + text - 1);
    EXPECT_EQ(narrow.labelRect().width(), text - 1);
    EXPECT_FALSE(narrow.areLabelsHidden());
    EXPECT_EQ(narrow.label(0)->getText(), QString("considerable"));
}

TEST_F(CAxisLabels, AcrossThatCannotBeShortenedHideAll)
{
    const CNarrowAxis axis(painter, 5 + 4);
    EXPECT_TRUE(axis.areLabelsHidden());
    const CNarrowAxis none(painter, 2, "");
    EXPECT_TRUE(none.areLabelsHidden());
}

TEST_F(CAxisLabels, AcrossAreTestedInBoldTypeWhereTheyAreBold)
{
    const QFont before = painter.font();
    const int room = painter.boundingRect(QRect(), 0, QString("W")).width() +
                     painter.boundingRect(QRect(), 0, QString("...")).width();
    const auto hidesLabels = [this, room](bool bold) {
        CTestAxis axis(CAxis::BottomToTop, CAxis::Right);
        axis.addLabel(QSize(1000, 12), "WWWWWWWWWW");
        axis.label(0)->setBold(bold);
        axis.fitToRect(painter, QRect(0, 0, 5 + room, 200));
        return axis.areLabelsHidden();
    };
    EXPECT_FALSE(hidesLabels(false));
    EXPECT_TRUE(hidesLabels(true));
    EXPECT_EQ(painter.font(), before);
}

TEST_F(CAxisLabels, TitleBoxSpansTheWholeAxis)
{
    CTestAxis axis(CAxis::LeftToRight, CAxis::Bottom, CAxis::ShowTitle, "title");
    axis.fitToRect(painter, QRect(10, 20, 100, 50));
    EXPECT_FALSE(axis.isTitleHidden());
    EXPECT_EQ(axis.titleRect().width(), 100);
}

TEST_F(CAxisLabels, TitleHidesOnAnAxisThinnerThanItsWholeThickness)
{
    const auto isHidden = [this](int height) {
        CTestAxis axis(CAxis::LeftToRight, CAxis::Bottom, CAxis::ShowLine | CAxis::ShowTitle,
                       "title");
        axis.fitToRect(painter, QRect(0, 0, 100, height));
        return axis.isTitleHidden();
    };
    CTestAxis axis(CAxis::LeftToRight, CAxis::Bottom, CAxis::ShowLine | CAxis::ShowTitle, "title");
    const int thickness = axis.getHeightForWidth(painter, 100);
    EXPECT_FALSE(isHidden(thickness));
    EXPECT_TRUE(isHidden(thickness - 1));
}

TEST_F(CAxisLabels, TitleHidesOnAnAxisTooShortForOneLetterAndTheEllipsis)
{
    CTestAxis axis(CAxis::LeftToRight, CAxis::Bottom, CAxis::ShowTitle, "considerable");
    axis.fitToRect(painter, QRect(0, 0, 8, 50));
    EXPECT_TRUE(axis.isTitleHidden());
}

struct CTitleStart
{
    CAxis::Orientation orientation;
    int along; // on an axis of 100 by 100 pixels
};

void PrintTo(const CTitleStart& start, std::ostream* stream)
{
    *stream << nameOf(start.orientation);
}

class TitleStartTable : public CAxisPicture, public ::testing::WithParamInterface<CTitleStart>
{};

TEST_P(TitleStartTable, IsAtTheLeftOrAtTheBottom)
{
    CTestAxis axis(GetParam().orientation, CAxis::Bottom, CAxis::ShowTitle, "title");
    axis.fitToRect(painter, QRect(10, 20, 100, 100));
    const COrientedCoord pos = axis.titleLabel().orientedPos();
    EXPECT_EQ(pos, COrientedCoord(GetParam().along, axis.getAxisToTitleShift()));
}

INSTANTIATE_TEST_SUITE_P(All, TitleStartTable,
                         ::testing::Values(CTitleStart{CAxis::LeftToRight, 0},
                                           CTitleStart{CAxis::RightToLeft, 99},
                                           CTitleStart{CAxis::BottomToTop, 0},
                                           CTitleStart{CAxis::TopToBottom, 99}));

// Ten turned labels 40 pixels high, 40 pixels apart, on an axis of a length.
struct CCrowdedAxis : CTestAxis
{
    CCrowdedAxis(QPainter& painter, int length, CAxis::Properties properties = kThinned)
        : CTestAxis(CAxis::LeftToRight, CAxis::Bottom, properties)
    {
        addLabels(10, QSize(1000, 40));
        tickDistance = 40;
        fitToRect(painter, QRect(0, 0, length + 1, 2000));
    }
};

TEST_F(CAxisLabels, ThatOverlapAreThinnedFromTheLastOne)
{
    const CCrowdedAxis axis(painter, 160);
    EXPECT_EQ(axis.labelDirection(), CAxis::Across);
    EXPECT_THAT(axis.shownLabels(), ElementsAre(1, 3, 5, 7, 9));
}

TEST_F(CAxisLabels, ThatHaveRoomAllStay)
{
    EXPECT_EQ(CCrowdedAxis(painter, 360).shownLabels().size(), 10U);
    EXPECT_EQ(CCrowdedAxis(painter, 359).shownLabels().size(), 5U);
}

TEST_F(CAxisLabels, WithLessRoomThanOneOnlyTheLastStays)
{
    CTestAxis axis(CAxis::LeftToRight, CAxis::Bottom, kThinned);
    axis.addLabels(10, QSize(1000, 40));
    axis.shiftAtBegin = [](LabelDirection) { return 200; };
    axis.fitToRect(painter, QRect(0, 0, 101, 2000));
    EXPECT_THAT(axis.shownLabels(), ElementsAre(9));
}

TEST_F(CAxisLabels, OfUnequalTicksAreThinnedUntilTheyAreApart)
{
    CTestAxis axis(CAxis::LeftToRight, CAxis::Bottom, kThinned);
    axis.addLabels(10, QSize(1000, 40));
    axis.tickDistance = 11; // four ticks are 44 pixels apart
    axis.fitToRect(painter, QRect(0, 0, 161, 2000));
    EXPECT_THAT(axis.shownLabels(), ElementsAre(1, 5, 9));
}

TEST_F(CAxisLabels, AreNotThinnedWithoutTheProperty)
{
    const CCrowdedAxis axis(painter, 160, CAxis::ShowLine | CAxis::ShowLabels);
    EXPECT_EQ(axis.shownLabels().size(), 10U);
}

TEST_F(CAxisLabels, OneLabelIsNeverThinned)
{
    CTestAxis axis(CAxis::LeftToRight, CAxis::Bottom, kThinned);
    axis.addLabel(QSize(1000, 40));
    axis.shiftAtBegin = [](LabelDirection) { return 500; };
    axis.fitToRect(painter, QRect(0, 0, 10, 2000));
    EXPECT_THAT(axis.shownLabels(), ElementsAre(0));
}

TEST_F(CAxisLabels, RealDistanceIsMeasuredFromTheFirstTick)
{
    CTestAxis axis(CAxis::BottomToTop, CAxis::Left);
    axis.addLabels(3, QSize(100, 12));
    axis.setLabelBoundingRect(painter);
    axis.label(0)->setTickCoord(50);
    axis.label(1)->setTickCoord(39);
    axis.label(2)->setTickCoord(38);
    EXPECT_FALSE(axis.checkRealDistance(1));
    EXPECT_TRUE(axis.checkRealDistance(2));
    EXPECT_TRUE(axis.checkRealDistance(3));
    EXPECT_TRUE(axis.checkRealDistance(1000000));
}

} // namespace
} // namespace tovangl
