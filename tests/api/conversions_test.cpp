// SPDX-License-Identifier: MIT
#include "api/conversions.h"

#include <gtest/gtest.h>
#include <limits>

namespace tovangl {
namespace {

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

TEST(ToQString, DecodesUtf8)
{
    EXPECT_EQ(toQString("\xc3\xa4\xe2\x82\xac\xf0\x9f\x98\x80"), QString::fromUtf8("ä€😀"));
}

TEST(ToQString, KeepsANulInside)
{
    const QString text = toQString(std::string("a\0b", 3));
    EXPECT_EQ(text.size(), 3);
    EXPECT_EQ(text.at(1), QChar(0));
}

TEST(ToQString, TurnsBrokenSequencesIntoReplacementCharacters)
{
    EXPECT_EQ(toQString("a\xff\x62"), QString("a") + QChar(0xfffd) + QString("b"));
    EXPECT_TRUE(toQString("\xed\xa0\x80").contains(QChar(0xfffd)));
    EXPECT_TRUE(toQString("a\xe2\x82").contains(QChar(0xfffd)));
}

TEST(ToQString, OfNothingIsEmpty)
{
    EXPECT_TRUE(toQString("").isEmpty());
}

TEST(ToQColor, IsOpaque)
{
    EXPECT_EQ(toQColor(Color{1, 2, 3}), QColor(1, 2, 3, 255));
    EXPECT_EQ(toQColor(Color{0, 255, 0}), QColor(0, 255, 0, 255));
}

TEST(ToQColor, IsNotSetWhereAChannelIsOutOfRange)
{
    EXPECT_FALSE(toQColor(Color{-1, 2, 3}).isValid());
    EXPECT_FALSE(toQColor(Color{1, 256, 3}).isValid());
    EXPECT_FALSE(toQColor(Color{1, 2, kMost}).isValid());
    EXPECT_FALSE(toQColor(Color{kLeast, 2, 3}).isValid());
}

TEST(ToRectangle, CountsBothEdges)
{
    const Rectangle rect = toRectangle(QRect(QPoint(5, 6), QPoint(7, 9)));
    EXPECT_EQ(rect.x, 5);
    EXPECT_EQ(rect.y, 6);
    EXPECT_EQ(rect.width, 3);
    EXPECT_EQ(rect.height, 4);
}

TEST(ToRectangle, TheNullRectangleIsAllZero)
{
    const Rectangle rect = toRectangle(QRect());
    EXPECT_EQ(rect.x, 0);
    EXPECT_EQ(rect.y, 0);
    EXPECT_EQ(rect.width, 0);
    EXPECT_EQ(rect.height, 0);
}

TEST(ToRectangle, ClampsWhatAnIntCannotHold)
{
    const Rectangle rect = toRectangle(QRect(QPoint(kLeast, kMost), QPoint(kMost, kLeast)));
    EXPECT_EQ(rect.width, kMost);
    EXPECT_EQ(rect.height, kLeast);
}

TEST(AssignRectangles, ReplacesTheContent)
{
    std::list<Rectangle> list(3);
    assignRectangles(list, {QRect(1, 2, 3, 4)});
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list.front().height, 4);
}

} // namespace
} // namespace tovangl
