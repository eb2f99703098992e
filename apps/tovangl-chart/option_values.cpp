// SPDX-License-Identifier: MIT
// Parses the values of options.
#include "tovangl-chart/option_values.h"

#include "common/CFailure.h"
#include "common/text_checks.h"

#include <array>
#include <charconv>
#include <limits>

namespace tovangl::program {

namespace {

constexpr std::size_t kColorLength = 7; // "#rrggbb"
constexpr int kHexadecimal = 16;
constexpr std::string_view kHexadecimalDigits = "0123456789abcdefABCDEF";
constexpr const char* kWholeNumberHint = "a whole number; round it (printf %.0f does), or multiply "
                                         "all numbers by 10, 100 or 1000";

CFailure badValue(std::string_view text, const std::string& wanted)
{
    return CFailure(quote(text) + " is not " + wanted);
}

template <typename Number>
std::string rangeText()
{
    return std::to_string(std::numeric_limits<Number>::digits + 1) + " bits";
}

/// std::from_chars() does not accept a plus sign.
std::string_view withoutPlus(std::string_view text)
{
    return text.size() > 1 && text[0] == '+' && text[1] != '-' ? text.substr(1) : text;
}

template <typename Number>
Number parseNumber(std::string_view text, const std::string& wanted)
{
    const std::string_view digits = withoutPlus(text);
    const char* end = digits.data() + digits.size();
    Number number = 0;
    const std::from_chars_result result = std::from_chars(digits.data(), end, number);
    if (result.ptr != end || result.ec == std::errc::invalid_argument)
        throw badValue(text, wanted);
    if (result.ec == std::errc::result_out_of_range)
        throw CFailure(quote(text) + " does not fit into " + rangeText<Number>());
    return number;
}

/// Whether a text is a number with a decimal point.
bool hasDecimals(std::string_view text)
{
    const std::string_view digits = withoutPlus(text);
    const char* end = digits.data() + digits.size();
    double number = 0;
    return text.find('.') != std::string_view::npos &&
           std::from_chars(digits.data(), end, number).ptr == end;
}

int channelAt(std::string_view color, std::size_t offset)
{
    int channel = 0;
    std::from_chars(color.data() + offset, color.data() + offset + 2, channel, kHexadecimal);
    return channel;
}

/// Two whole numbers with a separator between them.
std::array<int, 2> parsePair(std::string_view text, char separator, const std::string& wanted)
{
    const std::size_t middle = text.find(separator);
    if (middle == std::string_view::npos)
        throw badValue(text, wanted);
    return {parseNumber<int>(text.substr(0, middle), wanted),
            parseNumber<int>(text.substr(middle + 1), wanted)};
}

} // namespace

std::optional<Color> findColor(std::string_view text)
{
    if (text.size() != kColorLength || text[0] != '#' ||
        text.find_first_not_of(kHexadecimalDigits, 1) != std::string_view::npos)
        return std::nullopt;
    return Color{channelAt(text, 1), channelAt(text, 3), channelAt(text, 5)};
}

long parseItemValue(std::string_view text)
{
    return parseNumber<long>(text, hasDecimals(text) ? kWholeNumberHint : "a whole number");
}

int parseWhole(std::string_view text)
{
    return parseNumber<int>(text, "a whole number");
}

std::string parseText(std::string_view text)
{
    if (findBrokenUtf8(text) != std::string_view::npos)
        throw badValue(text, "UTF-8");
    return std::string(text);
}

std::string parsePath(std::string_view text)
{
    if (text.empty())
        throw CFailure("the file has no name");
    return std::string(text);
}

PictureSize parseSize(std::string_view text)
{
    const std::array<int, 2> sides = parsePair(text, 'x', "a size such as 800x600");
    return {sides[0], sides[1]};
}

} // namespace tovangl::program
