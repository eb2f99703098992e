// SPDX-License-Identifier: MIT
// Numbers, colours and texts as SVG has them.
#include "svg/svg_values.h"

#include <QColor>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace tovangl {

namespace {

constexpr double kHundredths = 100;
constexpr double kFurthest = 1e9;        // pixels
constexpr ushort kReversedMark = 0xfffe; // a byte order mark, its bytes in the wrong order
constexpr ushort kNoCharacter = 0xffff;

// Whether a character of one unit can stand in XML; half a pair cannot.
bool isXmlCharacter(QChar character)
{
    return character >= QLatin1Char(' ') && !character.isSurrogate() &&
           character.unicode() != kNoCharacter && character.unicode() != kReversedMark;
}

bool isPair(const QString& text, int first)
{
    return first + 1 < static_cast<int>(text.size()) && text[first].isHighSurrogate() &&
           text[first + 1].isLowSurrogate();
}

// The text with nothing in it that no XML can hold.
QString xmlCharacters(QString text)
{
    for (int i = 0; i < static_cast<int>(text.size()); ++i) {
        const QChar character = text[i];
        if (character == QLatin1Char('\t') || character == QLatin1Char('\n') ||
            character == QLatin1Char('\r'))
            text[i] = QLatin1Char(' ');
        else if (isPair(text, i))
            ++i;
        else if (!isXmlCharacter(character))
            text[i] = QChar(QChar::ReplacementCharacter);
    }
    return text;
}

void appendEscaped(std::string& text, char byte)
{
    switch (byte) {
    case '&':
        text += "&amp;";
        break;
    case '<':
        text += "&lt;";
        break;
    case '>':
        text += "&gt;";
        break;
    case '"':
        text += "&quot;";
        break;
    default:
        text += byte;
    }
}

bool isWordCharacter(QChar character)
{
    const ushort unit = character.unicode();
    return (unit >= 'a' && unit <= 'z') || (unit >= 'A' && unit <= 'Z') || unit == '-';
}

// A family's name as style sheets have it. Without quotes it can be one of the kinds that every
// reader knows, such as serif.
QString quotedName(QString name)
{
    if (!name.isEmpty() && std::all_of(name.cbegin(), name.cend(), isWordCharacter))
        return name;
    name.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    name.replace(QLatin1Char('\''), QLatin1String("\\'"));
    return QLatin1Char('\'') + name + QLatin1Char('\'');
}

long long hundredthsOf(double value)
{
    const double limited = std::isnan(value) ? 0 : std::clamp(value, -kFurthest, kFurthest);
    return std::llround(limited * kHundredths);
}

// Two digits for each channel, of which both are the same.
bool isShort(const std::string& digits)
{
    return digits[1] == digits[2] && digits[3] == digits[4] && digits[5] == digits[6];
}

} // namespace

double svgRounded(double value)
{
    return static_cast<double>(hundredthsOf(value)) / kHundredths;
}

std::string svgNumber(double value)
{
    const long long hundredths = hundredthsOf(value);
    const long long size = std::abs(hundredths);
    const long long whole = size / 100;
    const long long rest = size % 100;
    std::string text = hundredths < 0 ? "-" : "";
    if (whole > 0 || rest == 0)
        text += std::to_string(whole);
    if (rest > 0) {
        text += '.';
        text += static_cast<char>('0' + rest / 10);
        if (rest % 10 > 0)
            text += static_cast<char>('0' + rest % 10);
    }
    return text;
}

std::string svgColor(const QColor& color)
{
    constexpr const char* kDigits = "0123456789abcdef";
    std::string text = "#";
    for (const int channel : {color.red(), color.green(), color.blue()}) {
        text += kDigits[channel / 16];
        text += kDigits[channel % 16];
    }
    if (isShort(text))
        return {'#', text[1], text[3], text[5]};
    return text;
}

std::string svgText(const QString& text)
{
    const QByteArray utf8 = xmlCharacters(text).toUtf8();
    std::string result;
    result.reserve(static_cast<std::size_t>(utf8.size()));
    for (const char byte : utf8)
        appendEscaped(result, byte);
    return result;
}

QString svgFontFamily(const QString& families)
{
    QString list;
    for (const QString& name : families.split(QLatin1Char(',')))
        list += quotedName(name.trimmed()) + QLatin1Char(',');
    return list + QLatin1String("sans-serif");
}

} // namespace tovangl
