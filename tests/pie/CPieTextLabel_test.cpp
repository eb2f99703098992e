// SPDX-License-Identifier: MIT
// The label of a slice: its texts, their extent and their place.
#include "core/qt_versions.h"
#include "pie/CPaintedSurface.h"
#include "pie/CTestLabels.h"

#include <gtest/gtest.h>
#include <thread>

namespace tovangl {
namespace {

constexpr int kTop = 1440;
constexpr int kBottom = -1440;
constexpr int kRight = CTestLabels::kThreeOClock;
constexpr int kLeft = CTestLabels::kNineOClock;
constexpr bool kWithSize = true;

class PieTextLabel : public testing::Test
{
protected:
    // A label with room for that many pixels of text.
    CPieTextLabel& addWithRoom(int room, const char* text, bool withSize)
    {
        CPieTextLabel& label = labels.addAtAngle(kRight, text, withSize, 999);
        label.setBoundaries(0, room);
        label.setLabelRect(QRectF(0, 0, 100, 100));
        return label;
    }
    [[nodiscard]] double widthOf(const char* text)
    {
        return qt::measureText(surface.painter(), QRectF(), QString(QLatin1String(text))).width();
    }
    QRectF measure(CPieTextLabel& label) { return label.getBoundingRect(surface.painter()); }
    bool fits(CPieTextLabel& label) { return label.isTextLabelShortenCorrectly(surface.painter()); }

