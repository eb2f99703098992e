// SPDX-License-Identifier: MIT
#include "input/CGraph1dSettings.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

TEST(ChartSettings, StartWithEverythingDrawnInTahomaAtElevenPixels)
{
    const CGraph1dSettings settings;
    EXPECT_EQ(settings.threshold, 0.0);
    EXPECT_EQ(settings.fontFamily, QString("Tahoma"));
    EXPECT_EQ(settings.fontSize, 11);
}

TEST(ChartSettings, StartInTheLocaleOfTheProcess)
{
    EXPECT_EQ(CGraph1dSettings().locale.name(), QLocale().name());
}

TEST(ChartSettings, GroupDigitsWhereTheProcessHasNoLocaleOfItsOwn)
{
    const QLocale before;
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(CGraph1dSettings().locale.toString(1234567LL), QString("1,234,567"));
    QLocale::setDefault(before);
}

struct CNamedLocale
{
    const char* language;
    const char* country;
    const char* name;
};

void PrintTo(const CNamedLocale& locale, std::ostream* stream)
{
    *stream << locale.language << ' ' << locale.country;
}

class ChartLocale : public ::testing::TestWithParam<CNamedLocale>
{};

TEST_P(ChartLocale, IsNamedByTheFirstTwoLettersOfLanguageAndCountry)
{
    CGraph1dSettings settings;
    settings.setLocale(QString("en"), QString("us")); // replaced
    settings.setLocale(QString(GetParam().language), QString(GetParam().country));
    EXPECT_EQ(settings.locale.name(), QString(GetParam().name));
}

INSTANTIATE_TEST_SUITE_P(ChartSettings, ChartLocale,
                         ::testing::Values(CNamedLocale{"de", "at", "de_AT"},
                                           CNamedLocale{"FR", "fr", "fr_FR"},
                                           CNamedLocale{"English", "gbr", "en_GB"},
                                           CNamedLocale{"qq", "qq", "C"},
                                           CNamedLocale{"", "", "C"}));

TEST(ChartLocale, GroupsDigitsWhereNoneIsKnownToo)
{
    CGraph1dSettings settings;
    settings.setLocale(QString("qq"), QString("qq"));
    EXPECT_EQ(settings.locale.toString(1234567LL), QString("1,234,567"));
}

TEST(ChartFont, HasAFamilyOfAtMost256Characters)
{
    CGraph1dSettings settings;
    settings.setFont(QString(1000, QLatin1Char('x')), 12);
    EXPECT_EQ(settings.fontFamily, QString(256, QLatin1Char('x')));
}

TEST(ChartFont, HasAnySizeThatIsSet)
{
    CGraph1dSettings settings;
    settings.setFont(QString("Tahoma"), -7);
    EXPECT_EQ(settings.fontSize, -7);
}

} // namespace
} // namespace tovangl
