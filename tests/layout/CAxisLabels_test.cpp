// SPDX-License-Identifier: MIT
// The labels of an axis: their direction, their room, and which of them stay.
#include "layout/axis_support.h"

#include <gmock/gmock.h>

namespace tovangl {
namespace {

using ::testing::AllOf;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::IsEmpty;
using ::testing::SizeIs;

using CAxisLabels = CAxisBench;

TEST_F(CAxisLabels, HaveABoxOfTheGreatestWidthAndTheGreatestHeight)
{
    CAxisPlan plan;
    plan.labels = {QString("wide caption"), QString("x\ny")};
    const CAxisLayout axis = fitted(plan, QRect(0, 0, 400, 100));
    EXPECT_EQ(axis.shape.labelSize, QSize(sizeOf("wide caption").width(), sizeOf("x\ny").height()));
    EXPECT_EQ(fitted(CAxisPlan(), QRect(0, 0, 400, 100)).shape.labelSize, QSize(0, 0));
}

// --- direction

TEST_F(CAxisLabels, EightStandInOneRowNineInTwoSeventeenAreTurned)
{
    const int width = 8 * sizeOf().width();
    const auto directionOf = [&](std::size_t count) {
        return fitted(labelled(count), QRect(0, 0, width, 100)).shape.direction;
    };
    EXPECT_EQ(directionOf(8), LabelDirection::Along);
    EXPECT_EQ(directionOf(9), LabelDirection::AlongTwoRows);
    EXPECT_EQ(directionOf(16), LabelDirection::AlongTwoRows);
    EXPECT_EQ(directionOf(17), LabelDirection::Across);
}

TEST_F(CAxisLabels, LineAndShiftAreTakenOffTheLengthBeforeTheDirectionIsChosen)
{
    CAxisPlan plan = labelled(8);
    plan.look.lineWidth = 3;
    plan.shiftAtBegin = 20;
    const int least = 7 * sizeOf().width() + 3 + 20;
    EXPECT_EQ(fitted(plan, QRect(0, 0, least, 100)).shape.direction, LabelDirection::Along);
    EXPECT_EQ(fitted(plan, QRect(0, 0, least - 1, 100)).shape.direction,
              LabelDirection::AlongTwoRows);
}

TEST_F(CAxisLabels, OfAVerticalAxisAreNeverWrittenAlong)
{
    CAxisPlan plan = labelled(1, "x");
    plan.frame = kUpAtTheLeft;
    EXPECT_EQ(fitted(plan, QRect(0, 0, 100, 400)).shape.direction, LabelDirection::Across);
}

struct CTextSetting
{
    CAxisFrame frame;
    std::size_t labels; // on an axis of eight labels' width
    Qt::Alignment alignment;
    bool isTurned;
};

class TextSettingTable : public CAxisBench, public ::testing::WithParamInterface<CTextSetting>
{};

TEST_P(TextSettingTable, IsCentredAlongAndStartsAtTheLineAcross)
{
    CAxisPlan plan = labelled(GetParam().labels);
    plan.frame = GetParam().frame;
    const int side = 8 * sizeOf().width();
    const CAxisLayout axis = fitted(plan, QRect(0, 0, side, side));
    EXPECT_THAT(axis.texts, AllOf(SizeIs(GetParam().labels),
                                  Each(AllOf(Field(&CPlacedText::alignment, GetParam().alignment),
                                             Field(&CPlacedText::isTurned, GetParam().isTurned)))));
}

const Qt::Alignment kStart = Qt::AlignLeft | Qt::AlignVCenter;
const Qt::Alignment kEnd = Qt::AlignRight | Qt::AlignVCenter;

INSTANTIATE_TEST_SUITE_P(All, TextSettingTable,
                         ::testing::Values(CTextSetting{kRightAtTheTop, 1, Qt::AlignHCenter, false},
                                           CTextSetting{kRightAtTheBottom, 9, Qt::AlignHCenter,
                                                        false},
                                           CTextSetting{kRightAtTheTop, 17, kStart, true},
                                           CTextSetting{kRightAtTheBottom, 17, kEnd, true},
                                           CTextSetting{kUpAtTheRight, 1, kStart, false},
                                           CTextSetting{kUpAtTheLeft, 1, kEnd, false}));

// --- place and look

TEST_F(CAxisLabels, BelowAnAxisAreCentredOnTheirTicks)
{
    CAxisPlan plan = labelled(2);
    plan.shiftAtBegin = 50;
    plan.tickDistance = 70;
    const QSize size = sizeOf();
    const CAxisLayout axis = fitted(plan, QRect(10, 20, 201, 40));
    EXPECT_THAT(ofLabels(axis, &CBarTextLabel::pixels),
                ElementsAre(QRect(QPoint(60 - size.width() / 2, 20 + 5), size),
                            QRect(QPoint(130 - size.width() / 2, 20 + 5), size)));
}

TEST_F(CAxisLabels, LeftOfAnAxisEndBeforeItsLineAndTicks)
{
    CAxisPlan plan = labelled(1);
    plan.frame = kDownAtTheLeft;
    plan.shiftAtBegin = 50;
    const QSize size = sizeOf();
    const CAxisLayout axis = fitted(plan, QRect(10, 20, 90, 101));
    // The line stands at 99; line and ticks take 6 pixels, one of which is the line itself.
    EXPECT_EQ(axis.labels[0].pixels,
              QRect(QPoint(99 - 5 - size.width(), 70 - size.height() / 2), size));
}

TEST_F(CAxisLabels, TurnedCoverTheirWidthUpward)
{
    const CAxisLayout axis = fitted(labelled(17), QRect(10, 20, 8 * sizeOf().width(), 200));
    ASSERT_TRUE(axis.isRotated());
    const QRect pixels = axis.labels[0].pixels;
    EXPECT_EQ(pixels.size(), sizeOf().transposed());
    // The ticks' 5 pixels, without the line's own.
    EXPECT_EQ(pixels.top(), 20 + 5 - 1);
}

TEST_F(CAxisLabels, ArePaintedWhereTheirPixelsAre)
{
    CAxisPlan plan = labelled(3);
    plan.tickDistance = 60;
    plan.shiftAtBegin = 30;
    const CAxisLayout axis = fitted(plan, QRect(10, 20, 301, 40));
    ASSERT_THAT(axis.texts, SizeIs(3));
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(toRoom(axis.labels[i].pixels),
                  axis.texts[i].room.translated(axis.texts[i].origin));
}

TEST_F(CAxisLabels, TakeTheLabelColourAndAreBoldOnDemand)
{
    CAxisPlan plan = labelled(1);
    plan.look.labelColor = Qt::red;
    const CPlacedText plain = fitted(plan, QRect(0, 0, 100, 40)).texts.at(0);
    EXPECT_EQ(plain.color, QColor(Qt::red));
    EXPECT_FALSE(plain.isBold);
    plan.settings.properties |= CAxisSettings::BoldLabels;
    EXPECT_TRUE(fitted(plan, QRect(0, 0, 100, 40)).texts.at(0).isBold);
}

TEST_F(CAxisLabels, WithoutTheirPropertyAreNotPlaced)
{
    CAxisPlan plan = labelled(1);
    plan.settings.properties = CAxisSettings::ShowLine;
    const CAxisLayout axis = fitted(plan, QRect(0, 0, 100, 40));
    EXPECT_THAT(axis.texts, IsEmpty());
    EXPECT_EQ(axis.labels[0].pixels, QRect());
}

// --- room

TEST_F(CAxisLabels, AlongNeedRoomForTheirRowsBelowTheTicks)
{
    const QSize size = sizeOf();
    const auto areHidden = [&](std::size_t count, int height) {
        const CAxisLayout axis = fitted(labelled(count), QRect(0, 0, 8 * size.width(), 5 + height));
        EXPECT_EQ(axis.texts.empty(), axis.areLabelsHidden);
        return axis.areLabelsHidden;
    };
    EXPECT_FALSE(areHidden(8, size.height()));
    EXPECT_TRUE(areHidden(8, size.height() - 1));
    EXPECT_FALSE(areHidden(9, 2 * size.height()));
    EXPECT_TRUE(areHidden(9, 2 * size.height() - 1));
}

// A vertical axis with one long word, and so much room for it.
class NarrowAxis : public CAxisBench
{
protected:
    CAxisLayout narrow(int room, const char* text = "considerable", bool isBold = false)
    {
        CAxisPlan plan = labelled(1, text);
        plan.frame = kUpAtTheRight;
        if (isBold)
            plan.settings.properties |= CAxisSettings::BoldLabels;
        return fitted(plan, QRect(0, 0, 5 + room, 200));
    }
};

TEST_F(NarrowAxis, LabelsThatFitKeepTheirBox)
{
    const int text = sizeOf("considerable").width();
    const CAxisLayout axis = narrow(text);
    EXPECT_EQ(axis.shape.labelSize.width(), text);
    EXPECT_EQ(axis.texts.at(0).text, QString("considerable"));
}

TEST_F(NarrowAxis, LabelsThatCanBeShortenedGetANarrowerBox)
{
    const int text = sizeOf("considerable").width();
    const CAxisLayout axis = narrow(text - 1);
    EXPECT_EQ(axis.shape.labelSize.width(), text - 1);
    EXPECT_EQ(axis.labels[0].text.getText(), QString("considerable"));
    EXPECT_TRUE(axis.texts.at(0).text.endsWith(QString("...")));
}

TEST_F(NarrowAxis, LabelsThatCannotBeShortenedHideAll)
{
    EXPECT_TRUE(narrow(4).areLabelsHidden);
    EXPECT_TRUE(narrow(-3, "").areLabelsHidden);
    EXPECT_THAT(narrow(4).texts, IsEmpty());
}

TEST_F(NarrowAxis, LabelsAreTestedInTheTypeThatTheyAreSetIn)
{
    const int room = sizeOf("W").width() + sizeOf("...").width();
    EXPECT_FALSE(narrow(room, "WWWWWWWWWW", false).areLabelsHidden);
    EXPECT_TRUE(narrow(room, "WWWWWWWWWW", true).areLabelsHidden);
}

// --- thinning

// Ten turned labels of one height, their ticks so many heights apart, on an axis of so many
// heights.
class CrowdedAxis : public CAxisBench
{
protected:
    CAxisPlan crowded(double heightsApart = 1.0)
    {
        CAxisPlan plan = labelled(10, "a caption that is long enough to be turned");
        plan.settings.properties |= CAxisSettings::HideOverlapped;
        plan.tickDistance = static_cast<int>(heightsApart * m_height);
        return plan;
    }
    std::vector<std::size_t> shownOf(const CAxisPlan& plan, int length)
    {
        const CAxisLayout axis = fitted(plan, QRect(0, 0, length + 1, 2000));
        EXPECT_EQ(axis.shape.direction, LabelDirection::Across);
        EXPECT_EQ(axis.texts.size(), shownLabels(axis).size());
        return shownLabels(axis);
    }

