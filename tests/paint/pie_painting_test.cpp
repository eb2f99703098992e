// SPDX-License-Identifier: MIT
// The pie chart, painted: what single pixels show.
#include "paint/pie_painting.h"
#include "support/CTestPie.h"
#include "support/chart_font.h"
#include "support/pixels.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr int kWidth = 401;
constexpr int kHeight = 301;
constexpr CRequest kPicture{kWidth, kHeight};
const QColor kWhite(255, 255, 255);
const QColor kGreen(0, 200, 0);
const QColor kColors[] = {QColor(200, 0, 0), QColor(0, 150, 0), QColor(0, 0, 200),
                          QColor(120, 60, 0)};

QColor pixelAt(const QImage& image, const QPointF& point)
{
    return QColor(image.pixel(static_cast<int>(std::floor(point.x())),
                              static_cast<int>(std::floor(point.y()))));
}

// A pie with its picture.
struct CPaintedPie : CDrawnPie
{
    explicit CPaintedPie(const CTestPie& pie, const CRequest& request = kPicture)
        : CDrawnPie(drawn(pie, request))
    {}

    // At an angle in degrees, counter-clockwise from three o'clock.
    [[nodiscard]] QPointF pointOn(double degrees, double shareOfRadius) const
    {
        const double radians = degrees * M_PI / 180;
        const double radius = layout.pieRect.width() / 2 * shareOfRadius;
        return layout.pieRect.center() +
               QPointF(radius * std::cos(radians), -radius * std::sin(radians));
    }
    [[nodiscard]] QColor at(double degrees, double shareOfRadius) const
    {
        return pixelAt(image, pointOn(degrees, shareOfRadius));
    }
};

// Four quarters, from nine o'clock over the top.
CTestPie quarters(bool withBackground = false)
{
    CTestPie pie(withBackground);
    for (const QColor& color : kColors)
        pie.add(1, "quarter", color);
    return pie;
}

CTestPie disc(const QColor& color, const char* name = "", bool withBackground = false)
{
    CTestPie pie(withBackground);
    pie.add(5, name, color);
    return pie;
}

TEST(PiePainting, EachSliceHasItsColourOnTheCircle)
{
    const CPaintedPie pie(quarters());
    // The beams begin at 0.85 of the radius.
    for (const double share : {0.2, 0.8}) {
        EXPECT_EQ(pie.at(135, share), kColors[0]);
        EXPECT_EQ(pie.at(45, share), kColors[1]);
        EXPECT_EQ(pie.at(-45, share), kColors[2]);
        EXPECT_EQ(pie.at(-135, share), kColors[3]);
    }
}

TEST(PiePainting, SlicesAreFlat)
{
    const CPaintedPie pie(quarters());
    for (int degrees = 100; degrees <= 170; degrees += 5)
        EXPECT_EQ(pie.at(degrees, 0.8), kColors[0]) << degrees;
}

TEST(PiePainting, WhiteLinesSeparateTheSlices)
{
    const CPaintedPie pie(quarters());
    // The centre lies in the middle of a pixel, so a line of one pixel fills it.
    for (const int degrees : {0, 90, 180, 270})
        EXPECT_GT(pie.at(degrees, 0.5).lightness(), 200) << degrees;
}

TEST(PiePainting, SeparatorsTakeTheOutlineColour)
{
    CTestPie yellow = quarters();
    yellow.settings.colors.outline = Qt::yellow;
    const CPaintedPie pie(yellow);
    EXPECT_EQ(pie.at(0, 0.5).blue(), 0);
    EXPECT_GT(pie.at(0, 0.5).green(), 200);
}

TEST(PiePainting, OneSliceIsADiscWithoutASeam)
{
    const CPaintedPie pie(disc(kColors[0], "all"));
    for (double share = 0.02; share < 0.95; share += 0.01)
        ASSERT_EQ(pie.at(180, share), kColors[0]) << share;
}

TEST(PiePainting, TheEdgeOfThePieIsSmooth)
{
    const CPaintedPie pie(disc(Qt::black));
    int shades = 0;
    for (int degrees = 20; degrees < 160; ++degrees) {
        const int lightness = pie.at(degrees, 0.99).lightness();
        shades += lightness > 0 && lightness < 255 ? 1 : 0;
    }
    EXPECT_GT(shades, 20);
}

TEST(PiePainting, EverythingAroundThePieAndItsLabelsIsWhite)
{
    const CPaintedPie pie(quarters());
    EXPECT_EQ(pixelAt(pie.image, QPointF(0, 0)), kWhite);
    EXPECT_EQ(pixelAt(pie.image, QPointF(kWidth - 1, kHeight - 1)), kWhite);
    for (int degrees = 0; degrees < 360; degrees += 90)
        EXPECT_EQ(pie.at(degrees, 1.1), kWhite) << degrees;
}

