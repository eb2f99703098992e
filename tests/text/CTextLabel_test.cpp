// SPDX-License-Identifier: MIT
#include "support/CTestMeasurer.h"
#include "text/CTextLabel.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr CTextStyle kPlain;
constexpr CTextStyle kBold{true, false};
constexpr CTextStyle kFromLeft{false, true};

class TextLabel : public ::testing::Test
{
protected:
    CTextLabel label(const char* text, const CTextStyle& style = kPlain)
    {
        return CTextLabel(QString::fromUtf8(text), style, m_measurer);
    }
    QString adjusted(const CTextLabel& label, double width)
    {
        return label.getAdjustedText(width, m_measurer);
    }

    CTestMeasurer m_measurer{chartFont("DejaVu Sans", 12)};
};

TEST_F(TextLabel, WithoutATextIsEmptyAndHasNoExtent)
{
    EXPECT_EQ(CTextLabel().getText(), QString());
    EXPECT_EQ(CTextLabel().getBoundingRect(), QRectF());
}

TEST_F(TextLabel, IsMeasuredInItsOwnWeight)
{
    EXPECT_EQ(label("text").getBoundingRect(), m_measurer.boundingRect(QString("text"), false));
    EXPECT_EQ(label("text", kBold).getBoundingRect(),
              m_measurer.boundingRect(QString("text"), true));
}

TEST_F(TextLabel, TouchesEveryPixelOfItsExtent)
{
    const QRect pixels = label("text").wholePixelRect();
    const QRectF extent = label("text").getBoundingRect();
    EXPECT_TRUE(QRectF(pixels).contains(extent));
    EXPECT_LT(pixels.width(), extent.width() + 1);
}

TEST_F(TextLabel, FitsIntoItsOwnWidthAndIntoThatOfItsShortestCut)
{
    const CTextLabel caption = label("a long caption");
    const double shortest =
        label("a").getBoundingRect().width() + label("...").getBoundingRect().width();
    EXPECT_TRUE(caption.canFit(caption.getBoundingRect().width(), m_measurer));
    EXPECT_TRUE(caption.canFit(shortest, m_measurer));
    EXPECT_FALSE(caption.canFit(shortest - 1, m_measurer));
}

TEST_F(TextLabel, OfOneLetterFitsNoNarrowerRoom)
{
    const CTextLabel letter = label("W");
    EXPECT_FALSE(letter.canFit(letter.getBoundingRect().width() - 0.5, m_measurer));
}

TEST_F(TextLabel, IsAdjustedByACutAtTheEnd)
{
    const QString text = adjusted(label("a long caption"), 50);
    EXPECT_TRUE(text.startsWith(QString("a lo"))) << text.toStdString();
    EXPECT_TRUE(text.endsWith(QString("...")));
}

TEST_F(TextLabel, IsAdjustedByACutAtTheBeginningWhereAsked)
{
    const QString text = adjusted(label("a long caption", kFromLeft), 50);
    EXPECT_TRUE(text.startsWith(QString("...")));
    EXPECT_TRUE(text.endsWith(QString("tion"))) << text.toStdString();
}

TEST_F(TextLabel, StaysWholeWhereItFitsAndWhereNoCutOfItDoes)
{
    EXPECT_EQ(adjusted(label("a long caption "), 300), QString("a long caption "));
    EXPECT_EQ(adjusted(label("a long caption "), 3), QString("a long caption "));
}

TEST_F(TextLabel, IsPaintedUpToTheLongestMeasuredText)
{
    const QString longest(cdraw::kLongestMeasuredText, QLatin1Char('x'));
    const CTextLabel huge(longest + QString("more"), kPlain, m_measurer);
    EXPECT_EQ(adjusted(huge, huge.getBoundingRect().width()), longest);
}

} // namespace
} // namespace tovangl
