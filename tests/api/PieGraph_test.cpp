// SPDX-License-Identifier: MIT
// The pie chart of the public interface, seen as a host sees it.
#include "support/host_pictures.h"
#include <tovangl/tovangl.h>

#include <QColor>

#include <gtest/gtest.h>
#include <limits>
#include <set>

namespace tovangl {
namespace {

constexpr int kWidth = 400;
constexpr int kHeight = 300;
constexpr const char* kLongName = "a name that is much too long for its place in the picture";

class PieFacade : public testing::Test
{
protected:
    PieFacade() { pie.setFont("DejaVu Sans", 11); }

    QImage render(int width = kWidth, int height = kHeight)
    {
        return tovangl::render(pie, width, height);
    }
    std::vector<Rectangle> rectangles() { return copied(pie.getRectangle()); }
    std::set<QRgb> colors()
    {
        const QImage image = render();
        std::set<QRgb> found;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                found.insert(image.pixel(x, y));
        }
        return found;
    }
    [[nodiscard]] static bool contains(const std::set<QRgb>& found, int red, int green, int blue)
    {
        return found.count(qRgb(red, green, blue)) > 0;
    }
    // The middle of the slice whose middle lies that way from the centre.
    static QColor sliceAt(const QImage& image, int dx, int dy)
    {
        return QColor(image.pixel(image.width() / 2 + 20 * dx, image.height() / 2 + 20 * dy));
    }

