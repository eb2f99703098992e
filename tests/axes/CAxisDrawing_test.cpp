// SPDX-License-Identifier: MIT
#include "axes/CTestAxis.h"
#include "core/CBarGraphItem.h"

namespace tovangl {
namespace {

using CAxisDrawing = CAxisPicture;

constexpr QRgb kRed = 0xffff0000;

TEST_F(CAxisDrawing, LineRunsOverTheWholeRectangle)
{
    CTestAxis axis(CAxis::LeftToRight, CAxis::Bottom, CAxis::ShowLine);
    axis.fitToRect(painter, QRect(10, 20, 100, 30));
    axis.draw(painter);
    EXPECT_EQ(extentOf(kBlack), QRect(10, 20, 100, 1));
}

TEST_F(CAxisDrawing, VerticalLineStandsAtTheSideOfThePlot)
{
    CTestAxis axis(CAxis::BottomToTop, CAxis::Left, CAxis::ShowLine);
    axis.fitToRect(painter, QRect(10, 20, 30, 100));
    axis.draw(painter);
    EXPECT_EQ(extentOf(kBlack), QRect(39, 20, 1, 100));
}

TEST_F(CAxisDrawing, WideLineHasSquareEnds)
{
    CTestAxis axis(CAxis::LeftToRight, CAxis::Top, CAxis::ShowLine);
    axis.setLineWidth(3);
    axis.fitToRect(painter, QRect(10, 20, 100, 30));
    axis.draw(painter);
    EXPECT_EQ(extentOf(kBlack), QRect(9, 48, 102, 3));
}

TEST_F(CAxisDrawing, LineHasTheAxisColour)
{
    CTestAxis axis(CAxis::LeftToRight, CAxis::Bottom, CAxis::ShowLine);
    axis.setLineColor(Qt::red);
    axis.fitToRect(painter, QRect(10, 20, 100, 30));
    axis.draw(painter);
    EXPECT_EQ(extentOf(kRed), QRect(10, 20, 100, 1));
}

TEST_F(CAxisDrawing, LineThatIsHiddenOrNotShownLeavesThePicture)
{
    CTestAxis unshown(CAxis::LeftToRight, CAxis::Bottom, CAxis::Properties());
    unshown.fitToRect(painter, QRect(10, 20, 100, 30));
    unshown.draw(painter);
    CTestAxis hidden(CAxis::LeftToRight, CAxis::Top, CAxis::ShowLine);
    hidden.setLineWidth(6);
    hidden.fitToRect(painter, QRect(10, 20, 100, 3));
    hidden.draw(painter);
    EXPECT_EQ(extentOf(kWhite), image.rect());
    EXPECT_EQ(extentOf(kBlack), QRect());
}

// An axis with one item's caption, its tick in the middle.
struct CCaptionedAxis : CTestAxis
{
    explicit CCaptionedAxis(Orientation orientation, LegendLocation location = Bottom)
        : CTestAxis(orientation, location)
        , item(1, QString("caption"), Qt::red)
    {
        appendLabel(std::make_unique<CBarTextLabel>(&item, nullptr));
        shiftAtBegin = [](LabelDirection) { return 50; };
    }

