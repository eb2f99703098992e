// SPDX-License-Identifier: MIT
// Numbers, colours and texts as a PDF file spells them.
#include "pdf/pdf_text.h"

#include <QByteArray>
#include <QColor>
#include <QPointF>
#include <QString>

#include <algorithm>
#include <cmath>

namespace tovangl {

namespace {

constexpr double kLargestNumber = 1000000; // twenty times the largest page in pixels
constexpr int kChannelDecimals = 3;        // more than 256 steps
constexpr char16_t kByteOrderMark = 0xfeff;

bool isLetterOrDigit(char character)
{
    return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
           (character >= 'a' && character <= 'z');
}

// What a text can consist of to be written as it is.
bool isPlain(char character)
{
    return isLetterOrDigit(character) || character == ' ' || character == '-';
}

long long powerOfTen(int exponent)
{
    long long power = 1;
    for (int i = 0; i < exponent; ++i)
        power *= 10;
    return power;
}

} // namespace

std::string pdfNumber(double value, int decimals)
{
    if (std::isnan(value))
        return "0";
    const long long unit = powerOfTen(decimals);
    const double inRange = std::clamp(value, -kLargestNumber, kLargestNumber);
    const long long steps = std::llround(inRange * static_cast<double>(unit));
    const long long magnitude = std::abs(steps);
    std::string text = (steps < 0 ? "-" : "") + std::to_string(magnitude / unit);
    if (magnitude % unit == 0)
        return text;
    // The 1 in front keeps the zeros behind the point.
    text += '.' + std::to_string(unit + magnitude % unit).substr(1);
    text.erase(text.find_last_not_of('0') + 1);
    return text;
}

std::string pdfPoint(const QPointF& point)
{
    return pdfNumber(point.x()) + ' ' + pdfNumber(point.y()) + ' ';
}

std::string pdfColor(const QColor& color)
{
    std::string text;
    for (const auto channel : {color.redF(), color.greenF(), color.blueF()})
        text += pdfNumber(static_cast<double>(channel), kChannelDecimals) + ' ';
    return text;
}

std::string pdfHex(std::uint16_t value)
{
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string text;
    for (int shift = 12; shift >= 0; shift -= 4)
        text += kDigits[(value >> shift) & 0xf];
    return text;
}

std::string pdfString(const QString& text)
{
    const std::string plain = text.toStdString();
    if (std::all_of(plain.begin(), plain.end(), isPlain))
        return '(' + plain + ')';
    std::string digits = '<' + pdfHex(kByteOrderMark);
    for (const QChar unit : text)
        digits += pdfHex(unit.unicode());
    return digits + '>';
}

std::string pdfName(const QByteArray& name)
{
    std::string text;
    std::copy_if(name.begin(), name.end(), std::back_inserter(text), isLetterOrDigit);
    return text;
}

std::string pdfReference(int object)
{
    return std::to_string(object) + " 0 R";
}

} // namespace tovangl