    PieGraph pie{false};
};

TEST_F(PieFacade, SlicesWithoutAColourGetTheFirstThreeOfThePalette)
{
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(pie.addItem(1, "third"));
    const QImage image = render();
    EXPECT_EQ(sliceAt(image, -1, -1), QColor(23, 52, 124));
    EXPECT_EQ(sliceAt(image, 2, 0), QColor(91, 115, 176));
    EXPECT_EQ(sliceAt(image, -1, 1), QColor(174, 191, 234));
}

TEST_F(PieFacade, ASliceTakesTheColourGiven)
{
    EXPECT_TRUE(pie.addItem(1, "all", Color{1, 200, 3}));
    EXPECT_EQ(sliceAt(render(), 1, 1), QColor(1, 200, 3));
}

TEST_F(PieFacade, AColourOutOfRangeCountsAsNotSet)
{
    pie.addItem(1, "all", Color{1, 256, 3});
    EXPECT_EQ(sliceAt(render(), 1, 1), QColor(23, 52, 124));
}

TEST_F(PieFacade, NegativeAndZeroValuesAreAcceptedButNotDrawn)
{
    EXPECT_TRUE(pie.addItem(-100, "negative"));
    EXPECT_TRUE(pie.addItem(0, "zero"));
    EXPECT_TRUE(pie.addItem(std::numeric_limits<long>::min(), "least"));
    EXPECT_TRUE(pie.addItem(1, "one", Color{1, 200, 3}));
    EXPECT_EQ(sliceAt(render(), -1, -1), QColor(1, 200, 3));
    EXPECT_EQ(rectangles()[0], kNoRectangle);
    EXPECT_EQ(rectangles()[1], kNoRectangle);
    EXPECT_EQ(rectangles()[2], kNoRectangle);
}

TEST_F(PieFacade, SetColorsTakesOutlineTextAndLineInThatOrder)
{
    pie.addItem(1, "\u2588\u2588", Color{0, 0, 0});
    pie.addItem(1, "\u2588\u2588", Color{0, 0, 0});
    pie.setColors(Color{250, 0, 0}, Color{0, 240, 0}, Color{0, 0, 230});
    const QImage image = render();
    // The seam between the halves runs through the middle, from left to right.
    const QColor seam = sliceAt(image, 2, 0);
    EXPECT_GT(seam.red(), 100);
    EXPECT_EQ(seam.green() + seam.blue(), 0);
    const Rectangle text = rectangles()[0];
    EXPECT_EQ(QColor(image.pixel(text.x + 4, text.y + text.height / 2)), QColor(0, 240, 0));
    bool hasLine = false;
    for (const QRgb color : colors())
        hasLine = hasLine || (qBlue(color) > 200 && qRed(color) < 120 && qGreen(color) < 120);
    EXPECT_TRUE(hasLine);
}

TEST_F(PieFacade, ColoursOutOfRangeGoBackToTheDefault)
{
    pie.addItem(1, "\u2588\u2588");
    pie.setColors(Color{250, 0, 0}, Color{0, 240, 0}, Color{0, 0, 230});
    ASSERT_TRUE(contains(colors(), 0, 240, 0));
    pie.setColors(Color{-1, 0, 0}, Color{0, 256, 0}, Color{0, 0, 1000});
    EXPECT_FALSE(contains(colors(), 0, 240, 0));
    EXPECT_TRUE(contains(colors(), 0, 0, 0));
}

TEST_F(PieFacade, LabelsShowSizesByDefaultAndNotWithoutTheBit)
{
    pie.addItem(1536, "home");
    (void)render();
    const int withSize = rectangles()[0].width;
    pie.setProperty(PieGraph::RemoveLabelOverlaps);
    (void)render();
    EXPECT_LT(rectangles()[0].width, withSize - 20);
}

TEST_F(PieFacade, SetPropertyReplacesAllOptions)
{
    pie.addItem(1536, "home");
    pie.setProperty(PieGraph::BoldLabels);
    (void)render();
    const int bold = rectangles()[0].width;
    pie.setProperty(0);
    (void)render();
    EXPECT_LT(rectangles()[0].width, bold);
}

TEST_F(PieFacade, SetPropertyZeroLeavesCollidingLabelsWhereTheyAre)
{
    for (int i = 0; i < 40; ++i)
        pie.addItem(1, "name");
    (void)render();
    const std::vector<Rectangle> arranged = rectangles();
    pie.setProperty(0);
    (void)render();
    int moved = 0;
    for (std::size_t i = 0; i < arranged.size(); ++i) {
        EXPECT_NE(rectangles()[i], kNoRectangle);
        moved += rectangles()[i].y == arranged[i].y ? 0 : 1;
    }
    EXPECT_GT(moved, 10);
}

TEST_F(PieFacade, RectanglesBelongToTheirItemsWhereLabelsAreMovedApart)
{
    for (int i = 0; i < 30; ++i)
        pie.addItem(1, "name");
    (void)render();
    const Rectangle upperLeft = rectangles()[3];
    const Rectangle lowerRight = rectangles()[18];
    EXPECT_NE(upperLeft, kNoRectangle);
    EXPECT_LT(upperLeft.x, lowerRight.x);
    EXPECT_LT(upperLeft.y, lowerRight.y);
}

TEST_F(PieFacade, ShortenFromLeftChangesOnlyLongNames)
{
    pie.addItem(1, "short");
    const QImage before = render();
    pie.setProperty(PieGraph::DefaultProperties | PieGraph::ShortenFromLeft);
    EXPECT_EQ(render(), before);
    pie.addItem(1, kLongName);
    const QImage fromLeft = render();
    pie.setProperty(PieGraph::DefaultProperties);
    EXPECT_NE(render(), fromLeft);
}

TEST_F(PieFacade, UnknownBitsAreIgnored)
{
    pie.addItem(1, kLongName);
    const QImage before = render();
    pie.setProperty(PieGraph::DefaultProperties | ~0x1c8);
    EXPECT_EQ(render(), before);
}

TEST_F(PieFacade, ClearRemovesSlicesAndKeepsOptionsAndColours)
{
    pie.addItem(1, "\u2588\u2588");
    pie.setProperty(PieGraph::BoldLabels);
    pie.setColors(Color{250, 0, 0}, Color{0, 240, 0}, Color{0, 0, 230});
    const QImage before = render();
    pie.clear();
    EXPECT_TRUE(rectangles().empty());
    EXPECT_FALSE(contains(colors(), 0, 240, 0));
    pie.addItem(1, "\u2588\u2588");
    EXPECT_EQ(render(), before);
}

TEST_F(PieFacade, TextsAreDecodedFromUtf8WithWhatIsBrokenReplaced)
{
    pie.setProperty(0);
    pie.addItem(1, "\xff\xfe");
    pie.addItem(1, "\u00e4\u00f6");
    pie.addItem(1, std::string("a\0b", 3));
    (void)render();
    for (const Rectangle& rect : rectangles())
        EXPECT_GT(rect.width, 5);
}

TEST_F(PieFacade, TheBackgroundIsTheConstructorsChoice)
{
    PieGraph withBackground(true);
    const QImage image = tovangl::render(withBackground, kWidth, kHeight);
    EXPECT_NE(QColor(image.pixel(kWidth / 2, 5)), QColor(Qt::white));
    EXPECT_EQ(QColor(render().pixel(kWidth / 2, 5)), QColor(Qt::white));
}

TEST_F(PieFacade, ThePrinterPictureIsLargerByTheFactor)
{
    pie.addItem(1, "all", Color{0, 0, 0});
    const QImage image = printed(pie, kWidth, kHeight, 2).decoded();
    EXPECT_EQ(image.size(), QSize(2 * kWidth, 2 * kHeight));
    EXPECT_EQ(sliceAt(image, 1, 1), QColor(153, 153, 153));
}

} // namespace
} // namespace tovangl
