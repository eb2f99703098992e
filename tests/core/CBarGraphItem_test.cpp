// SPDX-License-Identifier: MIT
#include "core/CBarGraphItem.h"
#include "core/CPieGraphItem.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

TEST(CBarGraphItem, StartsWithoutRectangles)
{
    const CBarGraphItem item(1, QString("bar"), Qt::red);
    EXPECT_EQ(item.barRect(), QRect());
    EXPECT_EQ(item.barLabelRect(), QRect());
}

TEST(CBarGraphItem, KeepsAnOutlineOfItsOwn)
{
    const CBarGraphItem item(1, QString("bar"), Qt::red, QColor(1, 2, 3));
    EXPECT_EQ(item.outlineColor(), QColor(1, 2, 3));
}

TEST(CBarGraphItem, AnInvalidOutlineBecomesTheDarkerFill)
{
    const CBarGraphItem item(1, QString("bar"), QColor(240, 120, 60), QColor());
    EXPECT_EQ(item.outlineColor().rgb(), qRgb(160, 80, 40));
}

TEST(CBarGraphItem, KeepsWhatIsSet)
{
    CBarGraphItem item(1, QString("bar"), Qt::red);
    item.setOutlineColor(Qt::blue);
    item.setBarRect(QRect(1, 2, 3, 4));
    item.setBarLabelRect(QRect(5, 6, 7, 8));
    EXPECT_EQ(item.outlineColor(), QColor(Qt::blue));
    EXPECT_EQ(item.barRect(), QRect(1, 2, 3, 4));
    EXPECT_EQ(item.barLabelRect(), QRect(5, 6, 7, 8));
}

TEST(CPieBaseItem, KeepsItsAngles)
{
    CPieBaseItem item(1, QString("slice"), Qt::red);
    item.setStartAngle(2880);
    item.setSpanAngle(-720);
    EXPECT_EQ(item.startAngle(), 2880);
    EXPECT_EQ(item.spanAngle(), -720);
}

TEST(CPieGraphItem, StartsWithAllGeometryAtZero)
{
    const CPieGraphItem item(1, QString("slice"), Qt::red);
    EXPECT_EQ(item.pixelGeometry(), QRect(QPoint(0, 0), QPoint(0, 0)));
    EXPECT_EQ(item.geometry(), QRectF());
}

} // namespace
} // namespace tovangl
