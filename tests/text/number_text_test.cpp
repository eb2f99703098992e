// SPDX-License-Identifier: MIT
#include "text/number_text.h"

#include <QLocale>
#include <QString>

#include <gtest/gtest.h>
#include <limits>

namespace tovangl {
namespace {

constexpr long long kMost = std::numeric_limits<long long>::max();
constexpr long long kLeast = std::numeric_limits<long long>::min();

QLocale localeOf(const char* name)
{
    return QLocale(QString::fromLatin1(name));
}

std::string written(long long value, int format, const CKilo& kilo = kKilo1024,
                    const char* locale = "en_US")
{
    return numberText(value, format, localeOf(locale), kilo).toStdString();
}

struct CWorkedNumber
{
    long long value;
    const char* plain;
    const char* whole1024;
    const char* whole1000;
    const char* fromTen1024;
    const char* fromTen1000;
    const char* oneDecimal1024;
    const char* oneDecimal1000;
};

void PrintTo(const CWorkedNumber& number, std::ostream* stream)
{
    *stream << number.value;
}

class WorkedNumber : public ::testing::TestWithParam<CWorkedNumber>
{};

TEST_P(WorkedNumber, PlainNumber)
{
    EXPECT_EQ(written(GetParam().value, PlainNumber, kKilo1024), GetParam().plain);
    EXPECT_EQ(written(GetParam().value, PlainNumber, kKilo1000), GetParam().plain);
}

TEST_P(WorkedNumber, PrefixedWhole)
{
    EXPECT_EQ(written(GetParam().value, PrefixedWhole, kKilo1024), GetParam().whole1024);
    EXPECT_EQ(written(GetParam().value, PrefixedWhole, kKilo1000), GetParam().whole1000);
}

TEST_P(WorkedNumber, PrefixedFromTen)
{
    EXPECT_EQ(written(GetParam().value, PrefixedFromTen, kKilo1024), GetParam().fromTen1024);
    EXPECT_EQ(written(GetParam().value, PrefixedFromTen, kKilo1000), GetParam().fromTen1000);
}

TEST_P(WorkedNumber, PrefixedOneDecimal)
{
    EXPECT_EQ(written(GetParam().value, PrefixedOneDecimal, kKilo1024), GetParam().oneDecimal1024);
    EXPECT_EQ(written(GetParam().value, PrefixedOneDecimal, kKilo1000), GetParam().oneDecimal1000);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(NumberText, WorkedNumber, ::testing::Values(
    CWorkedNumber{0, "0", "0", "0", "0", "0", "0", "0"},
    CWorkedNumber{9, "9", "9", "9", "9", "9", "9", "9"},
    CWorkedNumber{10, "10", "10", "10", "0.01 K", "0.0 K", "10", "10"},
    CWorkedNumber{512, "512", "512", "512", "0.50 K", "0.5 K", "512", "512"},
    CWorkedNumber{1000, "1,000", "1,000", "1 K", "0.98 K", "1.0 K", "1,000", "1.0 K"},
    CWorkedNumber{1024, "1,024", "1 K", "1 K", "1.00 K", "1.0 K", "1.0 K", "1.0 K"},
    CWorkedNumber{5000, "5,000", "5 K", "5 K", "4.88 K", "5.0 K", "4.9 K", "5.0 K"},
    CWorkedNumber{12345, "12,345", "12 K", "12 K", "0.01 M", "0.0 M", "12.1 K", "12.3 K"},
    CWorkedNumber{150000, "150,000", "146 K", "150 K", "0.14 M", "0.1 M", "146 K", "150 K"},
    CWorkedNumber{1048575, "1,048,575", "1,024 K", "1 M", "1.00 M", "1.0 M", "1,024.0 K", "1.0 M"},
    CWorkedNumber{5000000, "5,000,000", "5 M", "5 M", "4.77 M", "5.0 M", "4.8 M", "5.0 M"},
    CWorkedNumber{-5000, "-5,000", "-5 K", "-5 K", "-4.88 K", "-5.0 K", "-4.9 K", "-5.0 K"},
    CWorkedNumber{9223372036854775807LL, "9,223,372,036,854,775,807", "8 E", "9 E", "8.00 E", "9.2 E", "8.0 E", "9.2 E"}));
// clang-format on

TEST(NumberText, GroupsTheDigitsWhereALocaleWantsTwoBeforeTheFirstSeparator)
{
    EXPECT_EQ(written(1234, PlainNumber, kKilo1024, "es_ES"), "1.234");
    EXPECT_EQ(written(-1234567, PlainNumber, kKilo1024, "es_ES"), "-1.234.567");
    EXPECT_EQ(written(1023, PrefixedWhole, kKilo1024, "es_ES"), "1.023");
    EXPECT_EQ(written(1048575, PrefixedOneDecimal, kKilo1024, "es_ES"), "1.024,0 K");
}

TEST(NumberText, RoundsOneAndAHalfKiloToTwoOnBothSidesOfZero)
{
    EXPECT_EQ(written(1536, PrefixedWhole, kKilo1024), "2 K");
    EXPECT_EQ(written(-1536, PrefixedWhole, kKilo1024), "-2 K");
}

TEST(NumberText, GroupsByTwoWhereALocaleDoes)
{
    EXPECT_EQ(written(1234567, PlainNumber, kKilo1024, "en_IN"), "12,34,567");
}

TEST(NumberText, APlainNegativeNumberHasTheSignOfTheLocale)
{
    const QString minus = QString(QChar(0x2212));
    EXPECT_EQ(written(-5000, PlainNumber, kKilo1024, "sv_SE").substr(0, 3), minus.toStdString());
}

TEST(NumberText, APrefixedNegativeNumberHasAnAsciiHyphenDeliberately)
{
    EXPECT_EQ(written(-5, PrefixedWhole, kKilo1024, "sv_SE"), "-5");
    EXPECT_EQ(written(-5, PrefixedFromTen, kKilo1024, "sv_SE"), "-5");
    EXPECT_EQ(written(-5, PrefixedOneDecimal, kKilo1024, "sv_SE"), "-5");
}

TEST(NumberText, PrefixedFromTenScalesFromTenButDividesByAWholeKiloDeliberately)
{
    EXPECT_EQ(written(10, PrefixedFromTen, kKilo1024), "0.01 K");
    EXPECT_EQ(written(10, PrefixedFromTen, kKilo1000), "0.0 K");
}

TEST(NumberText, ThousandIsBelowAKiloOf1024)
{
    EXPECT_EQ(written(1000, PrefixedOneDecimal, kKilo1024), "1,000");
    EXPECT_EQ(written(1023, PrefixedOneDecimal, kKilo1024), "1,023");
    EXPECT_EQ(written(1000, PrefixedOneDecimal, kKilo1000), "1.0 K");
}

TEST(NumberText, TheDecimalGoesWhereTheIntegerPartHasExactlyThreeCharactersDeliberately)
{
    EXPECT_EQ(written(150000, PrefixedOneDecimal), "146 K");
    EXPECT_EQ(written(12345, PrefixedOneDecimal), "12.1 K");
    EXPECT_EQ(written(1048575, PrefixedOneDecimal), "1,024.0 K");
    EXPECT_EQ(written(2048, PrefixedOneDecimal), "2.0 K");
}

TEST(NumberText, TheDecimalIsCutAtTheLocalesOwnPoint)
{
    EXPECT_EQ(written(150000, PrefixedOneDecimal, kKilo1024, "de_DE"), "146 K");
    EXPECT_EQ(written(12345, PrefixedOneDecimal, kKilo1024, "de_DE"), "12,1 K");
    EXPECT_EQ(written(1048575, PrefixedOneDecimal, kKilo1024, "de_DE"), "1.024,0 K");
}

TEST(NumberText, TheMostNegativeValueIsNeverScaledAndGetsTwoSignsDeliberately)
{
    for (const int format : {PrefixedWhole, PrefixedFromTen, PrefixedOneDecimal}) {
        EXPECT_EQ(written(kLeast, format, kKilo1024), "--9,223,372,036,854,775,808") << format;
        EXPECT_EQ(written(kLeast, format, kKilo1000), "--9,223,372,036,854,775,808") << format;
    }
}

TEST(NumberText, TheMostNegativeValueIsPlainAsItIs)
{
    EXPECT_EQ(written(kLeast, PlainNumber), "-9,223,372,036,854,775,808");
}

TEST(NumberText, TheNextValueIsScaledAsAnyOther)
{
    EXPECT_EQ(written(-kMost, PrefixedWhole, kKilo1024), "-8 E");
    EXPECT_EQ(written(-kMost, PrefixedOneDecimal, kKilo1000), "-9.2 E");
}

TEST(NumberText, EachPrefixFollowsTheOneBefore)
{
    const char* prefixes[] = {"", " K", " M", " G", " T", " P", " E"};
    constexpr int kBitsOfAKilo = 10;
    int bits = 0;
    for (const char* prefix : prefixes) {
        EXPECT_EQ(written(1LL << bits, PrefixedWhole), std::string("1") + prefix);
        bits += kBitsOfAKilo;
    }
}

TEST(NumberText, NothingIsScaledBeyondTheLastPrefix)
{
    constexpr CKilo kSmallKilo{0, 2};
    EXPECT_EQ(written(1LL << 62, PrefixedWhole, kSmallKilo), "18,014,398,509,481,984 Y");
}

TEST(NumberText, RoundingMayLeaveAWholeKiloUnscaledDeliberately)
{
    EXPECT_EQ(written(1048575, PrefixedWhole, kKilo1024), "1,024 K");
    EXPECT_EQ(written(999999, PrefixedWhole, kKilo1000), "1,000 K");
}

TEST(NumberText, AnUnknownFormatKeepsTheValueButGetsSignAndPrefix)
{
    constexpr int kUnknownFormat = 7;
    EXPECT_EQ(written(5000, kUnknownFormat), "5,000 K");
    EXPECT_EQ(written(-5000, kUnknownFormat), "--5,000 K");
    EXPECT_EQ(written(999, kUnknownFormat), "999");
    EXPECT_EQ(written(-999, -1), "--999");
}

TEST(NumberText, AKiloThatIsNotTheBaseOf1000HasTwoDecimalsDeliberately)
{
    constexpr CKilo kMismatched{2, 1000};
    EXPECT_EQ(written(5000, PrefixedFromTen, kMismatched), "5.00 K");
}

TEST(NumberText, DigitsAreThoseOfTheLocale)
{
    const QString text = numberText(1234, PlainNumber, localeOf("ar_EG"), kKilo1024);
    EXPECT_EQ(text.at(0), QChar(0x0661));
}

} // namespace
} // namespace tovangl
