// SPDX-License-Identifier: MIT
#include "input/CGraph1dSettings.h"
#include "layout/CRequest.h"
#include "layout/chart_title.h"
#include "support/CTestMeasurer.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr CRequest kPicture = {400, 300};

std::optional<CChartTitle> titleOf(const QString& text, const CRequest& request = kPicture)
{
    CGraph1dSettings settings;
    settings.title = text;
    CTestMeasurer measurer(chartFont("Tahoma", settings.fontSize * request.scale));
    return placeTitle(settings, request, measurer);
}

TEST(ChartTitle, IsOneBoldLineCentredBelowTheMargin)
{
    const auto title = titleOf("Sales");
    ASSERT_TRUE(title);
    CTestMeasurer measurer;
    EXPECT_TRUE(title->text.isBold);
    EXPECT_EQ(title->rect.size(), measurer.boundingRect("Sales", true).toAlignedRect().size());
    EXPECT_EQ(title->rect.top(), kMargin);
    EXPECT_NEAR(title->rect.left(), kPicture.width - 1 - title->rect.right(), 1);
}

TEST(ChartTitle, LeavesTheRestOfThePictureToTheChart)
{
    const auto title = titleOf("Sales");
    ASSERT_TRUE(title);
    EXPECT_EQ(title->chartTop(), kMargin + title->rect.height());
}

TEST(ChartTitle, IsShortenedToTheDistanceOfTheMargins)
{
    const auto title = titleOf(QString("Sales of ").repeated(40));
    ASSERT_TRUE(title);
    EXPECT_TRUE(title->text.text.startsWith("Sales of Sales"));
    EXPECT_TRUE(title->text.text.endsWith("..."));
    EXPECT_GE(title->rect.left(), kMargin);
    EXPECT_LE(title->rect.right(), kPicture.width - 1 - kMargin);
    EXPECT_GT(title->rect.width(), kPicture.width - 4 * kMargin);
}

TEST(ChartTitle, HasTheColourOfTheTextsOrIsBlack)
{
    CGraph1dSettings settings;
    settings.title = QString("Sales");
    CTestMeasurer measurer;
    EXPECT_EQ(placeTitle(settings, kPicture, measurer)->text.color, QColor(Qt::black));
    settings.colors.text = QColor(1, 2, 3);
    EXPECT_EQ(placeTitle(settings, kPicture, measurer)->text.color, QColor(1, 2, 3));
}

TEST(ChartTitle, GrowsWithTheScale)
{
    const auto title = titleOf("Sales", {800, 600, 2});
    ASSERT_TRUE(title);
    EXPECT_EQ(title->rect.top(), 2 * kMargin);
    EXPECT_GT(title->rect.width(), titleOf("Sales")->rect.width() * 3 / 2);
}

TEST(ChartTitle, IsLeftOutWhereNotOneCharacterFits)
{
    EXPECT_FALSE(titleOf("Sales", {2 * kMargin + 5, 300}));
    EXPECT_FALSE(titleOf("Sales", {1, 1}));
}

TEST(ChartTitle, IsOneLineWhateverItsText)
{
    const auto title = titleOf(QString("Sales\nand\tlosses") + QChar(0) + "in euros");
    ASSERT_TRUE(title);
    EXPECT_EQ(title->text.text, QString("Sales and losses in euros"));
    EXPECT_EQ(title->rect.height(), titleOf("Sales")->rect.height());
}

class NoTitle : public ::testing::TestWithParam<QString>
{};

TEST_P(NoTitle, IsPlaced)
{
    EXPECT_FALSE(titleOf(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(ChartTitle, NoTitle,
                         ::testing::Values(QString(), QString("   "), QString("\n\r\t"),
                                           QString(QChar(0)), QString(QChar(0x9c)),
                                           QString(QChar(0x2029))));

class AnyTitle : public ::testing::TestWithParam<QString>
{};

TEST_P(AnyTitle, StaysBetweenTheMargins)
{
    const QRect inside(QPoint(kMargin, kMargin),
                       QPoint(kPicture.width - 1 - kMargin, kPicture.height - 1));
    const auto title = titleOf(GetParam());
    ASSERT_TRUE(title);
    EXPECT_TRUE(inside.contains(title->rect));
}

INSTANTIATE_TEST_SUITE_P(
    ChartTitle, AnyTitle,
    ::testing::Values(QString("W"), QString("W").repeated(100000), QString("日本").repeated(50),
                      QString("العربية").repeated(30), QString::fromUtf8("\U0001f600").repeated(60),
                      QString("a\u0301").repeated(400), QString("\u202eright to left")));

} // namespace
} // namespace tovangl
