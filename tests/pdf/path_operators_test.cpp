// SPDX-License-Identifier: MIT
#include "pdf/path_operators.h"

#include <QPainterPath>
#include <QPen>
#include <QVector>

#include <algorithm>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

TEST(PathOperators, ALineStaysOpen)
{
    QPainterPath path(QPointF(1, 2));
    path.lineTo(3, 4.5);
    EXPECT_EQ(pathOperators(path), "1 2 m\n3 4.5 l\n");
}

TEST(PathOperators, AShapeThatEndsWhereItBeginsIsClosed)
{
    QPainterPath path;
    path.addRect(0, 0, 2, 1);
    EXPECT_EQ(pathOperators(path), "0 0 m\n2 0 l\n2 1 l\n0 1 l\n0 0 l\nh\n");
}

TEST(PathOperators, EveryShapeOfAPathIsClosed)
{
    QPainterPath path;
    path.addRect(0, 0, 2, 1);
    path.addRect(4, 4, 2, 1);
    const std::string operators = pathOperators(path);
    EXPECT_EQ(std::count(operators.begin(), operators.end(), 'h'), 2);
}

TEST(PathOperators, ACurveHasThreePoints)
{
    QPainterPath path(QPointF(0, 0));
    path.cubicTo(1, 1, 2, 2, 3, 3);
    path.cubicTo(4, 4, 5, 5, 6, 6);
    EXPECT_EQ(pathOperators(path), "0 0 m\n1 1 2 2 3 3 c\n4 4 5 5 6 6 c\n");
}

TEST(PathOperators, APenTellsItsWidthEndsAndCorners)
{
    EXPECT_EQ(penOperators(QPen(Qt::black, 4, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin)),
              "4 w 2 J 2 j [] 0 d\n");
    EXPECT_EQ(penOperators(QPen(Qt::black, 2, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin)),
              "2 w 0 J 0 j [] 0 d\n");
}

TEST(PathOperators, DashesAreAsLongAsThePenIsWide)
{
    QPen pen(Qt::black, 4);
    pen.setDashPattern(QVector<qreal>{0.5, 2.5});
    EXPECT_EQ(penOperators(pen), "4 w 2 J 2 j [2 10 ] 0 d\n");
}

TEST(PathOperators, APenWithoutWidthIsAPixelWide)
{
    EXPECT_EQ(penOperators(QPen(Qt::black, 0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin)),
              "1 w 1 J 1 j [] 0 d\n");
}

} // namespace
} // namespace tovangl
