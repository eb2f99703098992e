// SPDX-License-Identifier: MIT
// Writes the elements of an SVG picture.
#include "svg/CSvgMarkup.h"

#include <QColor>

#include <algorithm>
#include <cmath>

namespace tovangl {

namespace {

constexpr double kHundredths = 100;
constexpr double kFurthest = 1e9; // pixels
constexpr char32_t kReplacement = 0xfffd;
constexpr unsigned kGreatestAscii = 0x7f;

// Whether XML can hold a character that is no surrogate.
bool isXmlCharacter(char32_t character)
{
    return character >= U' ' && character != 0xfffe && character != 0xffff;
}

bool isWhiteSpace(char32_t character)
{
    return character == U'\t' || character == U'\n' || character == U'\r';
}

void appendUtf8(std::string& text, char32_t character)
{
    const auto add = [&text](char32_t byte) { text += static_cast<char>(byte); };
    if (character <= kGreatestAscii) {
        add(character);
    } else if (character < 0x800) {
        add(0xc0 | character >> 6);
        add(0x80 | (character & 0x3f));
    } else if (character < 0x10000) {
        add(0xe0 | character >> 12);
        add(0x80 | (character >> 6 & 0x3f));
        add(0x80 | (character & 0x3f));
    } else {
        add(0xf0 | character >> 18);
        add(0x80 | (character >> 12 & 0x3f));
        add(0x80 | (character >> 6 & 0x3f));
        add(0x80 | (character & 0x3f));
    }
}

void appendEscaped(std::string& text, char32_t character)
{
    switch (character) {
    case U'&':
        text += "&amp;";
        break;
    case U'<':
        text += "&lt;";
        break;
    case U'>':
        text += "&gt;";
        break;
    case U'"':
        text += "&quot;";
        break;
    default:
        if (isWhiteSpace(character))
            text += ' ';
        else
            appendUtf8(text, isXmlCharacter(character) ? character : kReplacement);
    }
}

// Two digits for each channel, of which both are the same.
bool isShort(const std::string& digits)
{
    return digits[1] == digits[2] && digits[3] == digits[4] && digits[5] == digits[6];
}

} // namespace

std::string svgNumber(double value)
{
    const double limited = std::isnan(value) ? 0 : std::clamp(value, -kFurthest, kFurthest);
    const long long hundredths = std::llround(limited * kHundredths);
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
    std::string result;
    result.reserve(static_cast<std::size_t>(text.size()));
    for (int i = 0; i < static_cast<int>(text.size()); ++i) {
        const QChar unit = text[i];
        if (!unit.isSurrogate()) {
            appendEscaped(result, unit.unicode());
        } else if (unit.isHighSurrogate() && i + 1 < static_cast<int>(text.size()) &&
                   text[i + 1].isLowSurrogate()) {
            appendUtf8(result, QChar::surrogateToUcs4(unit, text[i + 1]));
            ++i;
        } else {
            appendUtf8(result, kReplacement);
        }
    }
    return result;
}

CSvgMarkup& CSvgMarkup::begin(std::string_view element)
{
    m_text += '<';
    m_text += element;
    return *this;
}

CSvgMarkup& CSvgMarkup::attribute(std::string_view name, std::string_view value)
{
    m_text += ' ';
    m_text += name;
    m_text += "=\"";
    m_text += value;
    m_text += '"';
    return *this;
}

CSvgMarkup& CSvgMarkup::attribute(std::string_view name, double value)
{
    return attribute(name, std::string_view(svgNumber(value)));
}

CSvgMarkup& CSvgMarkup::color(std::string_view name, const QColor& value)
{
    return attribute(name, std::string_view(svgColor(value)));
}

CSvgMarkup& CSvgMarkup::textAttribute(std::string_view name, const QString& value)
{
    return attribute(name, std::string_view(svgText(value)));
}

void CSvgMarkup::end()
{
    m_text += "/>";
}

CSvgMarkup& CSvgMarkup::open()
{
    m_text += '>';
    return *this;
}

void CSvgMarkup::close(std::string_view element)
{
    m_text += "</";
    m_text += element;
    m_text += '>';
}

CSvgMarkup& CSvgMarkup::content(const QString& text)
{
    m_text += svgText(text);
    return *this;
}

void CSvgMarkup::textElement(std::string_view element, const QString& text)
{
    begin(element).open().content(text).close(element);
}

CSvgPath& CSvgPath::arc(double radius, bool isLarge, bool isClockwise, double x, double y)
{
    add('A', radius).add(radius).add(0);
    m_text += isLarge ? " 1" : " 0";
    m_text += isClockwise ? " 1" : " 0";
    return add(x).add(y);
}

CSvgPath& CSvgPath::close()
{
    m_text += 'Z';
    return *this;
}

CSvgPath& CSvgPath::add(char command, double number)
{
    m_text += command;
    m_text += svgNumber(number);
    return *this;
}

CSvgPath& CSvgPath::add(double number)
{
    const std::string text = svgNumber(number);
    if (text.front() != '-')
        m_text += ' ';
    m_text += text;
    return *this;
}

} // namespace tovangl
