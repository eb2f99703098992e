// SPDX-License-Identifier: MIT
// The settings that every chart has.
#include "input/CGraph1dSettings.h"

#include <algorithm>

namespace tovangl {

namespace {

constexpr int kDefaultFontSize = 11;    // pixels
constexpr int kLongestFontFamily = 256; // characters
constexpr int kLocalePartLength = 2;    // characters

QLocale groupingLocale(QLocale locale)
{
    locale.setNumberOptions(locale.numberOptions() & ~QLocale::OmitGroupSeparator);
    return locale;
}

} // namespace

CGraph1dSettings::CGraph1dSettings()
    : fontFamily(QLatin1String("Tahoma"))
    , fontSize(kDefaultFontSize)
    , locale(groupingLocale(QLocale()))
{}

void CGraph1dSettings::setFont(const QString& family, int pixelSize)
{
    fontFamily = family.left(kLongestFontFamily);
    isFamilyChosen = !family.isEmpty();
    fontSize = pixelSize;
}

void CGraph1dSettings::setLocale(const QString& language, const QString& country)
{
    const QString name = language.left(kLocalePartLength).toLower() + QLatin1Char('_') +
                         country.left(kLocalePartLength).toUpper();
    locale = groupingLocale(QLocale(name));
}

void CGraph1dSettings::setKilo(int size)
{
    kilo.reset();
    if (size == kKilo1024.size)
        kilo = kKilo1024;
    else if (size == kKilo1000.size)
        kilo = kKilo1000;
}

void CGraph1dSettings::setScale(int pixels)
{
    scale = std::clamp(pixels, 1, kGreatestScale);
}

} // namespace tovangl
