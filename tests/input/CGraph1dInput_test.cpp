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
    const CGraph1dItem& added(const QColor& color, const QColor& outline = kNoColor)
    {
        m_input.addItem(1, QString(), color, outline);
        return m_input.items.back();
    }

    CGraph1dInput m_input;
};

TEST_F(ChartInput, KeepsValueCaptionAndColours)
{
    m_input.addItem(-42, QString("caption"), QColor(1, 2, 3), QColor(4, 5, 6));
    EXPECT_EQ(m_input.items[0].value, -42);
    EXPECT_EQ(m_input.items[0].text, QString("caption"));
    EXPECT_EQ(m_input.items[0].color, QColor(1, 2, 3));
    EXPECT_EQ(m_input.items[0].outlineColor, QColor(4, 5, 6));
}

TEST_F(ChartInput, AppendsItemsAtTheEnd)
{
    for (const long long value : {3, 1, 2})
        m_input.addItem(value, QString(), kNoColor, kNoColor);
    EXPECT_EQ(m_input.items[0].value, 3);
    EXPECT_EQ(m_input.items[2].value, 2);
}

TEST_F(ChartInput, OutlinesAreTwoThirdsAsBrightAsTheFillWhereNoneIsSet)
{
    EXPECT_EQ(added(kBrown).outlineColor, kBrown.darker(150));
    EXPECT_EQ(added(QColor(240, 120, 60)).outlineColor.rgb(), qRgb(160, 80, 40));
}

TEST_F(ChartInput, DefaultColoursAreThreeBluesThenThreeOrangesAndBeginAnew)
{
    for (int round = 0; round < 2; ++round) {
        for (const QColor& color : kPalette)
            EXPECT_EQ(added(kNoColor).color, color);
    }
}

TEST_F(ChartInput, AnItemWithItsOwnColourUsesUpItsDefaultDeliberately)
{
    added(kNoColor);
    added(QColor(9, 9, 9));
    EXPECT_EQ(added(kNoColor).color, kPalette[2]);
}

TEST_F(ChartInput, DefaultColoursStartAgainWithoutItems)
{
    added(kNoColor);
    m_input.items.clear();
    EXPECT_EQ(added(kNoColor).color, kPalette[0]);
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
    EXPECT_TRUE(input.hasBackground);
    EXPECT_EQ(input.horizontalAxis.title, QString());
    EXPECT_EQ(input.verticalAxis.title, QString());
    EXPECT_FALSE(input.textColor.isValid());
    EXPECT_EQ(input.position, QPoint(-1, -1));
    EXPECT_EQ(input.barWidth, 0);
}

TEST(PieInput, RemovesOverlapsShowsSizesAndHasBlackLinesAtFirst)
{
    const CPieInput input(true);
    EXPECT_TRUE(input.hasBackground);
    EXPECT_EQ(int(input.options), 384);
    EXPECT_FALSE(input.outlineColor.isValid());
    EXPECT_FALSE(input.textColor.isValid());
    EXPECT_EQ(input.labelLineColor, QColor(Qt::black));
}

} // namespace
} // namespace tovangl
