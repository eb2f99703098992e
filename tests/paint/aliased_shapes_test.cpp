// SPDX-License-Identifier: MIT
#include "paint/aliased_shapes.h"
#include "support/pixels.h"

#include <QPen>

#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace tovangl {
namespace cdraw {
namespace {

constexpr int kSide = 60; // pixels
const QColor kFill(200, 30, 40);
const QColor kOutline(10, 20, 230);

template <typename Draw>
QImage drawn(const QPoint& offset, const Draw& draw)
{
    return painted(kSide, kSide, [&](QPainter& painter) {
        painter.translate(offset);
        draw(painter);
    });
}

// The rectangle as the painter strokes it.
QImage stroked(const QPoint& offset, const QRect& rect, int width)
{
    return drawn(offset, [&](QPainter& painter) {
        painter.setBrush(QBrush(kFill, Qt::SolidPattern));
        painter.setPen(QPen(QBrush(kOutline), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRects(&rect, 1);
    });
}

QImage filled(const QPoint& offset, const QRect& rect, int width)
{
    return drawn(offset, [&](QPainter& painter) {
        drawOutlinedRect(painter, rect, kFill, kOutline, width);
    });
}

TEST(OutlinedRect, IsTheStrokedRectPixelForPixel)
{
    std::mt19937 random(11);
    const auto between = [&random](int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(random);
    };
    for (int round = 0; round < 4000; ++round) {
        const QRect rect(between(-30, 70), between(-30, 70), between(1, 70), between(1, 70));
        const QPoint offset = round % 4 == 0 ? QPoint(between(-5, 5), between(-5, 5)) : QPoint();
        const int width = between(1, 12);
        ASSERT_EQ(filled(offset, rect, width), stroked(offset, rect, width))
            << rect.x() << ' ' << rect.y() << ' ' << rect.width() << ' ' << rect.height()
            << " width " << width;
    }
}

TEST(OutlinedRect, RectsFarOutsideThePictureAreStroked)
{
    constexpr int kMin = std::numeric_limits<int>::min();
    constexpr int kMax = std::numeric_limits<int>::max();
    const QRect wide(QPoint(-20000, 20), QPoint(20000, 30));
    const QRect huge(QPoint(kMin, kMin), QPoint(kMax, kMax));
    EXPECT_EQ(filled(QPoint(), wide, 3), stroked(QPoint(), wide, 3));
    EXPECT_EQ(filled(QPoint(), huge, 3), stroked(QPoint(), huge, 3));
    EXPECT_EQ(filled(QPoint(), wide, kMax), stroked(QPoint(), wide, kMax));
}

TEST(OutlinedRect, AntialiasedAndTranslucentRectsAreStroked)
{
    const QRect rect(10, 10, 20, 20);
    const QColor translucent(200, 30, 40, 128);
    const QImage image = drawn(QPoint(), [&](QPainter& painter) {
        drawOutlinedRect(painter, rect, translucent, kOutline, 1);
    });
    const QImage expected = drawn(QPoint(), [&](QPainter& painter) {
        painter.setBrush(QBrush(translucent));
        painter.setPen(QPen(QBrush(kOutline), 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(rect);
    });
    EXPECT_EQ(image, expected);
}

void strokeLine(QPainter& painter, const QPoint& from, const QPoint& to, int width)
{
    painter.setPen(QPen(QBrush(kOutline), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawLine(from, to);
}

TEST(StraightLine, IsTheStrokedLinePixelForPixel)
{
    std::mt19937 random(12);
    const auto between = [&random](int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(random);
    };
    for (int round = 0; round < 6000; ++round) {
        const QPoint from(between(-20, 80), between(-20, 80));
        const int length = between(-70, 70);
        const QPoint to = from + (round % 2 == 0 ? QPoint(length, 0) : QPoint(0, length));
        const QPoint offset(between(-5, 5), between(-5, 5));
        const int width = between(1, 8);
        const QImage fast = drawn(offset, [&](QPainter& painter) {
            drawStraightLine(painter, from, to, kOutline, width);
        });
        const QImage plain =
            drawn(offset, [&](QPainter& painter) { strokeLine(painter, from, to, width); });
        ASSERT_EQ(fast, plain) << from.x() << ',' << from.y() << " to " << to.x() << ',' << to.y()
                               << " width " << width;
    }
}

// Rounding errors of strokes show at coordinates that a small picture does not have.
TEST(StraightLine, IsTheStrokedLineInWidePicturesToo)
{
    std::mt19937 random(13);
    for (int round = 0; round < 800; ++round) {
        const QPoint from(10 + static_cast<int>(random() % 2980U), 8);
        const QPoint to(10 + static_cast<int>(random() % 2980U), 8);
        const int width = 1 + round % 4;
        const QImage fast = painted(3000, 16, [&](QPainter& painter) {
            drawStraightLine(painter, from, to, kOutline, width);
        });
        const QImage plain =
            painted(3000, 16, [&](QPainter& painter) { strokeLine(painter, from, to, width); });
        ASSERT_EQ(fast, plain) << from.x() << " to " << to.x() << " width " << width;
    }
}

} // namespace
} // namespace cdraw
} // namespace tovangl
