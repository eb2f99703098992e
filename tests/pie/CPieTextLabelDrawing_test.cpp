// SPDX-License-Identifier: MIT
// The label of a slice, painted.
#include "core/qt_versions.h"
#include "pie/CPaintedSurface.h"
#include "pie/CTestLabels.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr int kRight = CTestLabels::kThreeOClock;
constexpr int kLeft = CTestLabels::kNineOClock;
constexpr int kAnchor = 81; // from the middle of the picture
constexpr double kLabelHeight = 14;

class PieTextLabelDrawing : public testing::Test
{
protected:
    CPieTextLabel& add(int arc, const char* text, bool withSize = false)
    {
        CPieTextLabel& label = labels.addAtAngle(arc, text, withSize, 999);
        label.setLineColor(Qt::black);
        label.setBoundaries(-190, 190);
        label.setLabelRect(QRectF(0, 0, 100, kLabelHeight));
        label.initPosition(20, 60);
        return label;
    }
    void draw(CPieTextLabel& label) { label.draw(surface.painter()); }
    [[nodiscard]] QRect itemRect() { return labels.item(0).itemRect(); }
    [[nodiscard]] int widthOf(const char* text)
    {
        const QString string = QString::fromUtf8(text);
        return qRound(qt::measureText(surface.painter(), QRectF(), string).width());
    }

    CPaintedSurface surface;
    CTestLabels labels;
};

TEST_F(PieTextLabelDrawing, AHiddenLabelDrawsNothingAndTakesItsRectangleBack)
{
    CPieTextLabel& label = add(kRight, "home");
    labels.item(0).setItemRect(QRect(1, 2, 3, 4));
    label.setHidden(true);
    draw(label);
    EXPECT_EQ(surface.ink(), 0);
    EXPECT_EQ(itemRect(), QRect());
}

// At scale 10 the beam, from 0 to 95, begins a new dot every 33.6 pixels, and a dot is 15.6 long.
TEST_F(PieTextLabelDrawing, TheBeamIsDottedAndTheLineSolid)
{
    CPieTextLabel& label = add(kRight, "");
    label.setScale(10);
    label.initPosition(0, 95);
    draw(label);
    for (const int dot : {1, 34, 68})
        EXPECT_EQ(surface.at(dot, 0), QColor(Qt::black));
    for (const int gap : {11, 45})
        EXPECT_EQ(surface.inkIn(QRect(QPoint(gap, -10), QPoint(gap + 15, 10))), 0);
    for (int x = 95; x < 200; ++x)
        ASSERT_EQ(surface.at(x, 0), QColor(Qt::black)) << x;
}

TEST_F(PieTextLabelDrawing, TheLineRunsSlantedAfterTheLabelWasArranged)
{
    CPieTextLabel& label = add(kRight, "");
    label.updateArrangedPosition(60, 40);
    draw(label);
    EXPECT_GT(surface.inkIn(QRect(67, 15, 5, 10)), 0);
    EXPECT_GT(surface.inkIn(QRect(58, -1, 5, 3)), 0);
    EXPECT_GT(surface.inkIn(QRect(75, 38, 5, 3)), 0);
}

TEST_F(PieTextLabelDrawing, LinesAndTextsHaveTheirOwnColours)
{
    CPieTextLabel& label = add(kRight, "\u2588\u2588");
    label.setLineColor(QColor(0, 0, 200));
    label.setTextColor(QColor(200, 0, 0));
    draw(label);
    EXPECT_EQ(surface.at(kAnchor + 3, 0), QColor(200, 0, 0));
    EXPECT_EQ(surface.at(70, 0).red(), surface.at(70, 0).green());
    EXPECT_GT(surface.at(70, 0).blue(), surface.at(70, 0).red());
}

TEST_F(PieTextLabelDrawing, RecordsTheExtentOfTheWholeText)
{
    CPieTextLabel& label = add(kRight, "home", true);
    const QRectF extent = label.getBoundingRect(surface.painter());
    draw(label);
    const QPoint anchor(CPaintedSurface::kHalf + kAnchor, CPaintedSurface::kHalf - 8);
    EXPECT_EQ(itemRect(),
              QRect(anchor, QSize(widthOf("home") + widthOf(" [999 B]"), qRound(extent.height()))));
}

TEST_F(PieTextLabelDrawing, TheTextEndsAtTheAnchorOnTheLeftHalf)
{
    CPieTextLabel& label = add(kLeft, "home", true);
    (void)label.getBoundingRect(surface.painter());
    draw(label);
    EXPECT_EQ(itemRect().right(), CPaintedSurface::kHalf - kAnchor - 1);
    EXPECT_EQ(itemRect().width(), widthOf("home") + widthOf(" [999 B]"));
    EXPECT_EQ(surface.inkIn(QRect(QPoint(-kAnchor, -9), QPoint(-kAnchor + 1, 9))), 0);
    EXPECT_GT(surface.inkIn(QRect(QPoint(-kAnchor - 8, -9), QPoint(-kAnchor - 1, 9))), 0);
}

TEST_F(PieTextLabelDrawing, TheNameGivesWayToTheSize)
{
    CPieTextLabel& label = add(kRight, "a very long name that cannot be shown whole", true);
    (void)label.getBoundingRect(surface.painter());
    draw(label);
    EXPECT_EQ(itemRect().width(), 190 - kAnchor);
    // The size ends at the boundary.
    EXPECT_GT(surface.inkIn(QRect(QPoint(184, -8), QPoint(189, 6))), 0);
    EXPECT_EQ(surface.inkIn(QRect(QPoint(190, -8), QPoint(199, 6))), 0);
}

