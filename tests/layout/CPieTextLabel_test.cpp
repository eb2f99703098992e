// SPDX-License-Identifier: MIT
// The label of a slice: its texts, their extent and their place.
#include "base/CKilo.h"
#include "layout/CPieTextLabel.h"
#include "support/CTestMeasurer.h"

#include <QLocale>

#include <cmath>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

// Angles of the middle of a slice.
constexpr int kTop = 1440;
constexpr int kBottom = -1440;
constexpr int kRight = 0;
constexpr int kLeft = 2880;

constexpr int kReach = 190;
constexpr CTextStyle kPlain{};
constexpr CTextStyle kBold{true, false};
constexpr CTextStyle kFromLeft{false, true};
constexpr bool kWithSize = true;
const char* const kSize = " [999 B]";

class PieTextLabel : public testing::Test
{
protected:
    CTextLabel text(const char* words, const CTextStyle& style = kPlain)
    {
        return CTextLabel(QString::fromUtf8(words), style, measurer);
    }
    CPieTextLabel make(int arc, const CTextLabel& name = {}, const CTextLabel& size = {},
                       const CPieLabelFrame& frame = {kReach, 1})
    {
        return CPieTextLabel({0, {arc, 0}, Qt::red}, name, size, frame);
    }
    // At the centre of the pie, with room for that many pixels of text.
    CPieTextLabel withRoom(int room, const CTextLabel& name, const CTextLabel& size = {})
    {
        CPieTextLabel label = make(kRight, name, size, {room, 1});
        label.setLabelRect(QRectF(0, 0, 100, 100));
        return label;
    }
    // At the end of its line. The text's anchor is 81 pixels from the centre.
    CPieTextLabel placed(int arc, const CTextLabel& name, const CTextLabel& size = {})
    {
        CPieTextLabel label = make(arc, name, size);
        label.initBoundingRect(kWithSize);
        label.setLabelRect(QRectF(0, 0, 100, 14));
        label.initPosition(52, 60);
        return label;
    }
    CPlacedPieLabel finished(const CPieTextLabel& label, bool isSizeShown = kWithSize)
    {
        return label.withTexts(isSizeShown, Qt::blue, QPoint(200, 200), measurer);
    }
    double widthOf(const char* words) { return text(words).getBoundingRect().width(); }

    CTestMeasurer measurer{chartFont("DejaVu Sans", 11)};
};

constexpr double kAnchor = 81;

struct CSizeText
{
    long long value;
    const char* unit;
    CKilo kilo;
    const char* text;
};

class SizeText : public testing::TestWithParam<CSizeText>
{};

// The unit stands behind the prefix; a text without a unit ends in the number.
TEST_P(SizeText, HasOneSpaceBeforePrefixAndUnit)
{
    const QLocale locale(QLocale::English, QLocale::UnitedStates);
    const CSizeText& size = GetParam();
    EXPECT_EQ(getSizeText(size.value, size.unit, locale, size.kilo), QString(size.text));
}

INSTANTIATE_TEST_SUITE_P(Values, SizeText,
                         testing::Values(CSizeText{0, "B", kKilo1024, " [0 B]"},
                                         CSizeText{999, "B", kKilo1024, " [999 B]"},
                                         CSizeText{1000, "B", kKilo1024, " [1,000 B]"},
                                         CSizeText{1536, "B", kKilo1024, " [1.5 KB]"},
                                         CSizeText{146 * 1024, "B", kKilo1024, " [146 KB]"},
                                         CSizeText{999, "B", kKilo1000, " [999 B]"},
                                         CSizeText{1500, "B", kKilo1000, " [1.5 KB]"},
                                         CSizeText{700, "bit", kKilo1024, " [700 bit]"},
                                         CSizeText{1536, "bit", kKilo1024, " [1.5 Kbit]"},
                                         CSizeText{700, "", kKilo1024, " [700]"},
                                         CSizeText{1536, "", kKilo1024, " [1.5 K]"}));

