// SPDX-License-Identifier: MIT
// What a chart is drawn from: its items, and what bars and pies start with.
#include "input/CBarInput.h"
#include "input/CGraph1dInput.h"
#include "input/CPieInput.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

const QColor kPalette[] = {
    QColor(23, 52, 124),  QColor(91, 115, 176),  QColor(174, 191, 234),
    QColor(254, 102, 13), QColor(254, 184, 109), QColor(255, 226, 182),
};

const QColor kNoColor;
const QColor kBrown(150, 90, 30);

class ChartInput : public ::testing::Test
{
protected:
    QColor addedFill(const QColor& color)
    {
        m_input.addItem(1, QString(), color, kNoColor);
        return m_input.fillColor(m_input.items.size() - 1);
    }
    QColor addedOutline(const QColor& color)
    {
        m_input.addItem(1, QString(), color, kNoColor);
        return m_input.outlineColor(m_input.items.size() - 1);
    }

    CGraph1dInput m_input;
};

TEST_F(ChartInput, KeepsValueCaptionAndColours)
{
    m_input.addItem(-42, QString("caption"), QColor(1, 2, 3), QColor(4, 5, 6));
    EXPECT_EQ(m_input.items[0].value, -42);
    EXPECT_EQ(m_input.items[0].text, QString("caption"));
    EXPECT_EQ(m_input.fillColor(0), QColor(1, 2, 3));
    EXPECT_EQ(m_input.outlineColor(0), QColor(4, 5, 6));
}

TEST_F(ChartInput, AppendsItemsAtTheEnd)
{
    for (const long long value : {3, 1, 2})
        m_input.addItem(value, QString(), kNoColor, kNoColor);
    EXPECT_EQ(m_input.items[0].value, 3);
    EXPECT_EQ(m_input.items[2].value, 2);
}

CLeftOut leftOut(std::initializer_list<long long> values)
{
    CLeftOut sum;
    for (const long long value : values)
        sum.add(value);
    return sum;
}

TEST_F(ChartInput, GathersWhatIsLeftOutUnderACaption)
{
    m_input.settings.othersCaption = QString("others");
    const auto others = m_input.gatherOthers(leftOut({3, 4}));
    ASSERT_TRUE(others);
    EXPECT_EQ(others->value, 7);
    EXPECT_EQ(others->text, QString("others"));
    EXPECT_TRUE(m_input.items.empty());
}

TEST_F(ChartInput, GathersZerosToo)
{
    m_input.settings.othersCaption = QString("others");
    EXPECT_TRUE(m_input.gatherOthers(leftOut({0})));
}

TEST_F(ChartInput, HasNoOthersWithoutACaptionOrWithoutAnythingLeftOut)
{
    EXPECT_FALSE(m_input.gatherOthers(leftOut({3, 4})));
    m_input.settings.othersCaption = QString("others");
    EXPECT_FALSE(m_input.gatherOthers(CLeftOut()));
}

TEST_F(ChartInput, OthersHaveNoColourOfAnItem)
{
    m_input.settings.othersCaption = QString("others");
    const QColor color = m_input.gatherOthers(leftOut({1}))->color;
    EXPECT_TRUE(color.isValid());
    EXPECT_LT(color.hsvSaturation(), 30);
    for (const QColor& ofPalette : kPalette)
        EXPECT_NE(color, ofPalette);
}

TEST_F(ChartInput, OutlinesAreTwoThirdsAsBrightAsTheFillWhereNoneIsSet)
{
    EXPECT_EQ(addedOutline(kBrown), kBrown.darker(150));
    EXPECT_EQ(addedOutline(QColor(240, 120, 60)).rgb(), qRgb(160, 80, 40));
}

TEST_F(ChartInput, DefaultColoursAreThreeBluesThenThreeOrangesAndBeginAnew)
{
    for (int round = 0; round < 2; ++round) {
        for (const QColor& color : kPalette)
            EXPECT_EQ(addedFill(kNoColor), color);
    }
}

TEST_F(ChartInput, AnItemWithItsOwnColourUsesUpItsDefaultDeliberately)
{
    addedFill(kNoColor);
    addedFill(QColor(9, 9, 9));
    EXPECT_EQ(addedFill(kNoColor), kPalette[2]);
}

TEST_F(ChartInput, APaletteReplacesTheDefaultColoursOfItemsAddedBeforeIt)
{
    for (int i = 0; i < 3; ++i)
        m_input.addItem(1, QString(), kNoColor, kNoColor);
    m_input.settings.colors.palette = {QColor(1, 1, 1), QColor(2, 2, 2)};
    EXPECT_EQ(m_input.fillColor(1), QColor(2, 2, 2));
    EXPECT_EQ(m_input.fillColor(2), QColor(1, 1, 1));
}

TEST_F(ChartInput, AColourOfAPaletteThatIsNotSetIsTheDefaultOfThatItem)
{
    m_input.settings.colors.palette = {QColor(1, 1, 1), kNoColor};
    addedFill(kNoColor);
    EXPECT_EQ(addedFill(kNoColor), kPalette[1]);
}

TEST_F(ChartInput, TheOutlineColourOfTheChartIsThatOfItemsWithoutTheirOwn)
{
    m_input.settings.colors.outline = Qt::red;
    EXPECT_EQ(addedOutline(kBrown), QColor(Qt::red));
    m_input.addItem(1, QString(), kBrown, Qt::blue);
    EXPECT_EQ(m_input.outlineColor(1), QColor(Qt::blue));
}

TEST_F(ChartInput, DefaultColoursStartAgainWithoutItems)
{
    addedFill(kNoColor);
    m_input.items.clear();
    EXPECT_EQ(addedFill(kNoColor), kPalette[0]);
}

TEST(BarInput, StandingBarsHaveNumbersWithPrefixesAndNoOverlaps)
{
    const CBarInput input(BarKind::Standing, false);
    EXPECT_EQ(int(input.horizontalAxis.properties), 1 + 2 + 128);
    EXPECT_EQ(int(input.verticalAxis.properties), 1 + 2 + 32 + 128);
}

TEST(BarInput, LyingBarsHaveAValueAxisThatIsALineAlone)
{
    const CBarInput input(BarKind::Lying, false);
    EXPECT_EQ(int(input.horizontalAxis.properties), 1 + 4096);
    EXPECT_EQ(int(input.verticalAxis.properties), 1 + 2 + 128);
}

TEST(BarInput, StartsWithEverythingLeftToTheLayout)
{
    const CBarInput input(BarKind::Standing, true);
    EXPECT_TRUE(input.settings.hasBackground);
    EXPECT_EQ(input.horizontalAxis.title, QString());
    EXPECT_EQ(input.verticalAxis.title, QString());
    EXPECT_FALSE(input.settings.colors.text.isValid());
    EXPECT_EQ(input.position, QPoint(-1, -1));
    EXPECT_EQ(input.barWidth, 0);
}

TEST(PieInput, RemovesOverlapsShowsSizesAndHasBlackLinesAtFirst)
{
    const CPieInput input(true);
    EXPECT_TRUE(input.settings.hasBackground);
    EXPECT_EQ(int(input.options), 384);
    EXPECT_FALSE(input.settings.colors.outline.isValid());
    EXPECT_FALSE(input.settings.colors.text.isValid());
    EXPECT_EQ(input.settings.colors.labelLine, QColor(Qt::black));
}

} // namespace
} // namespace tovangl