// The extent was measured while the label had no place yet.
TEST_F(PieTextLabelDrawing, RecordsTheRoomWhereTheTextIsTooLongForIt)
{
    CPieTextLabel& label = labels.addAtAngle(kRight, "a very long name that is too long");
    (void)label.getBoundingRect(surface.painter());
    label.setBoundaries(-190, 190);
    label.setLabelRect(QRectF(0, 0, 100, kLabelHeight + 20));
    label.initPosition(20, 60);
    draw(label);
    EXPECT_EQ(itemRect().size(), QSize(190 - kAnchor, 34));
}

TEST_F(PieTextLabelDrawing, AShortenedNameStaysBesideItsLine)
{
    const int room = widthOf("WWW...") + 9;
    for (const int arc : {kRight, kLeft}) {
        CPieTextLabel& label = add(arc, "WWWWWWWWWWWW");
        label.setBoundaries(-kAnchor - room, kAnchor + room);
        draw(label);
    }
    EXPECT_GT(surface.inkIn(QRect(QPoint(kAnchor, -9), QPoint(kAnchor + 7, 9))), 0);
    const int farEdge = -kAnchor - room;
    EXPECT_EQ(surface.inkIn(QRect(QPoint(farEdge, -9), QPoint(farEdge + 7, 9))), 0);
}

TEST_F(PieTextLabelDrawing, TheSizeHasTheColourOfTheName)
{
    CPieTextLabel& label = add(kRight, "", true);
    label.setTextColor(QColor(200, 0, 0));
    draw(label);
    const QRect text(kAnchor, -8, widthOf(" [999 B]"), 14);
    EXPECT_GT(surface.inkIn(text), 0);
    for (int y = text.top(); y <= text.bottom(); ++y) {
        for (int x = text.left(); x <= text.right(); ++x)
            ASSERT_GE(surface.at(x, y).red(), 200);
    }
}

TEST_F(PieTextLabelDrawing, ANameShortenedFromTheLeftKeepsItsEnd)
{
    const char* name = "WWWWWWWWWWWWWWWWWWWWW|";
    CPieTextLabel& label = add(kRight, name);
    label.setShortFromLeft(true);
    draw(label);
    // The ellipsis comes first: only the foot of the line has ink there.
    EXPECT_EQ(surface.inkIn(QRect(kAnchor, -8, 8, 9)), 0);
    EXPECT_GT(surface.inkIn(QRect(kAnchor, 0, 8, 6)), 0);
}

TEST_F(PieTextLabelDrawing, WithoutRoomForSizesOnlyTheNameIsDrawn)
{
    CPieTextLabel& label = add(kRight, "home", true);
    CPieTextLabel& narrow = labels.addAtAngle(kRight, "another", true);
    ASSERT_FALSE(narrow.isTextLabelShortenCorrectly(surface.painter()));
    (void)label.getBoundingRect(surface.painter());
    draw(label);
    EXPECT_EQ(itemRect().width(), widthOf("home"));
    EXPECT_EQ(surface.inkIn(QRect(kAnchor + widthOf("home") + 1, -10, 60, 20)), 0);
}

TEST_F(PieTextLabelDrawing, TextsHangFromTheTopSideBySide)
{
    CPieTextLabel& label = add(kRight, "a\nb", true);
    label.setLabelRect(QRectF(0, 0, 100, 28));
    label.initPosition(20, 60);
    draw(label);
    const int top = -15; // half of the two lines, and one pixel more
    const int lineHeight = qRound(kLabelHeight) - 1;
    const int left = kAnchor + widthOf("a") + 2;
    EXPECT_GT(surface.inkIn(QRect(left, top, 40, lineHeight)), 0);
    EXPECT_EQ(surface.inkIn(QRect(left, top + lineHeight, 40, lineHeight)), 0);
}

// The second word is of a script that Tahoma lacks, and its line is higher: the two lines together
// do not fill the box evenly, so that centred ones would begin above its top.
TEST_F(PieTextLabelDrawing, ANameThatWrapsForWantOfRoomHangsFromTheTopAsOneLineDoes)
{
    surface.painter().setFont(chartFont("Tahoma", 11));
    const int room = widthOf("W") + 4;
    ASSERT_LT(room, widthOf("W...")); // so that the name is drawn whole, word by word
    const auto topOfInk = [this, room](const char* text) {
        CPieTextLabel& label = add(kRight, text);
        label.setBoundaries(-kAnchor - room, kAnchor + room);
        CPaintedSurface picture;
        picture.painter().setFont(chartFont("Tahoma", 11));
        label.draw(picture.painter());
        int y = -CPaintedSurface::kHalf;
        while (y < CPaintedSurface::kHalf && picture.inkIn(QRect(kAnchor, y, room, 1)) == 0)
            ++y;
        return y;
    };
    EXPECT_EQ(topOfInk("W \u0915"), topOfInk("W"));
}

TEST_F(PieTextLabelDrawing, TheBeamIsAsWideAsTheScaleSays)
{
    CPieTextLabel& label = add(kRight, "");
    label.setScale(10);
    label.initPosition(20, 60);
    draw(label);
    // Dots of 12 pixels across the beam, and a line of 6.
    EXPECT_GT(surface.inkIn(QRect(20, -6, 30, 1)), 0);
    EXPECT_EQ(surface.inkIn(QRect(20, -8, 30, 1)), 0);
    EXPECT_GT(surface.inkIn(QRect(100, 2, 30, 1)), 0);
    EXPECT_EQ(surface.inkIn(QRect(100, 4, 30, 1)), 0);
}

} // namespace
} // namespace tovangl