TEST_F(PieTextLabel, PointsToTheMiddleOfItsSliceUpTowardSmallerHeights)
{
    EXPECT_NEAR(make(kTop).direction().y(), -1, 1e-15);
    EXPECT_NEAR(make(kBottom).direction().y(), 1, 1e-15);
    EXPECT_EQ(make(kRight).direction(), QPointF(1, 0));
    // From nine o'clock a quarter clockwise, to half past ten in the middle.
    const CPieTextLabel quarter({7, {-2880, -1441}, Qt::red}, {}, {}, {});
    EXPECT_NEAR(quarter.direction().x(), -std::sqrt(0.5), 1e-15);
    EXPECT_NEAR(quarter.direction().y(), -std::sqrt(0.5), 1e-15);
    EXPECT_EQ(quarter.lines().item, 7u);
}

TEST_F(PieTextLabel, CountsTheTopToTheLeftHalfAndTheBottomToTheRight)
{
    EXPECT_FALSE(make(kTop).isOnRightHalf());
    EXPECT_TRUE(make(kBottom).isOnRightHalf());
}

TEST_F(PieTextLabel, RunsFromTheBeamOverALineAndAGapToTheText)
{
    const CPlacedPieLabel lines = placed(kRight, text("home")).lines();
    EXPECT_EQ(lines.beamStart, QPointF(52, 0));
    EXPECT_EQ(lines.elbow, QPointF(60, 0));
    EXPECT_EQ(lines.lineEnd, QPointF(78, 0));
    EXPECT_EQ(lines.labelPos, QPointF(kAnchor, -8));
}

TEST_F(PieTextLabel, RunsTheOtherWayOnTheLeftHalf)
{
    const CPlacedPieLabel lines = placed(kLeft, text("home")).lines();
    EXPECT_EQ(lines.elbow.x(), -60);
    EXPECT_EQ(lines.lineEnd.x(), -78);
    EXPECT_EQ(lines.labelPos.x(), -kAnchor);
}

TEST_F(PieTextLabel, DoublesLineAndGapAtScaleTwo)
{
    CPieTextLabel label = make(kRight, {}, {}, {kReach, 2});
    label.initPosition(52, 60);
    EXPECT_EQ(label.lines().lineEnd.x(), 60 + 36);
    EXPECT_EQ(label.lines().labelPos.x(), 60 + 36 + 6);
}

TEST_F(PieTextLabel, BeginsAtItsAnchorOnTheRightAndEndsThereOnTheLeft)
{
    EXPECT_EQ(placed(kRight, text("home")).getPosition(), QPointF(kAnchor, -8));
    EXPECT_EQ(placed(kLeft, text("home")).getPosition(), QPointF(-kAnchor - widthOf("home"), -8));
}

TEST_F(PieTextLabel, KeepsTheBeamWhenItIsArranged)
{
    CPieTextLabel label = placed(kRight, text("home"));
    label.updateArrangedPosition(40, 30);
    EXPECT_EQ(label.lines().beamStart, QPointF(52, 0));
    EXPECT_EQ(label.lines().elbow, QPointF(60, 0));
    EXPECT_EQ(label.lines().lineEnd, QPointF(58, 30));
    EXPECT_EQ(label.lines().labelPos, QPointF(61, 22));
}

TEST_F(PieTextLabel, IsAsWideAsNameAndSizeTogether)
{
    CPieTextLabel label = make(kRight, text("home"), text(kSize));
    label.initBoundingRect(kWithSize);
    EXPECT_EQ(label.getBoundingRect().width(), widthOf("home") + widthOf(kSize));
    EXPECT_EQ(label.getBoundingRect().topLeft(), QPointF(0, 0));
}

TEST_F(PieTextLabel, IsAsLargeAsItsNameWithoutASize)
{
    CPieTextLabel label = make(kRight, text("home"));
    label.initBoundingRect(kWithSize);
    EXPECT_EQ(label.getBoundingRect(), text("home").getBoundingRect());
}