    CBarGraphItem item;
};

TEST_F(CAxisDrawing, CaptionIsCentredBelowItsTick)
{
    CCaptionedAxis axis(CAxis::LeftToRight, CAxis::Bottom);
    axis.fitToRect(painter, QRect(10, 20, 101, 40));
    axis.draw(painter);
    const QSize size = axis.labelRect().size();
    EXPECT_EQ(axis.item.itemRect(), QRect(QPoint(60 - size.width() / 2, 20 + 5), size));
}

TEST_F(CAxisDrawing, CaptionEndsLeftOfAVerticalAxis)
{
    CCaptionedAxis axis(CAxis::TopToBottom, CAxis::Left);
    axis.fitToRect(painter, QRect(10, 20, 90, 101));
    axis.draw(painter);
    const QSize size = axis.labelRect().size();
    // The line stands at 99; line and ticks take 6 pixels, one of which is the line itself.
    EXPECT_EQ(axis.item.itemRect(),
              QRect(QPoint(99 - 5 - size.width(), 70 - size.height() / 2), size));
}

TEST_F(CAxisDrawing, CaptionThatIsHiddenHasNoRectangle)
{
    CCaptionedAxis axis(CAxis::LeftToRight);
    axis.item.setItemRect(QRect(1, 2, 3, 4));
    axis.label(0)->setHidden(true);
    axis.fitToRect(painter, QRect(10, 20, 101, 40));
    axis.draw(painter);
    EXPECT_EQ(axis.item.itemRect(), QRect());
}

TEST_F(CAxisDrawing, HiddenLabelsTouchNoItem)
{
    CCaptionedAxis axis(CAxis::LeftToRight);
    axis.item.setItemRect(QRect(1, 2, 3, 4));
    axis.fitToRect(painter, QRect(10, 20, 101, 3));
    axis.draw(painter);
    EXPECT_TRUE(axis.areLabelsHidden());
    EXPECT_EQ(axis.item.itemRect(), QRect(1, 2, 3, 4));
}

TEST_F(CAxisDrawing, LabelsTakeTheAxisColour)
{
    CCaptionedAxis axis(CAxis::LeftToRight);
    axis.setLineColor(Qt::red);
    axis.fitToRect(painter, QRect(10, 20, 101, 40));
    axis.draw(painter);
    EXPECT_GT(extentOf(kRed).bottom(), axis.item.itemRect().top());
    EXPECT_EQ(extentOf(kBlack), QRect());
}

TEST_F(CAxisDrawing, LabelsKeepTheirColourWhereTheAxisHasNone)
{
    CCaptionedAxis axis(CAxis::LeftToRight);
    axis.label(0)->setColor(Qt::red);
    axis.setLineColor(QColor());
    axis.fitToRect(painter, QRect(10, 20, 101, 40));
    axis.draw(painter);
    EXPECT_TRUE(extentOf(kRed).isValid());
}

TEST_F(CAxisDrawing, TitleStaysBlackWhateverTheAxisColour)
{
    CTestAxis axis(CAxis::LeftToRight, CAxis::Bottom, CAxis::ShowTitle, "title");
    axis.setLineColor(Qt::red);
    axis.fitToRect(painter, QRect(10, 20, 101, 40));
    axis.draw(painter);
    EXPECT_TRUE(extentOf(kBlack).isValid());
    EXPECT_EQ(extentOf(kRed), QRect());
}

TEST_F(CAxisDrawing, TitleOfAVerticalAxisReadsUpwardFromTheBottomEnd)
{
    for (const CAxis::Orientation orientation : {CAxis::BottomToTop, CAxis::TopToBottom}) {
        image.fill(kWhite);
        CTestAxis axis(orientation, CAxis::Left, CAxis::ShowTitle, "iiiiiiiiiiiiiiiiiiii");
        axis.fitToRect(painter, QRect(10, 20, 60, 101));
        axis.draw(painter);
        const QRect text = extentOf(kBlack);
        EXPECT_GT(text.height(), text.width());
        EXPECT_NEAR(text.center().y(), 70, 1);
        EXPECT_TRUE(QRect(10, 20, 60, 101).contains(text));
    }
}

TEST_F(CAxisDrawing, PainterIsTheSameBeforeAndAfter)
{
    CCaptionedAxis axis(CAxis::TopToBottom, CAxis::Left);
    painter.setPen(Qt::green);
    const QTransform transform = painter.worldTransform();
    axis.fitToRect(painter, QRect(10, 20, 90, 101));
    axis.draw(painter);
    EXPECT_EQ(painter.worldTransform(), transform);
    EXPECT_EQ(painter.pen().color(), QColor(Qt::green));
}

} // namespace
} // namespace tovangl