    const int m_height = sizeOf().height();
};

TEST_F(CrowdedAxis, IsThinnedFromTheLastLabel)
{
    EXPECT_THAT(shownOf(crowded(), 4 * m_height), ElementsAre(1, 3, 5, 7, 9));
}

TEST_F(CrowdedAxis, KeepsAllLabelsThatHaveRoom)
{
    EXPECT_THAT(shownOf(crowded(), 9 * m_height), SizeIs(10));
    EXPECT_THAT(shownOf(crowded(), 9 * m_height - 1), SizeIs(5));
}

TEST_F(CrowdedAxis, KeepsTheLastLabelAloneWithLessRoomThanOne)
{
    CAxisPlan plan = crowded(0);
    plan.shiftAtBegin = 200;
    EXPECT_THAT(shownOf(plan, 100), ElementsAre(9));
}

TEST_F(CrowdedAxis, IsThinnedUntilUnequalTicksAreApart)
{
    // Three ticks are less than one label apart, four are more.
    EXPECT_THAT(shownOf(crowded(0.3), 4 * m_height), ElementsAre(1, 5, 9));
}

TEST_F(CrowdedAxis, IsThinnedLikewiseWhereItsTicksRunBackward)
{
    EXPECT_THAT(shownOf(crowded(-0.3), 4 * m_height), ElementsAre(1, 5, 9));
}

TEST_F(CrowdedAxis, KeepsAllLabelsInTwoRows)
{
    CAxisPlan plan = labelled(16);
    plan.settings.properties |= CAxisSettings::HideOverlapped;
    plan.tickDistance = sizeOf().width() / 2;
    const CAxisLayout axis = fitted(plan, QRect(0, 0, 8 * sizeOf().width(), 2000));
    EXPECT_EQ(axis.shape.direction, LabelDirection::AlongTwoRows);
    EXPECT_THAT(shownLabels(axis), SizeIs(16));
}

TEST_F(CrowdedAxis, IsNotThinnedWithoutTheProperty)
{
    CAxisPlan plan = crowded();
    plan.settings.properties = kLineAndLabels;
    EXPECT_THAT(shownOf(plan, 4 * m_height), SizeIs(10));
}

TEST_F(CrowdedAxis, GivesHiddenLabelsNoPixels)
{
    const CAxisLayout axis = fitted(crowded(), QRect(0, 0, 4 * m_height + 1, 2000));
    EXPECT_EQ(axis.labels[0].pixels, QRect());
    EXPECT_TRUE(axis.labels[1].pixels.isValid());
}

TEST_F(CrowdedAxis, NeverThinsOneLabel)
{
    CAxisPlan plan = crowded();
    plan.labels.resize(1);
    plan.shiftAtBegin = 500;
    EXPECT_THAT(shownLabels(fitted(plan, QRect(0, 0, 10, 2000))), ElementsAre(0));
}

} // namespace
} // namespace tovangl