TEST_F(PieTextLabel, ASizeThatIsNotShownStillCountsWithItsHeight)
{
    CPieTextLabel label = make(kRight, text(""), text(kSize));
    label.initBoundingRect(!kWithSize);
    EXPECT_EQ(label.getBoundingRect().width(), 0);
    EXPECT_EQ(label.getBoundingRect().height(), text(kSize).getBoundingRect().height());
}

TEST_F(PieTextLabel, IsNoLargerThanTheRoomForIt)
{
    CPieTextLabel label = withRoom(20, text("a long name"));
    label.setLabelRect(QRectF(0, 0, 100, 5));
    label.initBoundingRect(kWithSize);
    EXPECT_EQ(label.getBoundingRect(), QRectF(0, 0, 20, 5));
}

TEST_F(PieTextLabel, IsNotBoundByARoomWithoutExtent)
{
    CPieTextLabel flat = withRoom(20, text("a long name"));
    flat.setLabelRect(QRectF(0, 0, 100, 0));
    flat.initBoundingRect(kWithSize);
    EXPECT_EQ(flat.getBoundingRect(), text("a long name").getBoundingRect());
    CPieTextLabel narrow = withRoom(-1, text("a long name"));
    narrow.initBoundingRect(kWithSize);
    EXPECT_EQ(narrow.getBoundingRect(), text("a long name").getBoundingRect());
}

TEST_F(PieTextLabel, HasTheRoomBetweenItsAnchorAndTheBoundaryOfItsHalf)
{
    for (const int arc : {kRight, kLeft})
        EXPECT_EQ(placed(arc, text("home")).getBoundingRectAdjustedToGraphBoundary(),
                  QRectF(0, 0, kReach - kAnchor, 14));
}

TEST_F(PieTextLabel, FitsWhereTheShortestNameFitsBesideTheSize)
{
    const int least = static_cast<int>(widthOf("a...") + widthOf(kSize));
    const CTextLabel name = text("another name");
    EXPECT_TRUE(withRoom(least, name, text(kSize)).isTextLabelShortenCorrectly(measurer));
    EXPECT_FALSE(withRoom(least - 1, name, text(kSize)).isTextLabelShortenCorrectly(measurer));
}

TEST_F(PieTextLabel, TestsTheNameInBoldWhereItIsDrawnSo)
{
    const int room = static_cast<int>(widthOf("ab"));
    EXPECT_TRUE(withRoom(room, text("ab")).isTextLabelShortenCorrectly(measurer));
    EXPECT_FALSE(withRoom(room, text("ab", kBold)).isTextLabelShortenCorrectly(measurer));
}

TEST_F(PieTextLabel, TestsTheEndOfTheNameThatIsKept)
{
    const int room = static_cast<int>(widthOf("i..."));
    EXPECT_TRUE(withRoom(room, text("iWWWW")).isTextLabelShortenCorrectly(measurer));
    EXPECT_FALSE(withRoom(room, text("iWWWW", kFromLeft)).isTextLabelShortenCorrectly(measurer));
}

TEST_F(PieTextLabel, PutsTheSizeBehindTheNameInTheSameColour)
{
    const CPlacedPieLabel label = finished(placed(kRight, text("home"), text(kSize)));
    ASSERT_EQ(label.texts.size(), 2u);
    EXPECT_EQ(label.texts[0].text, QString("home"));
    EXPECT_EQ(label.texts[1].text, QString(kSize));
    EXPECT_EQ(label.texts[0].room.topLeft(), QPointF(kAnchor, -8));
    EXPECT_EQ(label.texts[1].room.topLeft(), QPointF(kAnchor + widthOf("home"), -8));
    for (const CPlacedText& part : label.texts) {
        EXPECT_EQ(part.color, QColor(Qt::blue));
        EXPECT_FALSE(part.isBold || part.isTurned);
    }
}

TEST_F(PieTextLabel, EndsWithTheSizeAtTheAnchorOfTheLeftHalf)
{
    const CPlacedPieLabel label = finished(placed(kLeft, text("home"), text(kSize)));
    ASSERT_EQ(label.texts.size(), 2u);
    EXPECT_EQ(label.texts[0].room.right(), label.texts[1].room.left());
    EXPECT_EQ(label.texts[1].room.right(), -kAnchor);
}