TEST(PiePainting, TheBackgroundIsDarkestAtTheTopAndHasRoundCorners)
{
    const QImage image = quarters(true).paint(kPicture);
    const QColor top = pixelAt(image, QPointF(kWidth / 2, 3));
    const QColor bottom = pixelAt(image, QPointF(kWidth / 2, kHeight - 4));
    EXPECT_NEAR(top.red(), 186, 2);
    EXPECT_NEAR(top.green(), 209, 2);
    EXPECT_NEAR(bottom.red(), 232, 2);
    EXPECT_NEAR(bottom.green(), 242, 2);
    EXPECT_EQ(pixelAt(image, QPointF(0, 0)), kWhite);
    EXPECT_EQ(pixelAt(image, QPointF(kWidth - 1, kHeight - 1)), kWhite);
}

TEST(PiePainting, AnEmptyPieHasItsBackgroundOnly)
{
    const QImage image = CTestPie(true).paint(kPicture);
    EXPECT_TRUE(isRow(image, kHeight / 2, 5, kWidth - 6, image.pixel(kWidth / 2, kHeight / 2)));
    EXPECT_NE(pixelAt(image, QPointF(5, kHeight / 2)), kWhite);
    EXPECT_TRUE(inkOf(CTestPie().paint(kPicture)).isNull());
}

TEST(PiePainting, APictureWithoutRoomForThePieStaysWhite)
{
    const CTestPie pie = quarters(true);
    EXPECT_TRUE(inkOf(pie.paint(onScreen(103, kHeight))).isNull());
    EXPECT_FALSE(inkOf(pie.paint(onScreen(104, kHeight))).isNull());
    EXPECT_TRUE(inkOf(pie.paint(onScreen(kWidth, 30))).isNull());
}

TEST(PiePainting, PrintedSlicesArePalerWithDarkGreyOutlinesAndNoBackground)
{
    CTestPie halves(true);
    halves.add(1, "half", QColor(0, 0, 0));
    halves.add(1, "half", QColor(255, 0, 0));
    const CPaintedPie pie(halves, inPrint(kWidth, kHeight, 1));
    EXPECT_EQ(pie.at(90, 0.5), QColor(153, 153, 153));
    EXPECT_EQ(pie.at(-90, 0.5), QColor(255, 153, 153));
    EXPECT_LT(pie.at(0, 0.5).red(), 120);
    EXPECT_EQ(pixelAt(pie.image, QPointF(5, kHeight / 2)), kWhite);
}

TEST(PiePainting, OutlinesGrowWithThePrintFactor)
{
    CTestPie halves;
    halves.addEqual(2);
    const CPaintedPie pie(halves, inPrint(kWidth, kHeight, 9));
    const QPointF seam = pie.pointOn(0, 0.5);
    for (int dy = -4; dy <= 3; ++dy)
        EXPECT_EQ(pixelAt(pie.image, seam + QPointF(0, dy)), QColor(64, 64, 64)) << dy;
    EXPECT_NE(pixelAt(pie.image, seam + QPointF(0, 6)), QColor(64, 64, 64));
}

TEST(PiePainting, TheBackgroundShiftsThePieByHalfAPixel)
{
    const CPaintedPie plain(disc(Qt::black, "all"));
    const CPaintedPie shifted(disc(Qt::black, "all", true));
    // The top of this disc lies on a pixel edge; half a pixel lower it covers half of its first
    // row.
    int moved = 0;
    for (int degrees = 20; degrees < 160; ++degrees) {
        const QPointF edge = plain.pointOn(degrees, 0.985);
        moved += pixelAt(plain.image, edge) == QColor(Qt::black) &&
                         pixelAt(shifted.image, edge) != QColor(Qt::black)
                     ? 1
                     : 0;
    }
    EXPECT_GT(moved, 5);
}

TEST(PiePainting, TheBackgroundLeavesTheTitleWhereItIs)
{
    CTestPie plain;
    plain.settings.title = QString("A title");
    CTestPie white(true);
    white.settings.title = plain.settings.title;
    white.settings.colors.plot = Qt::white;
    white.settings.colors.border = Qt::white;
    const CPaintedPie titled(plain);
    const QRect title = titled.layout.title->rect;
    EXPECT_EQ(CPaintedPie(white).image.copy(title), titled.image.copy(title));
}

TEST(PiePainting, BeamsAndLinesTakeTheLineColour)
{
    CTestPie green = disc(kColors[0]);
    green.settings.colors.labelLine = kGreen;
    const CPaintedPie pie(green, inPrint(kWidth, kHeight, 10));
    const CPlacedPieLabel& label = pie.layout.labels.at(0);
    const QPointF middle = (label.elbow + label.lineEnd) / 2;
    EXPECT_EQ(pixelAt(pie.image, pie.layout.center() + middle), kGreen);
    EXPECT_EQ(pixelAt(pie.image, pie.layout.center() + label.beamStart), kGreen);
}

