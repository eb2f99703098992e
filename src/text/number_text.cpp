// SPDX-License-Identifier: MIT
// Numbers as text, in a locale and with unit prefixes.
#include "text/number_text.h"

#include "text/qt_text.h"

#include <QLocale>
#include <QString>

#include <array>
#include <limits>

namespace tovangl {

namespace {

// A 64-bit value needs "E" at most.
constexpr std::array<const char*, 9> kUnitPrefixes = {"", "K", "M", "G", "T", "P", "E", "Z", "Y"};

constexpr double kFromTenThreshold = 10.0;
constexpr int kDroppedDecimalLength = 3; // characters of the integer part

struct CScaledNumber
{
    double value;
    std::size_t prefix; // index into kUnitPrefixes
};

// Deliberate: the most negative value has no positive counterpart in 64 bits, so it stays negative
// and is never scaled.
double signedMagnitude(long long value)
{
    const bool isMostNegative = value == std::numeric_limits<long long>::min();
    return static_cast<double>(value < 0 && !isMostNegative ? -value : value);
}

// Deliberate: PrefixedFromTen scales from 10 on, but divides by a whole kilo.
CScaledNumber scaleByKilo(double value, double threshold, double kilo)
{
    CScaledNumber number{value, 0};
    while (number.value >= threshold && number.prefix < kUnitPrefixes.size() - 1) {
        ++number.prefix;
        number.value /= kilo;
    }
    return number;
}

// Deliberate: the decimal is dropped only if the integer part has exactly three characters, group
// separators included; longer numbers keep it.
QString dropDecimalOfThreeDigits(const QString& text, const QLocale& locale)
{
    const QString integerPart = text.section(qt::decimalPoint(locale), 0, 0);
    return integerPart.size() == kDroppedDecimalLength ? integerPart : text;
}

QString fixedText(const CScaledNumber& number, int decimalsWhenScaled, const QLocale& locale)
{
    return qt::groupedText(number.value, number.prefix == 0 ? 0 : decimalsWhenScaled, locale);
}

} // namespace

QString numberText(long long value, int format, const QLocale& locale, const CKilo& kilo)
{
    if (format == PlainNumber)
        return qt::groupedText(value, locale);

    const double threshold = format == PrefixedFromTen ? kFromTenThreshold : kilo.size;
    const CScaledNumber number = scaleByKilo(signedMagnitude(value), threshold, kilo.size);
    QString text;
    switch (format) {
    case PrefixedWhole:
        text = fixedText(number, 0, locale);
        break;
    case PrefixedFromTen:
        text = fixedText(number, kilo.isBase1000() ? 1 : 2, locale);
        break;
    case PrefixedOneDecimal:
        text = dropDecimalOfThreeDigits(fixedText(number, 1, locale), locale);
        break;
    default:
        text = qt::groupedText(value, locale);
    }
    // Deliberate: an ASCII hyphen, whatever the locale's own sign.
    if (value < 0)
        text.prepend(QLatin1Char('-'));
    if (number.prefix > 0)
        text += QLatin1Char(' ') + QLatin1String(kUnitPrefixes[number.prefix]);
    return text;
}

} // namespace tovangl