// Whatever wraps for want of room, and whatever has more lines than the text beside it, begins at
// the top.
TEST_F(PieTextLabel, LetsTextsHangFromTheTopOnTheSideOfTheLine)
{
    for (const CPlacedText& part : finished(placed(kRight, text("a\nb"), text(kSize))).texts)
        EXPECT_EQ(part.alignment, Qt::AlignLeft);
    for (const CPlacedText& part : finished(placed(kLeft, text("a\nb"), text(kSize))).texts)
        EXPECT_EQ(part.alignment, Qt::AlignRight);
}

TEST_F(PieTextLabel, TakesUpTheWholeTextOnThePicture)
{
    const int width = qRound(widthOf("home") + widthOf(kSize));
    const int height = qRound(text("home").getBoundingRect().height());
    EXPECT_EQ(finished(placed(kRight, text("home"), text(kSize))).itemRect,
              QRect(281, 192, width, height));
    EXPECT_EQ(finished(placed(kLeft, text("home"), text(kSize))).itemRect,
              QRect(119 - width, 192, width, height));
}

TEST_F(PieTextLabel, LetsTheNameGiveWayToTheSize)
{
    const CTextLabel name = text("a very long name that cannot be shown whole");
    const CPlacedPieLabel label = finished(placed(kRight, name, text(kSize)));
    ASSERT_EQ(label.texts.size(), 2u);
    EXPECT_TRUE(label.texts[0].text.endsWith("..."));
    EXPECT_EQ(label.texts[1].text, QString(kSize));
    EXPECT_EQ(label.texts[1].room.right(), kReach);
    EXPECT_EQ(label.itemRect, QRect(281, 192, kReach - 81, 14));
}

TEST_F(PieTextLabel, KeepsAShortenedNameBesideItsLine)
{
    const CTextLabel name = text("WWWWWWWWWWWWWWWWWWWWWWW");
    const CPlacedText right = finished(placed(kRight, name)).texts.at(0);
    const CPlacedText left = finished(placed(kLeft, name)).texts.at(0);
    EXPECT_EQ(right.room.left(), kAnchor);
    EXPECT_EQ(right.alignment, Qt::AlignLeft);
    EXPECT_EQ(left.room.right(), -kAnchor);
    EXPECT_EQ(left.alignment, Qt::AlignRight);
}

TEST_F(PieTextLabel, KeepsTheEndOfANameThatIsShortenedFromTheLeft)
{
    const CTextLabel name = text("WWWWWWWWWWWWWWWWWWWWW|", kFromLeft);
    const QString shown = finished(placed(kRight, name)).texts.at(0).text;
    EXPECT_TRUE(shown.startsWith("..."));
    EXPECT_TRUE(shown.endsWith("W|"));
}

TEST_F(PieTextLabel, HasTheNameAloneWhereSizesAreNotShown)
{
    CPieTextLabel label = placed(kRight, text("home", kBold), text(kSize, kBold));
    label.initBoundingRect(!kWithSize);
    const CPlacedPieLabel done = finished(label, !kWithSize);
    ASSERT_EQ(done.texts.size(), 1u);
    EXPECT_EQ(done.texts[0].text, QString("home"));
    EXPECT_TRUE(done.texts[0].isBold);
    EXPECT_EQ(done.itemRect.width(), qRound(text("home", kBold).getBoundingRect().width()));
}

TEST_F(PieTextLabel, HasNoTextsAndTakesUpNothingWhereItIsHidden)
{
    CPieTextLabel label = placed(kRight, text("home"), text(kSize));
    label.setHidden(true);
    const CPlacedPieLabel done = finished(label);
    EXPECT_TRUE(done.isHidden);
    EXPECT_TRUE(done.texts.empty());
    EXPECT_TRUE(done.itemRect.isNull());
}

} // namespace
} // namespace tovangl
