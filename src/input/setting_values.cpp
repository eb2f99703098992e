// SPDX-License-Identifier: MIT
// Reads the values of settings that are given as text.
#include "input/setting_values.h"

#include "base/host_text.h"
#include "input/link_address.h"

#include <array>
#include <charconv>

namespace tovangl {

namespace {

constexpr std::size_t kColorLength = 7; // "#rrggbb"
constexpr int kHexadecimal = 16;
constexpr std::string_view kHexadecimalDigits = "0123456789abcdefABCDEF";

struct CPropertyName
{
    std::string_view name;
    CAxisSettings::Property property;
};

constexpr std::array<CPropertyName, 8> kPropertyNames{
    {{"line", CAxisSettings::ShowLine},
     {"labels", CAxisSettings::ShowLabels},
     {"title", CAxisSettings::ShowTitle},
     {"bold-labels", CAxisSettings::BoldLabels},
     {"bold-title", CAxisSettings::BoldTitle},
     {"prefixes", CAxisSettings::UnitPrefixes},
     {"hide-overlapped", CAxisSettings::HideOverlapped},
     {"shift-last", CAxisSettings::ShiftLastLabel}}};

std::optional<CAxisSettings::Property> findProperty(std::string_view name)
{
    for (const CPropertyName& candidate : kPropertyNames) {
        if (candidate.name == name)
            return candidate.property;
    }
    return std::nullopt;
}

// std::from_chars() does not accept a plus sign.
std::string_view withoutPlus(std::string_view text)
{
    return text.size() > 1 && text[0] == '+' && text[1] != '-' ? text.substr(1) : text;
}

template <typename Number>
std::optional<Number> parseNumber(std::string_view text)
{
    const std::string_view digits = withoutPlus(text);
    const char* end = digits.data() + digits.size();
    Number number = 0;
    const std::from_chars_result result = std::from_chars(digits.data(), end, number);
    if (result.ptr != end || result.ec != std::errc())
        return std::nullopt;
    return number;
}

int channelAt(std::string_view color, std::size_t offset)
{
    int channel = 0;
    std::from_chars(color.data() + offset, color.data() + offset + 2, channel, kHexadecimal);
    return channel;
}

std::optional<QColor> parseHexadecimal(std::string_view text)
{
    if (text.size() != kColorLength || text[0] != '#' ||
        text.find_first_not_of(kHexadecimalDigits, 1) != std::string_view::npos)
        return std::nullopt;
    return QColor(channelAt(text, 1), channelAt(text, 3), channelAt(text, 5));
}

} // namespace

std::optional<bool> parseBoolean(std::string_view text)
{
    if (text != "true" && text != "false")
        return std::nullopt;
    return text == "true";
}

std::optional<long> parseWhole(std::string_view text, long minimum, long maximum)
{
    const std::optional<long> number = parseNumber<long>(text);
    if (!number || *number < minimum || *number > maximum)
        return std::nullopt;
    return number;
}

std::optional<double> parseReal(std::string_view text)
{
    return parseNumber<double>(text);
}

// Broken UTF-8 decodes to a text that encodes to other bytes.
std::optional<QString> parseText(std::string_view text)
{
    const QString decoded = toQString(text);
    const QByteArray bytes = decoded.toUtf8();
    const std::string_view read(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    if (read != text && std::string(kByteOrderMark).append(read) != text)
        return std::nullopt;
    return decoded;
}

std::optional<QString> parseLink(std::string_view text)
{
    return text.empty() || isLinkAddress(text) ? parseText(text) : std::nullopt;
}

std::optional<QColor> parseColor(std::string_view text)
{
    return text == kDefaultValue ? QColor() : parseHexadecimal(text);
}

std::optional<QColor> parsePictureColor(std::string_view text)
{
    if (text == "transparent")
        return QColor(Qt::transparent);
    return text == kDefaultValue ? QColor(Qt::white) : parseHexadecimal(text);
}

std::optional<std::vector<QColor>> parseColors(std::string_view text)
{
    std::vector<QColor> colors;
    if (text == kDefaultValue)
        return colors;
    for (const std::string_view part : splitText(text, ',')) {
        const std::optional<QColor> color = parseHexadecimal(part);
        if (!color)
            return std::nullopt;
        colors.push_back(*color);
    }
    return colors;
}

std::optional<QPoint> parsePosition(std::string_view text)
{
    const std::vector<std::string_view> parts = splitText(text, ',');
    if (parts.size() != 2)
        return std::nullopt;
    const std::optional<int> x = parseNumber<int>(parts[0]);
    const std::optional<int> y = parseNumber<int>(parts[1]);
    return x && y ? std::optional(QPoint(*x, *y)) : std::nullopt;
}

std::optional<CAxisSettings::Properties> parseAxisProperties(std::string_view text)
{
    CAxisSettings::Properties properties;
    if (text == "none")
        return properties;
    for (const std::string_view name : splitText(text, ',')) {
        const std::optional<CAxisSettings::Property> property = findProperty(name);
        if (!property)
            return std::nullopt;
        properties |= *property;
    }
    return properties;
}

std::optional<CLocaleName> parseLocale(std::string_view text)
{
    if (text == "C")
        return CLocaleName{QStringLiteral("C"), QString()};
    const std::size_t middle = text.find_first_of("_-");
    if (middle == std::string_view::npos || middle == 0 || middle + 1 == text.size())
        return std::nullopt;
    const std::optional<QString> language = parseText(text.substr(0, middle));
    const std::optional<QString> country = parseText(text.substr(middle + 1));
    return language && country ? std::optional(CLocaleName{*language, *country}) : std::nullopt;
}

std::vector<std::string_view> splitText(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    while (true) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return parts;
        text.remove_prefix(end + 1);
    }
}

} // namespace tovangl