    CPaintedSurface surface;
    CTestLabels labels;
};

QString sizeText(long long value)
{
    CTestLabels labels;
    CPieTextLabel& label = labels.addAtAngle(kRight, "", kWithSize, value);
    return label.getText();
}

TEST_F(PieTextLabel, PutsASpaceBeforeTheUnitOfAnUnscaledSize)
{
    EXPECT_EQ(sizeText(999), QString(" [999 B]"));
    EXPECT_EQ(sizeText(1000), QString(" [1,000 B]"));
}

TEST_F(PieTextLabel, PutsNoSpaceBehindAPrefix)
{
    EXPECT_EQ(sizeText(1536), QString(" [1.5 KB]"));
    EXPECT_EQ(sizeText(146 * 1024), QString(" [146 KB]"));
}

TEST_F(PieTextLabel, IsTheNameFollowedByTheSize)
{
    EXPECT_EQ(labels.addAtAngle(kRight, "home", kWithSize, 5).getText(), QString("home [5 B]"));
    EXPECT_EQ(labels.addAtAngle(kRight, "home", false, 5).getText(), QString("home"));
    EXPECT_EQ(labels[1].getLabelText(&labels.item(1), kWithSize), QString("home [5 B]"));
    EXPECT_EQ(labels[1].getLabelText(&labels.item(1), false), QString("home"));
}

TEST_F(PieTextLabel, BelongsToItsItem)
{
    CPieTextLabel& label = labels.addAtAngle(kRight);
    EXPECT_EQ(label.getItem(), &labels.item(0));
}

TEST_F(PieTextLabel, PointsToTheMiddleOfItsSlice)
{
    CPieBaseItem item(1, QString(), Qt::red);
    item.setStartAngle(-2880);
    item.setSpanAngle(-1441);
    const CPieTextLabel label(&item, nullptr, false);
    EXPECT_EQ(label.arc(), 5760 - 2880 - 720);
}

TEST_F(PieTextLabel, PointsUpTowardSmallerHeightsOfThePicture)
{
    EXPECT_NEAR(labels.addAtAngle(kTop).direction().y(), -1, 1e-15);
    EXPECT_NEAR(labels.addAtAngle(kBottom).direction().y(), 1, 1e-15);
    EXPECT_EQ(labels.addAtAngle(kRight).direction(), QPointF(1, 0));
}

TEST_F(PieTextLabel, CountsTheTopToTheLeftHalfAndTheBottomToTheRight)
{
    EXPECT_FALSE(labels.addAtAngle(kTop).isOnRightHalf());
    EXPECT_TRUE(labels.addAtAngle(kBottom).isOnRightHalf());
}

TEST_F(PieTextLabel, RunsFromTheBeamOverALineAndAGapToTheText)
{
    CPieTextLabel& label = labels.addAtAngle(kRight);
    label.setLabelRect(QRectF(0, 0, 50, 14));
    label.initPosition(52, 60);
    EXPECT_EQ(label.beamStart(), QPointF(52, 0));
    EXPECT_EQ(label.elbow(), QPointF(60, 0));
    EXPECT_EQ(label.lineEnd(), QPointF(78, 0));
    EXPECT_EQ(label.labelPos(), QPointF(81, -8));
}

TEST_F(PieTextLabel, RunsTheOtherWayOnTheLeftHalf)
{
    CPieTextLabel& label = labels.addAtAngle(kLeft);
    label.initPosition(52, 60);
    EXPECT_EQ(label.elbow().x(), -60);
    EXPECT_EQ(label.lineEnd().x(), -78);
    EXPECT_EQ(label.labelPos().x(), -81);
}

TEST_F(PieTextLabel, DoublesLineAndGapAtScaleTwo)
{
    CPieTextLabel& label = labels.addAtAngle(kRight);
    label.setScale(2);
    label.initPosition(52, 60);
    EXPECT_EQ(label.lineEnd().x() - label.elbow().x(), 36);
    EXPECT_EQ(label.labelPos().x() - label.lineEnd().x(), 6);
}

TEST_F(PieTextLabel, BeginsAtItsAnchorOnTheRightAndEndsThereOnTheLeft)
{
    for (const int arc : {kRight, kLeft}) {
        CPieTextLabel& label = labels.addAtAngle(arc, "home");
        label.initPosition(52, 60);
        const double width = measure(label).width();
        EXPECT_EQ(label.getPosition().x(), arc == kRight ? 81 : -81 - width);
        EXPECT_EQ(label.getPosition().y(), label.labelPos().y());
    }
}

TEST_F(PieTextLabel, KeepsTheBeamWhenItIsArranged)
{
    CPieTextLabel& label = labels.addAtAngle(kRight);
    label.initPosition(52, 60);
    label.updateArrangedPosition(40, 30);
    EXPECT_EQ(label.beamStart(), QPointF(52, 0));
    EXPECT_EQ(label.elbow(), QPointF(60, 0));
    EXPECT_EQ(label.lineEnd(), QPointF(58, 30));
    EXPECT_EQ(label.labelPos(), QPointF(61, 29));
}

TEST_F(PieTextLabel, IsAsWideAsNameAndSizeTogether)
{
    CPieTextLabel& label = labels.addAtAngle(kRight, "home", kWithSize, 5);
    EXPECT_EQ(measure(label).width(), widthOf("home") + widthOf(" [5 B]"));
    EXPECT_EQ(measure(label).topLeft(), QPointF(0, 0));
    EXPECT_EQ(std::as_const(label).getBoundingRect(), measure(label));
}

TEST_F(PieTextLabel, IsAsLargeAsItsNameWithoutASize)
{
    CPieTextLabel& label = labels.addAtAngle(kRight, "home");
    EXPECT_EQ(measure(label), qt::measureText(surface.painter(), QRectF(), QString("home")));
}

TEST_F(PieTextLabel, IsWiderInBold)
{
    CPieTextLabel& label = labels.addAtAngle(kRight, "home", kWithSize, 5);
    label.setBold(true);
    const double bold = measure(label).width();
    EXPECT_GT(bold, widthOf("home") + widthOf(" [5 B]"));
    EXPECT_FALSE(surface.painter().font().bold());
}

TEST_F(PieTextLabel, IsNoLargerThanTheRoomForIt)
{
    CPieTextLabel& label = addWithRoom(20, "a long name", false);
    EXPECT_EQ(measure(label).width(), 20);
    label.setLabelRect(QRectF(0, 0, 100, 5));
    EXPECT_EQ(measure(label).height(), 5);
}

TEST_F(PieTextLabel, IsNotBoundByARoomWithoutExtent)
{
    CPieTextLabel& label = addWithRoom(20, "a long name", false);
    label.setLabelRect(QRectF(0, 0, 100, 0));
    EXPECT_EQ(measure(label).width(), widthOf("a long name"));
    label.setLabelRect(QRectF(0, 0, 100, 100));
    label.setBoundaries(0, -1);
    EXPECT_EQ(measure(label).width(), widthOf("a long name"));
}

TEST_F(PieTextLabel, HasTheRoomBetweenItsAnchorAndTheBoundaryOfItsHalf)
{
    for (const int arc : {kRight, kLeft}) {
        CPieTextLabel& label = labels.addAtAngle(arc);
        label.setBoundaries(-190, 180);
        label.setLabelRect(QRectF(0, 0, 30, 14));
        label.initPosition(52, 60);
        EXPECT_EQ(label.getBoundingRectAdjustedToGraphBoundary(),
                  QRectF(0, 0, arc == kRight ? 180 - 81 : 190 - 81, 14));
    }
}

TEST_F(PieTextLabel, FitsWhereTheShortestNameFitsBesideTheSize)
{
    const int least = static_cast<int>(widthOf("a...") + widthOf(" [999 B]"));
    EXPECT_TRUE(fits(addWithRoom(least, "another name", kWithSize)));
    EXPECT_FALSE(fits(addWithRoom(least - 1, "another name", kWithSize)));
}

TEST_F(PieTextLabel, KeepsItsTextsWhenTheyAreTested)
{
    CPieTextLabel& label = addWithRoom(60, "a long name", kWithSize);
    (void)fits(label);
    EXPECT_EQ(label.getText(), QString("a long name [999 B]"));
}

TEST_F(PieTextLabel, TestsTheNameInBoldWhereItIsDrawnSo)
{
    CPieTextLabel& label = addWithRoom(static_cast<int>(widthOf("ab")), "ab", false);
    EXPECT_TRUE(fits(label));
    label.setBold(true);
    EXPECT_FALSE(fits(label));
    EXPECT_FALSE(surface.painter().font().bold());
}

TEST_F(PieTextLabel, TestsTheEndOfTheNameThatIsKept)
{
    CPieTextLabel& label = addWithRoom(static_cast<int>(widthOf("i...")), "iWWWW", false);
    EXPECT_TRUE(fits(label));
    label.setShortFromLeft(true);
    EXPECT_FALSE(fits(label));
}

TEST_F(PieTextLabel, OneNameThatDoesNotFitTakesTheSizesOfAll)
{
    CPieTextLabel& other = addWithRoom(500, "home", kWithSize);
    CPieTextLabel& narrow = addWithRoom(5, "another name", kWithSize);
    EXPECT_FALSE(fits(narrow));
    EXPECT_FALSE(CPieTextLabel::canDrawSizeLabel());
    EXPECT_TRUE(fits(other));
    EXPECT_FALSE(CPieTextLabel::canDrawSizeLabel());
    EXPECT_EQ(measure(other).width(), widthOf("home"));
}

TEST_F(PieTextLabel, ASizeThatIsNotDrawnStillCountsWithItsHeight)
{
    CPieTextLabel& label = addWithRoom(5, "", kWithSize);
    (void)fits(label);
    ASSERT_FALSE(CPieTextLabel::canDrawSizeLabel());
    label.setLabelRect(QRectF());
    EXPECT_EQ(measure(label).width(), 0);
    EXPECT_GT(measure(label).height(), 0);
}

TEST_F(PieTextLabel, ANewLabelAllowsSizesAgain)
{
    (void)fits(addWithRoom(5, "another name", kWithSize));
    ASSERT_FALSE(CPieTextLabel::canDrawSizeLabel());
    labels.addAtAngle(kRight);
    EXPECT_TRUE(CPieTextLabel::canDrawSizeLabel());
}

TEST_F(PieTextLabel, SharesTheSizesWithinOneThreadOnly)
{
    (void)fits(addWithRoom(5, "another name", kWithSize));
    ASSERT_FALSE(CPieTextLabel::canDrawSizeLabel());
    bool other = false;
    std::thread([&other] { other = CPieTextLabel::canDrawSizeLabel(); }).join();
    EXPECT_TRUE(other);
}

TEST_F(PieTextLabel, ListsItsTextArcAndAnchorForDebugging)
{
    CPieTextLabel& label = labels.addAtAngle(kRight, "home");
    label.initPosition(52, 60);
    EXPECT_EQ(label.debug(), QString("home: arc: 0, lblCPoint: 81, -1"));
}

TEST_F(PieTextLabel, HasThePriorityOfEveryOther)
{
    EXPECT_EQ(labels.addAtAngle(kRight).getOverlapRemovalPriority(), 1);
}

} // namespace
} // namespace tovangl
