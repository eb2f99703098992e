// SPDX-License-Identifier: MIT
#include "core/CGraph1dBase.h"
#include "support/CTestChart.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace tovangl {
namespace {

QString localeNameOf(const char* language, const char* country)
{
    CTestChart chart;
    chart.setLocale(QString::fromUtf8(language), QString::fromUtf8(country));
    return chart.locale()->name();
}

TEST(ChartDefaults, ThresholdIsZero)
{
    EXPECT_EQ(CTestChart().threshold(), 0.0);
}

TEST(ChartDefaults, ThereIsNoSurfaceYet)
{
    const CTestChart chart;
    EXPECT_EQ(chart.width(), -1);
    EXPECT_EQ(chart.height(), -1);
}

TEST(ChartDefaults, OneDevicePixelForEachPixelOfASettingOnScreen)
{
    const CTestChart chart;
    EXPECT_EQ(chart.scale(), 1);
    EXPECT_EQ(chart.outputDevice(), CGraph1dBase::ScreenDevice);
}

TEST(ChartDefaults, TheFontIsTahomaAtElevenPixels)
{
    const CTestChart chart;
    EXPECT_EQ(chart.fontFamily(), QString("Tahoma"));
    EXPECT_EQ(chart.fontSize(), 11);
}

TEST(ChartDefaults, TheLocaleIsTheOneOfTheProcess)
{
    EXPECT_EQ(CTestChart().locale()->name(), QLocale().name());
}

TEST(ChartLocale, LanguageAndCountryMakeTheName)
{
    EXPECT_EQ(localeNameOf("de", "at"), QString("de_AT"));
}

TEST(ChartLocale, CaseIsCorrected)
{
    EXPECT_EQ(localeNameOf("FR", "fr"), QString("fr_FR"));
}

TEST(ChartLocale, OnlyTheFirstTwoCharactersCount)
{
    EXPECT_EQ(localeNameOf("English", "gbr"), QString("en_GB"));
}

TEST(ChartLocale, AnUnknownNameGivesTheCLocale)
{
    EXPECT_EQ(localeNameOf("qq", "qq"), QString("C"));
}

TEST(ChartLocale, EmptyStringsGiveTheCLocale)
{
    EXPECT_EQ(localeNameOf("", ""), QString("C"));
}

TEST(ChartLocale, ReplacesTheOneBefore)
{
    CTestChart chart;
    chart.setLocale(QString("de"), QString("at"));
    chart.setLocale(QString("en"), QString("us"));
    EXPECT_EQ(chart.locale()->name(), QString("en_US"));
}

TEST(ChartLocale, EveryLocaleGroupsDigitsTheCLocaleToo)
{
    CTestChart chart;
    chart.setLocale(QString("qq"), QString("qq"));
    EXPECT_EQ(chart.locale()->toString(1234567LL), QString("1,234,567"));
}

TEST(ChartLocale, TheDefaultLocaleGroupsDigitsWhereTheProcessHasNoOther)
{
    const QLocale before;
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(CTestChart().locale()->toString(1234567LL), QString("1,234,567"));
    QLocale::setDefault(before);
}

TEST(ChartFont, AFamilyIsCutAt256Characters)
{
    CTestChart chart;
    chart.setFont(QString(1000, QLatin1Char('x')), 12);
    EXPECT_EQ(chart.fontFamily(), QString(256, QLatin1Char('x')));
}

TEST(ChartFont, TheSizeIsKeptAsItIs)
{
    CTestChart chart;
    chart.setFont(QString("Tahoma"), -7);
    EXPECT_EQ(chart.fontSize(), -7);
}

TEST(ChartThreshold, IsKeptAsItIsUntilTheNextDrawing)
{
    CTestChart chart;
    chart.setThreshold(-3.5);
    EXPECT_EQ(chart.threshold(), -3.5);
}

} // namespace
} // namespace tovangl
