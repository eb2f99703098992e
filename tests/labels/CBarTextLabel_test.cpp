// SPDX-License-Identifier: MIT
#include "core/CBarGraphItem.h"
#include "labels/CBarTextLabel.h"

#include <QLocale>

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