TEST(PiePainting, TextsTakeTheTextColour)
{
    CTestPie green = disc(kColors[0], "\u2588\u2588\u2588\u2588");
    green.settings.colors.text = kGreen;
    const CPaintedPie pie(green);
    const QRect caption = pie.layout.labels.at(0).itemRect;
    EXPECT_EQ(pixelAt(pie.image, caption.topLeft() + QPointF(5, caption.height() / 2.0)), kGreen);
}

TEST(PiePainting, LeavesThePainterAsItWas)
{
    QImage image(kWidth, kHeight, QImage::Format_ARGB32);
    QPainter painter(&image);
    painter.setFont(chartFont("DejaVu Sans", 11));
    const QPen pen = painter.pen();
    paintPie(painter, quarters(true).layOut(kPicture));
    EXPECT_TRUE(painter.worldTransform().isIdentity());
    EXPECT_EQ(painter.pen(), pen);
    EXPECT_EQ(painter.brush(), QBrush());
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
}

// A picture of one label alone, from a centre that is the middle.
constexpr int kHalf = 200;

CPieLayout oneLabel(const CPlacedPieLabel& label)
{
    CPieLayout layout;
    layout.hasRoom = true;
    layout.area = QRectF(0, 0, 2 * kHalf, 2 * kHalf);
    layout.labelLineColor = Qt::black;
    layout.beamWidth = 12;
    layout.textLineWidth = 6;
    layout.labels = {label};
    return layout;
}

CPlacedPieLabel lineToTheRight(double beamStart, double elbow, double lineEnd)
{
    CPlacedPieLabel label;
    label.beamStart = QPointF(beamStart, 0);
    label.elbow = QPointF(elbow, 0);
    label.lineEnd = QPointF(lineEnd, 0);
    return label;
}

// What is painted in a rectangle that counts from the centre.
QRect inkIn(const QRect& rect, const CPieLayout& layout)
{
    const QImage image = painted(2 * kHalf, 2 * kHalf, [&layout](QPainter& painter) {
        painter.setFont(chartFont("DejaVu Sans", 11));
        paintPie(painter, layout);
    });
    return inkOf(image.copy(rect.translated(kHalf, kHalf)));
}

const QRect kEverywhere(-kHalf, -kHalf, 2 * kHalf, 2 * kHalf);

TEST(PieLabelPainting, AHiddenLabelPaintsNothing)
{
    CPlacedPieLabel label = lineToTheRight(0, 60, 90);
    label.isHidden = true;
    EXPECT_TRUE(inkIn(kEverywhere, oneLabel(label)).isNull());
}

// A dot begins every 33.6 pixels and is 15.6 long, with its caps.
TEST(PieLabelPainting, TheBeamIsDottedAndTheLineSolid)
{
    const CPieLayout layout = oneLabel(lineToTheRight(0, 95, 199));
    for (const int dot : {1, 34, 68})
        EXPECT_FALSE(inkIn(QRect(dot, 0, 1, 1), layout).isNull()) << dot;
    for (const int gap : {11, 45})
        EXPECT_TRUE(inkIn(QRect(QPoint(gap, -10), QPoint(gap + 15, 10)), layout).isNull()) << gap;
    EXPECT_EQ(inkIn(QRect(95, 0, 100, 1), layout), QRect(0, 0, 100, 1));
    for (int x = 95; x < 195; ++x)
        ASSERT_FALSE(inkIn(QRect(x, 0, 1, 1), layout).isNull()) << x;
}

TEST(PieLabelPainting, BeamAndLineAreAsWideAsTheLayoutSays)
{
    const CPieLayout layout = oneLabel(lineToTheRight(20, 60, 199));
    EXPECT_EQ(inkIn(QRect(20, -20, 30, 40), layout).height(), 12);
    EXPECT_EQ(inkIn(QRect(100, -20, 30, 40), layout).height(), 6);
}

TEST(PieLabelPainting, TheLineRunsSlantedToALabelThatWasMoved)
{
    CPlacedPieLabel label = lineToTheRight(20, 60, 78);
    label.lineEnd.setY(40);
    CPieLayout layout = oneLabel(label);
    layout.textLineWidth = 0.6;
    for (const QPoint& place : {QPoint(60, 0), QPoint(69, 20), QPoint(77, 38)})
        EXPECT_FALSE(inkIn(QRect(place, QSize(1, 1)).adjusted(-2, -2, 2, 2), layout).isNull());
    EXPECT_TRUE(inkIn(QRect(68, -2, 20, 5), layout).isNull());
}

TEST(PieLabelPainting, EveryTextIsPaintedWhereItHasItsRoom)
{
    CPlacedPieLabel label = lineToTheRight(0, 0, 0);
    for (const int x : {50, 100})
        label.texts.push_back({"\u2588", QRectF(x, 20, 40, 14), Qt::AlignLeft, Qt::blue});
    const CPieLayout layout = oneLabel(label);
    for (const int x : {50, 100})
        EXPECT_FALSE(inkIn(QRect(x, 20, 8, 14), layout).isNull()) << x;
    EXPECT_TRUE(inkIn(QRect(70, 20, 30, 14), layout).isNull());
}

} // namespace
} // namespace tovangl
