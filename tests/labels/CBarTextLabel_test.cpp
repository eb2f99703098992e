// SPDX-License-Identifier: MIT
#include "core/CBarGraphItem.h"
#include "labels/CBarTextLabel.h"
#include "support/chart_font.h"

#include <QImage>
#include <QLocale>
#include <QPainter>
#include <QTextOption>

#include <gtest/gtest.h>

namespace tovangl {
namespace {

const QLocale kLocale(QLocale::English, QLocale::UnitedStates);

TEST(CBarTextLabel, OfAnItemHasItsCaptionAndNoValue)
{
    CBarGraphItem item(7, QString("caption"), Qt::red);
    const CBarTextLabel label(&item, &kLocale);
    EXPECT_EQ(label.getText(), QString("caption"));
    EXPECT_EQ(label.getItem(), &item);
    EXPECT_EQ(label.getValue(), 0);
}

TEST(CBarTextLabel, OfATextHasNoItem)
{
    const CBarTextLabel label(QString("title"), &kLocale);
    EXPECT_EQ(label.getText(), QString("title"));
    EXPECT_EQ(label.getItem(), nullptr);
}

TEST(CBarTextLabel, OfANumberWritesItInItsFormat)
{
    const CBarTextLabel plain(12345, PlainNumber, &kLocale);
    const CBarTextLabel prefixed(12345, PrefixedWhole, &kLocale);
    EXPECT_EQ(plain.getText(), QString("12,345"));
    EXPECT_EQ(prefixed.getText(), QString("12 K"));
    EXPECT_EQ(prefixed.getValue(), 12345);
    EXPECT_EQ(prefixed.getItem(), nullptr);
}

TEST(CBarTextLabel, OfANullItemHasNoTextAndNoItem)
{
    const CBarTextLabel label(static_cast<CGraph1dItem*>(nullptr), &kLocale);
    EXPECT_EQ(label.getText(), QString());
    EXPECT_EQ(label.getItem(), nullptr);
    EXPECT_EQ(label.getValue(), 0);
}

TEST(CBarTextLabel, OfANullItemDrawsNothingAndLeavesABystandersRectangle)
{
    constexpr QRgb kWhite = 0xffffffff;
    constexpr QRect kDrawnBefore(1, 2, 3, 4);
    CBarGraphItem bystander(7, QString("caption"), Qt::red);
    bystander.setItemRect(kDrawnBefore);
    CBarTextLabel label(static_cast<CGraph1dItem*>(nullptr), &kLocale);
    QImage image(60, 20, QImage::Format_ARGB32);
    image.fill(kWhite);
    const QImage blank = image.copy();
    QPainter painter(&image);
    painter.setFont(chartFont("DejaVu Sans", 11));
    label.draw(painter, image.rect(), QTextOption());
    painter.end();
    EXPECT_EQ(image, blank);
    EXPECT_EQ(bystander.itemRect(), kDrawnBefore);
}

TEST(CBarTextLabel, OfHalfAKiloMoreIsRoundedInItsTextAndExactInItsValue)
{
    const CBarTextLabel above(1536, PrefixedWhole, &kLocale);
    EXPECT_EQ(above.getText(), QString("2 K"));
    EXPECT_EQ(above.getValue(), 1536);
    const CBarTextLabel below(-1536, PrefixedWhole, &kLocale);
    EXPECT_EQ(below.getText(), QString("-2 K"));
    EXPECT_EQ(below.getValue(), -1536);
}

TEST(CBarTextLabel, StartsAtTheAxisStart)
{
    const CBarTextLabel label(QString("title"), &kLocale);
    EXPECT_EQ(label.tickCoord(), 0);
    EXPECT_EQ(label.orientedPos(), COrientedCoord());
    EXPECT_EQ(label.scale(), 1);
}

TEST(CBarTextLabel, KeepsItsPlaceOnTheAxis)
{
    CBarTextLabel label(QString("title"), &kLocale);
    label.setTickCoord(42);
    label.setOrientedPos(COrientedCoord(3, 4));
    EXPECT_EQ(label.tickCoord(), 42);
    EXPECT_EQ(label.orientedPos(), COrientedCoord(3, 4));
}

} // namespace
} // namespace tovangl
