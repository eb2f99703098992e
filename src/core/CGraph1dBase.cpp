// SPDX-License-Identifier: MIT
// The settings of one chart.
#include "core/CGraph1dBase.h"

#include <QLocale>

namespace tovangl {

namespace {

constexpr int kDefaultFontSize = 11;    // pixels
constexpr int kLongestFontFamily = 256; // characters
constexpr int kLocalePartLength = 2;    // characters

// Ink is saved by moving every channel this part of the way toward white.
constexpr double kPrinterWhite = 0.6;
constexpr double kPrinterInk = 0.4;

// A colour channel as a fraction of 1: double or float, as the version of Qt has it.
using Channel = decltype(QColor().redF());

// Every locale groups digits: newer versions of Qt switch grouping off for "C", older ones do not,
// and a chart's numbers must not depend on that.
std::unique_ptr<QLocale> makeGroupingLocale(QLocale locale)
{
    locale.setNumberOptions(locale.numberOptions() & ~QLocale::OmitGroupSeparator);
    return std::make_unique<QLocale>(locale);
}

Channel lightenForPrinter(Channel channel)
{
    return static_cast<Channel>(channel * kPrinterInk + kPrinterWhite);
}

} // namespace

CGraph1dBase::CGraph1dBase()
    : m_fontFamily(QLatin1String("Tahoma"))
    , m_fontSize(kDefaultFontSize)
    , m_locale(makeGroupingLocale(QLocale()))
{}

CGraph1dBase::~CGraph1dBase() = default;

void CGraph1dBase::setFont(const QString& family, int pixelSize)
{
    m_fontFamily = family.left(kLongestFontFamily);
    m_fontSize = pixelSize;
}

void CGraph1dBase::setLocale(const QString& language, const QString& country)
{
    const QString name = language.left(kLocalePartLength).toLower() + QLatin1Char('_') +
                         country.left(kLocalePartLength).toUpper();
    m_locale = makeGroupingLocale(QLocale(name));
}

QColor CGraph1dBase::getOutputDeviceColor(const QColor& color) const
{
    QColor result = color;
    if (m_outputDevice == PrinterDevice) {
        result.setRedF(lightenForPrinter(color.redF()));
        result.setGreenF(lightenForPrinter(color.greenF()));
        result.setBlueF(lightenForPrinter(color.blueF()));
    }
    return result;
}

} // namespace tovangl
